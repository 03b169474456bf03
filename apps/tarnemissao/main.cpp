// The desk.
#include <memory>
#include <string>
#include <utility>

#include "cli/arguments.h"
#include "cli/last_word.h"
#include "desk/desk_assembly.h"
#include "widgets/opening_display.h"

namespace {

constexpr char noDisplay[] =
    "tarnemissao: não há tela em que abrir a mesa. Entre numa sessão gráfica e abra o programa de "
    "lá; as variáveis DISPLAY e WAYLAND_DISPLAY dizem qual é a tela.\n";

}  // namespace

int main(int argc, char** argv) {
    const tarn::cli::Arguments arguments(argc, argv);
    const auto parsed =
        tarn::readOptions(arguments.count(), arguments.values(),
                          qEnvironmentVariable("TARN_SERVIDOR").toStdString(), TARN_BASE_URL);
    if (const auto* ending = std::get_if<tarn::cli::Ending>(&parsed)) {
        return tarn::cli::sayLast(*ending);
    }
    const auto& options = std::get<tarn::Options>(parsed);
    auto printers = tarn::printersOf(options);
    if (const std::string obstacle = tarn::printerObstacle(options, printers); !obstacle.empty()) {
        return tarn::cli::sayLast({tarn::cli::statusUsage, "tarnemissao: " + obstacle + "\n"});
    }
    auto opening = std::make_unique<tarn::OpeningDisplay>(noDisplay);
    tarn::DeskApplication program(argc, argv);
    opening.reset();
    return tarn::runDesk(program, options, std::move(printers));
}
