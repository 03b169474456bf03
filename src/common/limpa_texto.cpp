#include "common/limpa_texto.h"

#include "runtime/text.h"

namespace tarn {

std::optional<std::string> TrocaAspas(const std::optional<std::string>& value) {
    if (!value) {
        return std::nullopt;
    }
    std::string text = *value;
    for (const char* quote : {"'", "\"", "‘", "’"}) {
        text = replaceAll(text, quote, "´");
    }
    return text;
}

std::string LimpaTexto(std::string& value) {
    value = upperCase(value);
    return std::string(trimBlanks(TrocaAspas(value).value_or("")));
}

}  // namespace tarn
