#include "platform/qt/qt_message_boxes.h"

#include <QApplication>
#include <QMainWindow>
#include <QWindow>

#include "platform/qt/box_window.h"

#include "platform/qt/input_gate.h"

namespace tarn {
namespace {

QWidget* mainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(window) != nullptr && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

// Also of a program whose windows all lie behind another program's.
QWidget* windowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    if (QWidget* active = QApplication::activeWindow()) {
        return active;
    }
    return mainWindow();
}

// An arrow over the box, also when a routine that shows the hourglass asks.
class ArrowCursor {
public:
    ArrowCursor() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowCursor() { QGuiApplication::restoreOverrideCursor(); }
    ArrowCursor(const ArrowCursor&) = delete;
    ArrowCursor& operator=(const ArrowCursor&) = delete;
};

}  // namespace

QtMessageBoxes::QtMessageBoxes() : hadKeyboard_(QGuiApplication::focusWindow() != nullptr) {
    QObject::connect(
        qGuiApp, &QGuiApplication::focusWindowChanged, &watch_,
        [this](const QWindow* window) { hadKeyboard_ = hadKeyboard_ || window != nullptr; });
}

bool QtMessageBoxes::isElsewhere() const {
    return hadKeyboard_ && QGuiApplication::focusWindow() == nullptr;
}

BoxAnswer QtMessageBoxes::show(const Box& box) {
    const TicksWait noTicks(InputGate::ofApplication());
    const ArrowCursor arrow;
    QWidget* behind = windowInFront();
    BoxWindow window(box, behind);
    if (behind != nullptr && isElsewhere()) {
        window.setAttribute(Qt::WA_ShowWithoutActivating);
        QApplication::alert(behind);
    }
    return window.ask();
}

}  // namespace tarn
