#include "gateway/pega_valor.h"

#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

// Null: absent.
XmlAttribute find(const XmlNode& node, std::size_t index, std::string_view name) {
    const XmlAttributes row = node.child(index).attributes();
    const XmlAttribute present = row.firstWithBaseName(name);
    return present ? spelledAs(name, present, row) : present;
}

}  // namespace

XmlAttribute spelledAs(std::string_view name, const XmlAttribute& present,
                       const XmlAttributes& row) {
    if (present.name() == name) {
        return present;
    }
    const XmlAttribute other = row.getNamedItem(name);
    if (!other) {
        throw RuntimeError(
            RuntimeErrorCode::ObjectVariable,
            "o campo " + std::string(name) + " vem com o nome " + std::string(present.name()));
    }
    return other;
}

std::string PegaValor(const XmlNode& node, std::size_t index, std::string_view name,
                      std::string_view fallback) {
    const XmlAttribute attribute = find(node, index, name);
    return std::string(attribute ? attribute.text() : fallback);
}

std::string PegaValor(const XmlNode& node, std::size_t index, std::string_view name, int fallback) {
    if (fallback != 0) {
        return PegaValor(node, index, name, std::to_string(fallback));
    }
    const XmlAttribute attribute = find(node, index, asciiUpper(name));
    return attribute ? pointToComma(attribute.text()) : "0";
}

}  // namespace tarn
