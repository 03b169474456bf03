// While a request or a long run is under way nothing typed or clicked counts and no
// timer of a screen fires; windows still repaint.
#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <vector>

namespace tarn {

class InputGate : public QObject {
    Q_OBJECT

public:
    InputGate();

    // From shut to open everything typed and clicked is discarded, and a tick of a
    // screen's timer (a QTimer with an object name) waits; a timer that came due more
    // than once ticks once. A button pressed by its access key before then clicks when
    // the gate is open.
    void shut();
    void open();
    bool isShut() const { return shut_; }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    void putOff(QTimer* timer);
    void fireLateTimers();

    bool shut_ = false;
    std::vector<QPointer<QTimer>> late_;
    QTimer lateTimersTurn_;
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

}  // namespace tarn
