#include "platform/qt/input_gate.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QEvent>
#include <algorithm>
#include <utility>

namespace tarn {
namespace {

bool isInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::NonClientAreaMouseButtonPress:
        case QEvent::NonClientAreaMouseButtonRelease:
        case QEvent::NonClientAreaMouseButtonDblClick:
        case QEvent::NonClientAreaMouseMove:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::InputMethod:
        case QEvent::Wheel:
        case QEvent::ContextMenu:
        case QEvent::Close:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::NativeGesture:
        case QEvent::DragEnter:
        case QEvent::DragMove:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

// A button that an access key holds down clicks when its timer ticks; the timer ticks
// again until it may.
bool isHeldClick(const QObject* receiver, QEvent::Type type) {
    return type == QEvent::Timer && qobject_cast<const QAbstractButton*>(receiver) != nullptr;
}

// A close that is discarded must read as refused, a shortcut as taken.
void settle(QEvent* event) {
    if (event->type() == QEvent::Close || event->type() == QEvent::DragEnter) {
        event->ignore();
    } else {
        event->accept();
    }
}

}  // namespace

InputGate::InputGate() {
    lateTimersTurn_.setObjectName(QStringLiteral("lateTimersTurn"));
    lateTimersTurn_.setSingleShot(true);
    connect(&lateTimersTurn_, &QTimer::timeout, this, &InputGate::fireLateTimers);
}

void InputGate::shut() {
    shut_ = true;
    QCoreApplication::instance()->installEventFilter(this);
}

void InputGate::open() {
    QCoreApplication::instance()->removeEventFilter(this);
    shut_ = false;
    if (!late_.empty()) {
        lateTimersTurn_.start(0);
    }
}

bool InputGate::eventFilter(QObject* receiver, QEvent* event) {
    if (isInput(event->type())) {
        settle(event);
        return true;
    }
    if (isHeldClick(receiver, event->type())) {
        return true;
    }
    if (event->type() == QEvent::Timer && !receiver->objectName().isEmpty()) {
        if (auto* timer = qobject_cast<QTimer*>(receiver)) {
            putOff(timer);
            return true;
        }
    }
    return false;
}

void InputGate::putOff(QTimer* timer) {
    if (timer == &lateTimersTurn_) {
        lateTimersTurn_.stop();  // open() starts it again
    } else if (std::find(late_.begin(), late_.end(), timer) == late_.end()) {
        late_.emplace_back(timer);
    }
}

void InputGate::fireLateTimers() {
    for (const QPointer<QTimer>& timer : std::exchange(late_, {})) {
        if (timer && timer->isActive()) {
            QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
        }
    }
}

}  // namespace tarn
