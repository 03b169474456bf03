// The desk as it is delivered, up to the painted logon. The argument is the server's
// address.
#include "bench/start/end_at_paint.h"
#include "desk/desk_assembly.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        return 1;
    }
    tarn::Options options;
    options.baseUrl = argv[1];
    auto printers = tarn::printersOf(options);
    tarn::DeskApplication program(argc, argv);
    const tarn::bench::EndAtPaint end(QStringLiteral("FrmLogon"));
    tarn::Desk desk(program, options, std::move(printers));
    desk.open();
    return tarn::DeskApplication::exec() + 1;  // it should have ended at the paint
}
