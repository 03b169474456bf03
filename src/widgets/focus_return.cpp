#include "widgets/focus_return.h"

#include <QDialog>
#include <QEvent>

namespace tarn {

FocusReturn::FocusReturn(QObject& application) : QObject(&application) {
    application.installEventFilter(this);
}

// A window that was just told to take the keyboard may close before it got it.
bool FocusReturn::eventFilter(QObject* receiver, QEvent* event) {
    if (event->type() == QEvent::WindowActivate && receiver == asked_) {
        asked_.clear();
    }
    if (event->type() != QEvent::Hide || event->spontaneous()) {
        return false;
    }
    const auto* closing = qobject_cast<QDialog*>(receiver);
    if (closing == nullptr || !closing->isModal() || closing->parentWidget() == nullptr ||
        !(closing->isActiveWindow() || closing == asked_)) {
        return false;
    }
    QWidget* behind = closing->parentWidget()->window();
    if (behind->isVisible()) {
        asked_ = behind;
        behind->activateWindow();
    }
    return false;
}

}  // namespace tarn
