#include "desk/desk_application.h"

#include "platform/message_boxes.h"
#include "platform/qt/input_gate.h"
#include "widgets/desk_context.h"
#include "widgets/gesture_filter.h"
#include "widgets/look.h"

namespace tarn {

DeskApplication::DeskApplication(int& argc, char** argv) : QApplication(argc, argv) {
    setApplicationName(QStringLiteral("TarnEmissao"));
    setQuitOnLastWindowClosed(false);  // the program ends where it says so, nowhere else
    new GestureFilter(*this);
    applyLook(*this);
}

bool DeskApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        if (!report_) {
            throw;
        }
        report_(std::current_exception());
        return false;
    }
}

void reportError(const DeskContext& desk, const std::exception_ptr& error) {
    const TicksWait noTicks(InputGate::ofApplication());
    Box box;
    box.icon = BoxIcon::Critical;
    try {
        std::rethrow_exception(error);
    } catch (const RuntimeError& known) {
        box.text = reportText(known, dynamic_cast<const ErrorAfterNote*>(&known) != nullptr);
    } catch (const std::exception& other) {
        box.text = std::string(
                       "Aconteceu um erro inesperado e o programa será encerrado. Anote o "
                       "texto abaixo e fale com o suporte.\r\r") +
                   other.what();
    }
    if (!desk.end.ended()) {
        desk.environment.boxes.show(box);
    }
    desk.end.endProgram(runtimeErrorStatus);
}

}  // namespace tarn
