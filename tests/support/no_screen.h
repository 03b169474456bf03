// Screens without a monitor. On Windows only its own platform has fonts.
#pragma once

#include <qglobal.h>

namespace tarn::test {

inline void chooseNoScreen() {
#ifndef Q_OS_WIN
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#endif
}

}  // namespace tarn::test
