// Runs tests that paint: painting needs a QGuiApplication, but no screen.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include "tests/support/no_screen.h"

int main(int argc, char** argv) {
    tarn::test::chooseNoScreen();
    testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
