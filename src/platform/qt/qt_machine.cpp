#include "platform/qt/qt_machine.h"

#include <QApplication>

#ifdef Q_OS_WIN
#include <windows.h>

#include <array>

#include "runtime/text.h"
#include "runtime/wide_text.h"
#endif

namespace tarn {

#ifdef Q_OS_WIN

bool QtMachine::setShortDateFormat(const std::string& format) {
    return SetLocaleInfoW(GetSystemDefaultLCID(), LOCALE_SSHORTDATE, wideOf(format).c_str()) != 0;
}

std::string QtMachine::systemDirectory() {
    std::array<wchar_t, MAX_PATH> buffer{};
    const UINT length = GetSystemDirectoryW(buffer.data(), static_cast<UINT>(buffer.size()));
    const std::string path =
        utf8Of({buffer.data(), length < buffer.size() ? length : std::size_t{0}});
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
