#include "apps/tarnimprime/ticks.h"

#include <charconv>
#include <string_view>
#include <system_error>

#include "runtime/text.h"

namespace tarn::print {
namespace {

std::size_t rowOf(std::string_view texto, std::size_t count) {
    const std::string_view number = trimBlanks(texto);
    std::size_t linha = 0;
    const char* const end = number.data() + number.size();
    const auto readValue = std::from_chars(number.data(), end, linha);
    if (readValue.ec != std::errc() || readValue.ptr != end || linha < 1 || linha > count) {
        throw UsageError("--marca pede números de linha de 1 a " + std::to_string(count) +
                         ", separados por vírgula: \"" + std::string(texto) + "\" não é um deles.");
    }
    return linha;
}

}  // namespace

void declareTicks(CLI::App& commands, TickedRows& tick) {
    commands.add_option("--marca", tick,
                        "Linhas que imprimem, a partir de 1 (1,3); sem ela, todas; vazia, nenhuma");
}

void tickRows(std::vector<GridRow>& linhas, const TickedRows& tick) {
    for (GridRow& linha : linhas) {
        linha.ticked = !tick;
    }
    if (!tick || trimBlanks(*tick).empty()) {
        return;
    }
    std::string_view rest = *tick;
    for (std::size_t comma = 0; comma != std::string_view::npos;) {
        comma = rest.find(',');
        linhas[rowOf(rest.substr(0, comma), linhas.size()) - 1].ticked = true;
        rest = comma == std::string_view::npos ? "" : rest.substr(comma + 1);
    }
}

}  // namespace tarn::print
