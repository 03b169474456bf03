#include "apps/tarnimpressora/without_window.h"

#include <QGuiApplication>
#include <QTimer>
#include <cstdio>

#include "apps/tarnimpressora/files.h"
#include "apps/tarnimpressora/reception.h"

namespace tarn::printer {

namespace {

constexpr std::chrono::milliseconds untilQuiet(100);

// Writes the files whenever jobs have ended and no other follows at once.
int wait(QGuiApplication& application, const Options& options, const dotmatrix::PaintOptions& looks,
         dotmatrix::PaperRoll& roll, std::size_t notices) {
    dotmatrix::JobIntake intake(roll);
    Reception reception(intake);
    if (const QString wrong = reception.open(options); !wrong.isEmpty()) {
        complain(wrong);
        return 1;
    }
    QTimer quiet;
    quiet.setSingleShot(true);
    quiet.setInterval(untilQuiet);
    QObject::connect(&quiet, &QTimer::timeout, &application, [&] {
        if (intake.busy()) {
            return quiet.start();
        }
        notices = showNotices(roll.notices(), notices);
        if (!writeFiles(options, looks, roll)) {
            return QCoreApplication::exit(1);
        }
        if (options.endAfter > 0 && intake.ended() >= options.endAfter) {
            QCoreApplication::quit();
        }
    });
    QObject::connect(&intake, &dotmatrix::JobIntake::jobEnded, &application,
                     [&quiet](const QString& name, const QString& remark) {
                         if (!remark.isEmpty()) {
                             complain(name + QStringLiteral(": ") + remark);
                         }
                         quiet.start();
                     });
    std::puts(reception.places().toUtf8().constData());
    std::fflush(stdout);
    return QGuiApplication::exec();
}

}  // namespace

int runWithoutWindow(int argc, char** argv, const Options& options,
                     const dotmatrix::PaintOptions& looks) {
    // Files need fonts, not a display, and what the toolkit misses of one is no matter.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QGuiApplication application(argc, argv);
    dotmatrix::PaperRoll roll(options.dialect);
    if (!printFiles(options, roll)) {
        return 1;
    }
    const std::size_t notices = showNotices(roll.notices(), 0);
    if (!options.jobs.empty() && !writeFiles(options, looks, roll)) {
        return 1;
    }
    return options.waits() ? wait(application, options, looks, roll, notices) : 0;
}

}  // namespace tarn::printer
