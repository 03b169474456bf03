#include "platform/qt/input_gate.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QThread>
#include <algorithm>

#include "platform/qt/acting_keys.h"
#include "platform/qt/input_events.h"

// Tries the shortcuts with a stroke as the window system's way does; QtGui exports it for
// QTest, and offers no other door.
// NOLINTNEXTLINE(readability-identifier-naming)
extern Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* receiver, ulong timestamp, int key,
                                                      Qt::KeyboardModifiers modifiers,
                                                      const QString& text, bool isAutoRepeat,
                                                      ushort count);

namespace tarn {
namespace {

int loopLevel() {
    return QThread::currentThread()->loopLevel();
}

// A button that an access key holds down clicks when its timer ticks; the timer ticks
// again until it may.
bool isHeldClick(const QObject* receiver, QEvent::Type type) {
    return type == QEvent::Timer && qobject_cast<const QAbstractButton*>(receiver) != nullptr;
}

bool isBehindModal(const QObject* receiver) {
    const QWidget* modal = QApplication::activeModalWidget();
    const auto* widget = qobject_cast<const QWidget*>(receiver);
    while (widget != nullptr && widget != modal) {
        widget = widget->parentWidget();
    }
    return modal != nullptr && widget == nullptr;
}

bool isActive(const QWidget& window) {
    return window.isActiveWindow() || QApplication::activePopupWidget() == &window;
}

QWidget* mouseTarget(QObject* receiver, const QMouseEvent& event) {
    QWidget* top = topLevelOf(receiver);
    if (receiver->isWidgetType() || top == nullptr) {
        return qobject_cast<QWidget*>(receiver);
    }
    QWidget* child = top->childAt(event.position().toPoint());
    return child != nullptr ? child : top;
}

bool takesTyping(const QWidget* widget) {
    return widget != nullptr && widget->isVisible() && widget->isEnabled() &&
           qobject_cast<const QAbstractButton*>(widget) == nullptr;
}

}  // namespace

InputGate& InputGate::ofApplication() {
    if (auto* gate = qApp->findChild<InputGate*>({}, Qt::FindDirectChildrenOnly)) {
        return *gate;
    }
    return *new InputGate(qApp);
}

InputGate::InputGate(QObject* application) : QObject(application) {
    application->installEventFilter(this);
}

void InputGate::shut() {
    if (shut_++ == 0) {
        pressHeld_ = false;
        pressStands_ = QGuiApplication::mouseButtons() != Qt::NoButton;
        beginRoutine();
    }
}

void InputGate::open() {
    if (--shut_ == 0) {
        typeOn();
        tellTicks();
    }
}

// An object that is deleted "later" goes when the event loop has control again that runs
// now; those of boxes opened meanwhile are deeper.
void InputGate::beginRoutine() {
    level_ = loopLevel();
    if (isUnderWay(level_)) {
        return;
    }
    routines_.push_back({level_, QApplication::focusWidget()});
    auto* end = new QObject;
    connect(end, &QObject::destroyed, this, [this, level = level_] { endRoutine(level); });
    end->deleteLater();
}

void InputGate::endRoutine(int level) {
    const auto ended = std::find_if(routines_.begin(), routines_.end(),
                                    [level](const Routine& one) { return one.level == level; });
    const QPointer<QWidget> focus = ended->focus;
    routines_.erase(ended);
    const bool typed = std::any_of(held_.begin(), held_.end(), [&](const Held& held) {
        return held.level == level && focus != nullptr && held.window == focus->window();
    });
    if (typed && takesTyping(focus)) {
        focus->setFocus(Qt::OtherFocusReason);
    }
    typeOn();
}

bool InputGate::isUnderWay(int level) const {
    return std::any_of(routines_.begin(), routines_.end(),
                       [level](const Routine& one) { return one.level == level; });
}

bool InputGate::eventFilter(QObject* receiver, QEvent* event) {
    const QEvent::Type type = event->type();
    if (isHeldClick(receiver, type)) {
        return isShut() || isBehindModal(receiver);
    }
    if (type == QEvent::WindowActivate) {
        typeOn();
    }
    if (!isInput(type)) {
        return false;
    }
    return isShut() ? takes(receiver, event) : queuesUp(receiver, event);
}

// Whether the event ends here. Besides the end of the program only a release may go on,
// and then to something that isn't pressed any more.
bool InputGate::takes(QObject* receiver, QEvent* event) {
    const QEvent::Type type = event->type();
    if (type == QEvent::Close && closing_ != nullptr && topLevelOf(receiver) == closing_) {
        return false;
    }
    settle(event);
    switch (type) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            takeKey(receiver, static_cast<const QKeyEvent&>(*event));
            return true;
        case QEvent::InputMethod:
            hold(receiver, *event, level_, false);
            return true;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            pressHeld_ = holdsActsOn(mouseTarget(receiver, static_cast<QMouseEvent&>(*event)));
            if (pressHeld_) {
                hold(receiver, *event, level_, true);
            }
            return true;
        case QEvent::MouseButtonRelease:
            return takesRelease(receiver, static_cast<const QMouseEvent&>(*event));
        default:
            return true;
    }
}

