#include "platform/qt/qt_machine.h"

#include <QApplication>

#ifdef Q_OS_WIN
#include <windows.h>

#include <array>

#include "runtime/text.h"
#endif

namespace tarn {

#ifdef Q_OS_WIN

bool QtMachine::setShortDateFormat(const std::string& format) {
    return SetLocaleInfoA(GetSystemDefaultLCID(), LOCALE_SSHORTDATE, format.c_str()) != 0;
}

std::string QtMachine::systemDirectory() {
    std::array<char, 128> buffer{};
    const UINT length = GetSystemDirectoryA(buffer.data(), static_cast<UINT>(buffer.size()));
    const std::string path(buffer.data(), length < buffer.size() ? length : 0);
    return std::string(trimBlanks(path));
}

#else

bool QtMachine::setShortDateFormat(const std::string& /*format*/) {
    return true;
}

std::string QtMachine::systemDirectory() {
    return {};
}

#endif

void QtMachine::beep() {
    QApplication::beep();
}

}  // namespace tarn
