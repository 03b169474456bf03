// What a program of tests with Qt begins with, and screens without a monitor. On Windows only its
// own platform has fonts.
#pragma once

#include <qglobal.h>

#include "runtime/plain_patterns.h"

namespace tarn::test {

inline void chooseNoScreen() {
    keepPatternsPlain();
#ifndef Q_OS_WIN
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#endif
}

}  // namespace tarn::test
