#include "gateway/pega_valor.h"

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

// The presence test ignores the case of letters and the prefix; the lookup that
// follows ignores neither. Null: absent.
XmlAttribute find(const XmlNode& node, std::size_t index, std::string_view name,
                  std::string_view queryName) {
    const XmlAttributes attributes = node.child(index).attributes();
    const XmlAttribute match = attributes.firstWithBaseName(name);
    if (!match || match.name() == queryName) {
        return match;
    }
    const XmlAttribute queried = attributes.getNamedItem(queryName);
    if (!queried) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable);
    }
    return queried;
}

bool isNumericReading(const AttributeValue& fallback) {
    const double* number = std::get_if<double>(&fallback);
    return number != nullptr && *number == 0.0;
}

}  // namespace

AttributeValue PegaValor(const XmlNode& node, std::size_t index, std::string_view name,
                         const AttributeValue& fallback) {
    if (isNumericReading(fallback)) {
        const XmlAttribute attribute = find(node, index, name, asciiUpper(name));
        return attribute ? AttributeValue(pointToComma(attribute.text())) : fallback;
    }
    const XmlAttribute attribute = find(node, index, name, name);
    return attribute ? AttributeValue(std::string(attribute.text())) : fallback;
}

std::string textAttribute(const XmlNode& node, std::size_t index, std::string_view name) {
    const XmlAttribute attribute = find(node, index, name, name);
    return attribute ? std::string(attribute.text()) : std::string();
}

std::string numberAttribute(const XmlNode& node, std::size_t index, std::string_view name) {
    const XmlAttribute attribute = find(node, index, name, asciiUpper(name));
    return attribute ? pointToComma(attribute.text()) : "0";
}

std::string statusOf(const XmlDocument& document) {
    return std::string(document.child(1).attributes().item(1).text());
}

}  // namespace tarn
