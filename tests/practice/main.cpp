// The database's drivers need an application object.
#include <gtest/gtest.h>

#include <QCoreApplication>

#include "runtime/plain_patterns.h"

int main(int argc, char** argv) {
    tarn::keepPatternsPlain();
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
