#include "common/limpa_texto.h"

#include "runtime/text.h"

namespace tarn {

std::optional<std::string> TrocaAspas(const std::optional<std::string>& valor) {
    if (!valor) {
        return std::nullopt;
    }
    std::string texto = *valor;
    for (const char* quote : {"'", "\"", "‘", "’"}) {
        texto = replaceAll(texto, quote, "´");
    }
    return texto;
}

std::string LimpaTexto(std::string& valor) {
    valor = upperCase(valor);
    return std::string(trimBlanks(TrocaAspas(valor).value_or("")));
}

}  // namespace tarn
