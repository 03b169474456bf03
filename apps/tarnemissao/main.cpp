// The desk.
#include <cstdio>

#include "desk/desk_assembly.h"

int main(int argc, char** argv) {
    const auto parsed = tarn::readOptions(
        argc, argv, qEnvironmentVariable("TARN_SERVIDOR").toStdString(), TARN_BASE_URL);
    if (const auto* stop = std::get_if<tarn::NoStart>(&parsed)) {
        std::fputs(stop->text.c_str(), stop->status == 0 ? stdout : stderr);
        return stop->status;
    }
    const auto& options = std::get<tarn::Options>(parsed);
    auto printers = tarn::printersOf(options);
    if (!printers.raw) {
        std::fputs(
            "tarnemissao: este programa foi compilado sem impressora do sistema; use "
            "--impressora-virtual PASTA.\n",
            stderr);
        return 1;
    }
    tarn::DeskApplication program(argc, argv);
    tarn::Desk desk(program, options, std::move(printers));
    desk.open();
    return program.exec();
}
