#include "apps/tarnimpressora/with_window.h"

#include <QApplication>

#include "apps/tarnimpressora/files.h"
#include "apps/tarnimpressora/reception.h"
#include "printer/printer_window.h"
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
    QApplication::setApplicationDisplayName(QStringLiteral("Impressora virtual"));
    applyLook(*qApp);
    dotmatrix::PaperRoll roll(options.dialect);
    if (!printFiles(options, roll)) {
        return 1;
    }
    dotmatrix::JobIntake intake(roll);
    dotmatrix::PrinterWindow window(roll, intake, looks, options.itemLines);
    Reception reception(intake);
    Options waiting = options;
    if (!waiting.waits() && waiting.jobs.empty()) {
        waiting.port = dotmatrix::rawPort;
    }
    const QString wrong = reception.open(waiting);
    if (!wrong.isEmpty()) {
        complain(wrong);
    }
    window.setWaitingText(wrong.isEmpty() ? reception.places() : wrong);
    window.show();
    return QApplication::exec();
}

}  // namespace tarn::printer
