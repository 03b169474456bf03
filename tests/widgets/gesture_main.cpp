// One plain application for all cases, with the filter and the gate and no look of ours.
#include <gtest/gtest.h>

#include <QApplication>

#include "widgets/gesture_filter.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    new tarn::GestureFilter(application);
    return RUN_ALL_TESTS();
}
