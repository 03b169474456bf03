#include "gateway/pega_valor.h"

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

// The presence test ignores the case of letters and the prefix; the lookup that
// follows ignores neither. Null: absent.
XmlAttribute find(const XmlNode& no, std::size_t indice, std::string_view nome,
                  std::string_view queryName) {
    const XmlAttributes attributes = no.child(indice).attributes();
    const XmlAttribute match = attributes.firstWithBaseName(nome);
    if (!match || match.name() == queryName) {
        return match;
    }
    const XmlAttribute queried = attributes.getNamedItem(queryName);
    if (!queried) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable);
    }
    return queried;
}

bool isNumericReading(const Amount& padrao) {
    const double* number = std::get_if<double>(&padrao);
    return number != nullptr && *number == 0.0;
}

}  // namespace

Amount PegaValor(const XmlNode& no, std::size_t indice, std::string_view nome,
                 const Amount& padrao) {
    if (isNumericReading(padrao)) {
        const XmlAttribute attribute = find(no, indice, nome, asciiUpper(nome));
        return attribute ? Amount(pointToComma(attribute.text())) : padrao;
    }
    const XmlAttribute attribute = find(no, indice, nome, nome);
    return attribute ? Amount(std::string(attribute.text())) : padrao;
}

std::string textAttribute(const XmlNode& no, std::size_t indice, std::string_view nome) {
    const XmlAttribute attribute = find(no, indice, nome, nome);
    return attribute ? std::string(attribute.text()) : std::string();
}

std::string numberAttribute(const XmlNode& no, std::size_t indice, std::string_view nome) {
    const XmlAttribute attribute = find(no, indice, nome, asciiUpper(nome));
    return attribute ? pointToComma(attribute.text()) : "0";
}

std::string statusOf(const XmlDocument& documento) {
    return std::string(documento.child(1).attributes().item(1).text());
}

}  // namespace tarn
