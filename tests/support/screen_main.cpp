// The main of a program of screen tests: one application, off-screen, for all cases.
#include <gtest/gtest.h>

#include "desk/desk_application.h"
#include "tests/support/no_screen.h"

int main(int argc, char** argv) {
    tarn::test::chooseNoScreen();
    testing::InitGoogleTest(&argc, argv);
    const tarn::DeskApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
