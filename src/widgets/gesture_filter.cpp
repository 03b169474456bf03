#include "widgets/gesture_filter.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QStyleHints>
#include <QWindow>

#include "platform/qt/acting_keys.h"
#include "platform/qt/input_gate.h"

namespace tarn {
namespace {

constexpr quint64 stillHeldMs = 50;
constexpr quint64 lostReleaseMs = 1000;
constexpr int restMs = 1500;
constexpr int tremor = 3;  // pixels by which a resting hand moves the pointer

// A held key of an unmarked stroke is told from a new one by its time; window systems
// count it in 32 bits of milliseconds, which run over.
quint64 since(quint64 then, quint64 now) {
    return static_cast<quint32>(now - then);
}

QPoint globalOf(const QMouseEvent& event) {
    return event.globalPosition().toPoint();
}

// Scroll arrows and the like are meant to be clicked fast.
bool isButton(const QObject* receiver) {
    const auto* button = qobject_cast<const QAbstractButton*>(receiver);
    return (button != nullptr && !button->autoRepeat()) ||
           qobject_cast<const QMenu*>(receiver) != nullptr;
}

bool isList(const QObject* receiver) {
    return qobject_cast<const QAbstractItemView*>(receiver->parent()) != nullptr;
}

}  // namespace

GestureFilter::KeyId GestureFilter::idOf(const QKeyEvent& stroke) {
    const quint32 code = stroke.nativeScanCode();
    return {code, code != 0 ? 0 : stroke.key()};
}

GestureFilter::GestureFilter(QApplication& application)
    : QObject(&application), gate_(InputGate::ofApplication()) {
    application.installEventFilter(this);
}

void GestureFilter::ignoreClicksHere(QAbstractButton& button) {
    resting_ = &button;
    restingAt_ = pointer_;
    restingUntil_ = QDeadlineTimer(restMs);
}

bool GestureFilter::eventFilter(QObject* receiver, QEvent* event) {
    switch (event->type()) {
        case QEvent::ShortcutOverride:
            // Taken here, it runs no shortcut; the press that follows is dropped too.
            if (dropsStroke(receiver, static_cast<const QKeyEvent&>(*event))) {
                event->accept();
                return true;
            }
            return false;
        case QEvent::KeyPress:
            return dropsStroke(receiver, static_cast<const QKeyEvent&>(*event)) ||
                   pressesButton(receiver, static_cast<const QKeyEvent&>(*event));
        case QEvent::KeyRelease:
            released(static_cast<const QKeyEvent&>(*event));
            return false;
        case QEvent::MouseMove:
            pointerAt(globalOf(static_cast<const QMouseEvent&>(*event)));
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return dropsPress(receiver, static_cast<const QMouseEvent&>(*event));
        case QEvent::MouseButtonRelease:
            return dropsRelease(receiver);
        default:
            return false;
    }
}

GestureFilter::Key GestureFilter::judged(const QKeyEvent& stroke, QWidget* target) {
    if (stroke.timestamp() == 0) {
        return {.held = stroke.isAutoRepeat(), .target = target};
    }
    const quint64 now = stroke.timestamp();
    const auto [known, first] = keys_.try_emplace(idOf(stroke));
    Key& key = known->second;
    if (!first && key.pressedAt == now) {
        return key;  // the same stroke on its way through the widgets
    }
    key.held = stroke.isAutoRepeat();
    if (!key.held && !first) {
        key.held = key.released ? since(key.releasedAt, now) < stillHeldMs
                                : since(key.pressedAt, now) < lostReleaseMs;
    }
    if (!key.held) {
        key.target = target;
    }
    key.pressedAt = now;
    key.released = false;
    return key;
}

void GestureFilter::released(const QKeyEvent& stroke) {
    if (stroke.timestamp() == 0 || stroke.isAutoRepeat()) {
        return;
    }
    Key& key = keys_[idOf(stroke)];
    key.releasedAt = stroke.timestamp();
    key.released = true;
}

bool GestureFilter::dropsStroke(QObject* receiver, const QKeyEvent& stroke) {
    QWidget* target = keyTarget(receiver);
    const Key key = judged(stroke, target);
    if (!key.held) {
        resting_.clear();
        return false;
    }
    return acts(stroke, target) || (isEnter(stroke) && key.target != target);
}

bool GestureFilter::pressesButton(QObject* receiver, const QKeyEvent& stroke) {
    auto* button = qobject_cast<QPushButton*>(receiver);
    if (button == nullptr || !isEnter(stroke) || gate_.isShut()) {
        return false;
    }
    button->click();
    return true;
}

// The same press passes here as an event of the native window and as one of the widget.
void GestureFilter::count(QObject* receiver, const QMouseEvent& press) {
    const QPoint where = globalOf(press);
    const QWidget* top = topLevelOf(receiver);
    QWindow* window = top != nullptr ? top->windowHandle() : qobject_cast<QWindow*>(receiver);
    const bool timed = press.timestamp() != 0 && click_.count > 0;
    if (timed && click_.at == press.timestamp()) {
        return;
    }
    const QStyleHints& hints = *QGuiApplication::styleHints();
    const bool again = timed && click_.button == press.button() &&
                       since(click_.at, press.timestamp()) <
                           static_cast<quint64>(hints.mouseDoubleClickInterval()) &&
                       (where - click_.where).manhattanLength() <= hints.mouseDoubleClickDistance();
    if (!again) {
        click_ = {};
        click_.button = press.button();
        click_.window = window;
    }
    click_.at = press.timestamp();
    click_.where = where;
    ++click_.count;
    click_.elsewhere = click_.window != window;
}

bool GestureFilter::dropsPress(QObject* receiver, const QMouseEvent& press) {
    pointerAt(globalOf(press));
    count(receiver, press);
    const bool later = click_.count > 1 || press.type() == QEvent::MouseButtonDblClick;
    if (!receiver->isWidgetType()) {
        // What the gate would hold is judged when it comes to its widget, by then without
        // a time: only a double click is still known for one.
        return click_.count > 2 && gate_.isShut();
    }
    pressDropped_ = isImpatient(receiver) || (click_.count > 1 && click_.elsewhere) ||
                    (later && isButton(receiver)) || (click_.count > 2 && isList(receiver));
    return pressDropped_;
}

bool GestureFilter::dropsRelease(QObject* receiver) {
    if (!receiver->isWidgetType()) {
        return false;
    }
    return pressDropped_ || (click_.count > 1 && isList(receiver));
}

bool GestureFilter::isImpatient(const QObject* receiver) const {
    return resting_ != nullptr && receiver == resting_ && !restingUntil_.hasExpired();
}

void GestureFilter::pointerAt(const QPoint& where) {
    pointer_ = where;
    if ((where - restingAt_).manhattanLength() > tremor) {
        resting_.clear();
    }
}

void ignoreClicksHere(QAbstractButton& button) {
    if (auto* filter = qApp->findChild<GestureFilter*>()) {
        filter->ignoreClicksHere(button);
    }
}

}  // namespace tarn
