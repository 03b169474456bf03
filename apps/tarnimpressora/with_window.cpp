#include "apps/tarnimpressora/with_window.h"

#include <QApplication>

#include "apps/tarnimpressora/files.h"
#include "apps/tarnimpressora/holding.h"
#include "apps/tarnimpressora/reception.h"
#include "cli/own_console.h"
#include "printer/window/printer_window.h"
#include "widgets/look.h"

namespace tarn::printer {

bool hasDisplay() {
#ifdef Q_OS_LINUX
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
#else
    return true;
#endif
}

int runWithWindow(int argc, char** argv, const Options& options,
                  const dotmatrix::PaintOptions& looks) {
    const QApplication application(argc, argv);
    applyLook(*qApp);
    dotmatrix::PaperRoll roll(options.dialect);
    if (options.onePaper()) {
        roll.setDialect(options.dialect);
    }
    if (!printFiles(options, roll)) {
        return 1;
    }
    cli::closeOwnConsole();
    dotmatrix::JobIntake intake(roll);
    dotmatrix::HoldDesk desk(systemQueues());
    dotmatrix::PrinterWindow window(roll, intake, desk, looks, options.itemLines);
    QString wrong = options.holds() ? startHolding(options, desk, intake) : QString();
    window.onHold([&](const QString& queue) {
        Options chosen = options;
        chosen.queue = queue.toStdString();
        return startHolding(chosen, desk, intake);
    });
    Reception reception(intake);
    Options waiting = options;
    if (!waiting.waits() && waiting.jobs.empty()) {
        waiting.port = dotmatrix::rawPort;
    }
    if (wrong.isEmpty()) {
        wrong = reception.open(waiting, true);
    }
    if (!wrong.isEmpty()) {
        complain(wrong);
    }
    if (!options.folder.empty()) {
        window.watchSheets(QString::fromStdString(options.folder));
    }
    window.setWaitingText(wrong.isEmpty() ? reception.places() : wrong);
    window.show();
    return QApplication::exec();
}

}  // namespace tarn::printer
