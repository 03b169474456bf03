// The main of a program of tests that need a real keyboard: a private X server, then the
// desk's own application on it.
#include <gtest/gtest.h>

#include <optional>

#include "desk/desk_application.h"
#include "tests/support/x11_display.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const tarn::test::X11Display display;
    qputenv("QT_QPA_PLATFORM", "xcb");
    const tarn::DeskApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
