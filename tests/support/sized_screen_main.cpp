// The main of a program of screen tests on a monitor of TARN_TEST_MONITOR dots and scale
// ("1920x1080x1.5"), off-screen, on a dark desktop if TARN_TEST_DESKTOP is "dark".
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "desk/desk_application.h"
#include "runtime/plain_patterns.h"
#include "tests/support/dark_desktop.h"
#include "widgets/look.h"

static void setMonitor(const QString& file) {
    const QByteArray dots = qEnvironmentVariableIsSet("TARN_TEST_MONITOR")
                                ? qgetenv("TARN_TEST_MONITOR")
                                : QByteArray("1024x768x1");
    const QList<QByteArray> sides = dots.split('x');
    QFile told(file);
    if (sides.size() != 3 || !told.open(QIODevice::WriteOnly)) {
        qFatal("no monitor: %s", dots.constData());
    }
    told.write(R"({"screens":[{"name":"monitor","x":0,"y":0,"logicalDpi":96,"logicalBaseDpi":96,)"
               R"("dpr":1,"width":)" +
               sides[0] + R"(,"height":)" + sides[1] + "}]}");
    qputenv("QT_SCALE_FACTOR", sides[2]);
#ifndef Q_OS_WIN  // where the monitor is the real one: only its own platform has fonts
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file));
#endif
}

int main(int argc, char** argv) {
    tarn::keepPatternsPlain();
    const QTemporaryDir folder;
    setMonitor(folder.filePath(QStringLiteral("monitor.json")));
    testing::InitGoogleTest(&argc, argv);
    tarn::DeskApplication application(argc, argv);
    if (qgetenv("TARN_TEST_DESKTOP") == "dark") {
        tarn::test::setDarkDesktop();
        tarn::applyLook(application);
    }
    return RUN_ALL_TESTS();
}
