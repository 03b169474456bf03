#include "apps/tarnimprime/ticks.h"

#include <charconv>
#include <string_view>
#include <system_error>

#include "runtime/text.h"

namespace tarn::print {
namespace {

std::size_t rowOf(std::string_view text, std::size_t count) {
    const std::string_view number = trimBlanks(text);
    std::size_t line = 0;
    const char* const end = number.data() + number.size();
    const auto readValue = std::from_chars(number.data(), end, line);
    if (readValue.ec != std::errc() || readValue.ptr != end || line < 1 || line > count) {
        throw cli::WrongUsage("--marca pede números de linha de 1 a " + std::to_string(count) +
                              ", separados por vírgula: \"" + std::string(text) +
                              "\" não é um deles.");
    }
    return line;
}

}  // namespace

void declareTicks(cli::Command& command, TickedRows& tick) {
    command.text("--marca", tick,
                 "linhas que imprimem, a partir de 1 (1,3); sem ela, todas; vazia, nenhuma");
}

void tickRows(std::vector<GridRow>& lines, const TickedRows& tick) {
    for (GridRow& line : lines) {
        line.ticked = !tick;
    }
    if (!tick || trimBlanks(*tick).empty()) {
        return;
    }
    std::string_view rest = *tick;
    for (std::size_t comma = 0; comma != std::string_view::npos;) {
        comma = rest.find(',');
        lines[rowOf(rest.substr(0, comma), lines.size()) - 1].ticked = true;
        rest = comma == std::string_view::npos ? "" : rest.substr(comma + 1);
    }
}

}  // namespace tarn::print