void InputGate::takeKey(QObject* receiver, const QKeyEvent& key) {
    QWidget* target = keyTarget(receiver);
    const bool mayAct = holdsActsOn(target);
    if (edits(key, target) || (mayAct && !isModifierKey(key))) {
        hold(receiver, key, level_, mayAct);
    } else if (auto* button = qobject_cast<QAbstractButton*>(target);
               button != nullptr && key.type() == QEvent::KeyRelease) {
        button->setDown(false);
    }
}

bool InputGate::takesRelease(QObject* receiver, const QMouseEvent& release) {
    const bool stands = pressStands_;
    if (std::exchange(pressHeld_, false) ||
        (stands && holdsActsOn(mouseTarget(receiver, release)))) {
        hold(receiver, release, level_, true);
        pressStands_ = false;
        return true;
    }
    if (!receiver->isWidgetType()) {
        return !stands;  // the widget's own release follows
    }
    pressStands_ = false;
    if (auto* button = qobject_cast<QAbstractButton*>(receiver)) {
        button->setDown(false);
        return false;
    }
    return !stands || !onlyEndsDrag(receiver);
}

bool InputGate::holdsActsOn(const QWidget* target) const {
    return unasked_ > 0 && (changing_ == nullptr || target == nullptr ||
                            (changing_ != target && !changing_->isAncestorOf(target)));
}

// What comes in while something held for its window is still to be typed.
bool InputGate::queuesUp(QObject* receiver, QEvent* event) {
    if (held_.empty() || !keepsOrder(event->type()) || loopLevel() == typingLevel_) {
        return false;
    }
    const Held* before = lastHeldFor(topLevelOf(receiver));
    if (before == nullptr) {
        return false;
    }
    event->accept();
    if (event->type() != QEvent::ShortcutOverride) {
        hold(receiver, *event, before->level, true);
    }
    typeOn();
    return true;
}

void InputGate::hold(QObject* receiver, const QEvent& event, int level, bool mayAct) {
    std::unique_ptr<QEvent> copy(event.clone());
    if (copy->isInputEvent()) {
        // Judged as a gesture when it came; its time isn't that of its typing.
        static_cast<QInputEvent&>(*copy).setTimestamp(0);
    }
    QWidget* window = QApplication::activePopupWidget();
    if (window == nullptr || isMouse(event.type())) {
        window = topLevelOf(receiver);
    }
    held_.push_back({std::move(copy), receiver, window, level, mayAct});
}

const InputGate::Held* InputGate::lastHeldFor(const QWidget* window) const {
    const auto last = std::find_if(held_.rbegin(), held_.rend(), [window](const Held& held) {
        return window != nullptr && held.window == window;
    });
    return last == held_.rend() ? nullptr : &*last;
}

void InputGate::typeOn() {
    if (!held_.empty() && !std::exchange(typingOn_, true)) {
        QMetaObject::invokeMethod(this, &InputGate::typeNext, Qt::QueuedConnection);
    }
}

// One stroke in each turn of the event loop, so that what it sets off comes before the
// next one.
void InputGate::typeNext() {
    typingOn_ = false;
    if (isShut()) {
        return;
    }
    const auto next = nextToType();
    if (next == held_.end()) {
        return;
    }
    const Held held = std::move(*next);
    held_.erase(next);
    {
        const QScopedValueRollback<int> typing(typingLevel_, loopLevel());
        deliver(held);
    }
    typeOn();
}

// The first that needn't wait, for its routine's end, its window's return or another one
// before it.
std::list<InputGate::Held>::iterator InputGate::nextToType() {
    held_.remove_if([](const Held& held) {
        return held.receiver == nullptr || held.window == nullptr || !held.window->isVisible();
    });
    std::vector<const QWidget*> waiting;
    return std::find_if(held_.begin(), held_.end(), [&](const Held& held) {
        const bool waits = isUnderWay(held.level) ||
                           (!isMouse(held.event->type()) && !isActive(*held.window)) ||
                           std::find(waiting.begin(), waiting.end(), held.window) != waiting.end();
        if (waits) {
            waiting.push_back(held.window);
        }
        return !waits;
    });
}

void InputGate::deliver(const Held& held) {
    QEvent& event = *held.event;
    if (isMouse(event.type())) {
        qApp->notify(held.receiver, &event);
        return;
    }
    QWidget* target = held.window->focusWidget();
    if (target == nullptr) {
        target = held.window;
    }
    if (event.type() == QEvent::KeyPress) {
        const auto& stroke = static_cast<const QKeyEvent&>(event);
        if (!held.mayAct && !edits(stroke, target)) {
            return;
        }
        if (acts(stroke, target) &&
            qt_sendShortcutOverrideEvent(target, 0, stroke.key(), stroke.modifiers(), stroke.text(),
                                         stroke.isAutoRepeat(),
                                         static_cast<ushort>(stroke.count()))) {
            return;
        }
    }
    qApp->notify(target, &event);
}

void InputGate::ticksWaitEnds() {
    --ticksWait_;
    tellTicks();
}

void InputGate::tellTicks() {
    if (ticksWait()) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (!ticksWait()) {
                emit ticksMayFire();
            }
        },
        Qt::QueuedConnection);
}

Unasked::Unasked(InputGate& gate, QWidget* changing) : gate_(gate), before_(gate.changing_) {
    ++gate_.unasked_;
    gate_.changing_ = changing;
}

Unasked::~Unasked() {
    --gate_.unasked_;
    gate_.changing_ = before_;
}

}  // namespace tarn
