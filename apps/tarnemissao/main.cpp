// The desk.
#include <memory>

#include "desk/desk_assembly.h"
#include "widgets/opening_display.h"

namespace {

constexpr char noPrinter[] =
    "tarnemissao: este programa foi compilado sem impressora do sistema; use "
    "--impressora-virtual PASTA.\n";
constexpr char noDisplay[] =
    "tarnemissao: não há tela em que abrir a mesa. Entre numa sessão gráfica e abra o programa de "
    "lá; as variáveis DISPLAY e WAYLAND_DISPLAY dizem qual é a tela.\n";

}  // namespace

int main(int argc, char** argv) {
    const auto parsed = tarn::readOptions(
        argc, argv, qEnvironmentVariable("TARN_SERVIDOR").toStdString(), TARN_BASE_URL);
    if (const auto* ending = std::get_if<tarn::cli::Ending>(&parsed)) {
        return tarn::cli::say(*ending);
    }
    const auto& options = std::get<tarn::Options>(parsed);
    auto printers = tarn::printersOf(options);
    if (!printers.raw) {
        return tarn::cli::say({tarn::cli::statusUsage, noPrinter});
    }
    auto opening = std::make_unique<tarn::OpeningDisplay>(noDisplay);
    tarn::DeskApplication program(argc, argv);
    opening.reset();
    tarn::Desk desk(program, options, std::move(printers));
    desk.open();
    return program.exec();
}
