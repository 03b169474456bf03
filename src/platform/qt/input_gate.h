// What becomes of keys and clicks while the program works: nothing typed is lost, and
// nothing acts that was meant for what stood there before.
//
// While the gate is shut windows repaint, but get no input.
//   - What edits (acting_keys.h, and what an input method brings) is held in order and
//     typed later into the window it was meant for, beginning at the field that had the
//     focus. Only the end of that window loses it.
//   - Keys and clicks that act are dropped. Where nobody asked for the work (Unasked
//     below) they are held as well, except those on the part of the screen that the work
//     may have changed under them.
//   - The release of a key or mouse button pressed before finds nothing pressed any more,
//     unless it is held.
// "Later" is when the event handler that shut the gate is over, with every box that it
// opened, and the window is active again. What comes in until all of it is typed queues up
// behind; where typing it begins new work the rest waits for that too.
//
// An access key presses its button with a delay; that waits also while a modal window
// stands in front of the button.
//
// Ticks (tick.h) wait while the gate is shut and while a TicksWait lives.
#pragma once

#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <list>
#include <memory>
#include <vector>

class QKeyEvent;
class QMouseEvent;

namespace tarn {

class InputGate : public QObject {
    Q_OBJECT

public:
    // The gate of the running QApplication, whose input is one like its focus: made by
    // the first call, gone with the application.
    static InputGate& ofApplication();

    void shut();
    void open();
    bool isShut() const { return shut_ > 0; }
    // Open, and nothing held that is still to be typed.
    bool isQuiet() const { return !isShut() && held_.empty(); }

    // Closing this window ends the program: it is closed also while the gate is shut.
    void letClose(QWidget& window) { closing_ = &window; }

    bool ticksWait() const { return isShut() || ticksWait_ > 0; }

signals:
    // Ticks that came due meanwhile may fire. Told by the event loop, not from within the
    // end of the wait.
    void ticksMayFire();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    friend class TicksWait;
    friend class Unasked;

    // Work that began in an event handler of the event loop of that depth.
    struct Routine {
        int level = 0;
        QPointer<QWidget> focus;
    };
    struct Held {
        std::unique_ptr<QEvent> event;
        QPointer<QObject> receiver;
        QPointer<QWidget> window;
        int level = 0;        // of the routine that it waits for
        bool mayAct = false;  // whatever has the focus by then
    };

    explicit InputGate(QObject* application);

    void beginRoutine();
    void endRoutine(int level);
    bool isUnderWay(int level) const;

    bool takes(QObject* receiver, QEvent* event);
    void takeKey(QObject* receiver, const QKeyEvent& key);
    bool takesRelease(QObject* receiver, const QMouseEvent& release);
    bool holdsActsOn(const QWidget* target) const;
    void hold(QObject* receiver, const QEvent& event, int level, bool mayAct);
    bool queuesUp(QObject* receiver, QEvent* event);
    const Held* lastHeldFor(const QWidget* window) const;

    void typeOn();
    void typeNext();
    std::list<Held>::iterator nextToType();
    static void deliver(const Held& held);

    void ticksWaitEnds();
    void tellTicks();

    int shut_ = 0;
    int level_ = 0;             // of the routine that shut the gate
    bool pressStands_ = false;  // a mouse button's, from before the gate was shut
    bool pressHeld_ = false;
    std::vector<Routine> routines_;
    std::list<Held> held_;
    bool typingOn_ = false;
    int typingLevel_ = -1;  // of the event loop from which something held is being typed
    QPointer<QWidget> closing_;
    int unasked_ = 0;
    QPointer<QWidget> changing_;
    int ticksWait_ = 0;
};

// The gate shut for as long as this lives.
class ShutGate {
public:
    explicit ShutGate(InputGate& gate) : gate_(gate) { gate_.shut(); }
    ~ShutGate() { gate_.open(); }
    ShutGate(const ShutGate&) = delete;
    ShutGate& operator=(const ShutGate&) = delete;

private:
    InputGate& gate_;
};

// Work that no gesture asked for: keys and clicks that act are held with the rest, but
// dropped where they are meant for `changing` or a part of it.
class Unasked {
public:
    explicit Unasked(InputGate& gate, QWidget* changing = nullptr);
    ~Unasked();
    Unasked(const Unasked&) = delete;
    Unasked& operator=(const Unasked&) = delete;

private:
    InputGate& gate_;
    QPointer<QWidget> before_;
};

// While one of these lives no tick fires; one that came due fires once afterwards.
class TicksWait {
public:
    explicit TicksWait(InputGate& gate) : gate_(gate) { ++gate_.ticksWait_; }
    ~TicksWait() { gate_.ticksWaitEnds(); }
    TicksWait(const TicksWait&) = delete;
    TicksWait& operator=(const TicksWait&) = delete;

private:
    InputGate& gate_;
};

}  // namespace tarn
