#include "desk/desk_application.h"

#include "desk/report.h"
#include "platform/message_boxes.h"
#include "platform/qt/input_gate.h"
#include "runtime/runtime_error.h"
#include "widgets/desk_context.h"
#include "widgets/focus_return.h"
#include "widgets/gesture_filter.h"
#include "widgets/look.h"
#include "widgets/manual.h"

namespace tarn {

DeskApplication::DeskApplication(int& argc, char** argv)
    : QApplication(argc, argv), manualKey_(new ManualKey(*this)) {
    setApplicationName(QStringLiteral("TarnEmissao"));
    setQuitOnLastWindowClosed(false);  // the program ends where it says so, nowhere else
    new GestureFilter(*this);
    new FocusReturn(*this);
    applyLook(*this);
}

bool DeskApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const ProgramEnded&) {
        return false;
    } catch (...) {
        if (!report_) {
            throw;
        }
        report_(std::current_exception());
        return false;
    }
}

// What was under way when the error came is over; nothing new may begin under the box.
void reportError(const DeskContext& desk, const std::exception_ptr& error) {
    if (desk.end.ended() || desk.end.failing()) {
        return;
    }
    desk.end.failWith(runtimeErrorStatus);
    const TicksWait noTicks(InputGate::ofApplication());
    try {
        desk.environment.boxes.show(reportOf(error));
    } catch (const ProgramEnded&) {  // the desk was closed under the box
    }
    desk.end.endProgram(runtimeErrorStatus);
}

}  // namespace tarn
