// The desk.
#include "desk/desk_assembly.h"

namespace {

constexpr char noPrinter[] =
    "tarnemissao: este programa foi compilado sem impressora do sistema; use "
    "--impressora-virtual PASTA.\n";

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
    tarn::DeskApplication program(argc, argv);
    tarn::Desk desk(program, options, std::move(printers));
    desk.open();
    return program.exec();
}
