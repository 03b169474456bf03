#include "desk/report.h"

#include <QApplication>
#include <QThread>
#include <cstdlib>
#include <iostream>
#include <string>

#include "platform/qt/qt_message_boxes.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

void writeLine(const std::string& text, const std::string& ofLibrary) {
    std::string line = "tarnemissao: " + replaceAll(text, "\r\r", " ");
    if (!ofLibrary.empty()) {
        line += " (" + ofLibrary + ")";
    }
    std::cerr << forTerminal(line) << std::endl;
}

Box boxOf(const std::exception& error) {
    const bool known = dynamic_cast<const RuntimeError*>(&error) != nullptr;
    Box box{.text = reportText(error), .icon = BoxIcon::Critical};
    writeLine(box.text, known ? "" : error.what());
    return box;
}

int report(const std::exception_ptr& error) {
    const Box box = reportOf(error);
    const bool canShow = qApp != nullptr && QThread::currentThread() == qApp->thread();
    if (canShow) {
        QtMessageBoxes().show(box);
    }
    return runtimeErrorStatus;
}

[[noreturn]] void endByReport() {
    report(std::current_exception());
    std::_Exit(runtimeErrorStatus);
}

}  // namespace

Box reportOf(const std::exception_ptr& error) {
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& known) {
        return boxOf(known);
    } catch (...) {
        return boxOf(std::runtime_error("?"));
    }
}

int reportingErrors(const std::function<int()>& program) {
    try {
        return program();
    } catch (...) {
        return report(std::current_exception());
    }
}

void reportUncaughtErrors() {
    std::set_terminate(endByReport);
}

}  // namespace tarn
