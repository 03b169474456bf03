// The main of a program of screen tests: one application, off-screen, for all cases.
#include <gtest/gtest.h>

#include "desk/desk_application.h"

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    testing::InitGoogleTest(&argc, argv);
    const tarn::DeskApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
