#include "gateway/pega_valor.h"

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

// The presence test ignores the case of letters and the prefix; the lookup that
// follows ignores neither. Null: absent.
XmlAttribute encontra(const XmlNode& no, std::size_t indice, std::string_view nome,
                      std::string_view nomeDaConsulta) {
    const XmlAttributes atributos = no.child(indice).attributes();
    const XmlAttribute achado = atributos.firstWithBaseName(nome);
    if (!achado || achado.name() == nomeDaConsulta) {
        return achado;
    }
    const XmlAttribute consultado = atributos.getNamedItem(nomeDaConsulta);
    if (!consultado) {
        throw ErroExecucao(ErroNumero::VariavelObjeto);
    }
    return consultado;
}

bool leituraNumerica(const Valor& padrao) {
    const double* numero = std::get_if<double>(&padrao);
    return numero != nullptr && *numero == 0.0;
}

}  // namespace

Valor PegaValor(const XmlNode& no, std::size_t indice, std::string_view nome, const Valor& padrao) {
    if (leituraNumerica(padrao)) {
        const XmlAttribute atributo = encontra(no, indice, nome, asciiUpper(nome));
        return atributo ? Valor(pointToComma(atributo.text())) : padrao;
    }
    const XmlAttribute atributo = encontra(no, indice, nome, nome);
    return atributo ? Valor(std::string(atributo.text())) : padrao;
}

std::string pegaTexto(const XmlNode& no, std::size_t indice, std::string_view nome) {
    const XmlAttribute atributo = encontra(no, indice, nome, nome);
    return atributo ? std::string(atributo.text()) : std::string();
}

std::string pegaNumero(const XmlNode& no, std::size_t indice, std::string_view nome) {
    const XmlAttribute atributo = encontra(no, indice, nome, asciiUpper(nome));
    return atributo ? pointToComma(atributo.text()) : "0";
}

std::string statusOf(const XmlDocument& documento) {
    return std::string(documento.child(1).attributes().item(1).text());
}

}  // namespace tarn
