// A timer of a screen that fires only where nothing is under way: not during a request,
// not under a message box (InputGate). What came due meanwhile, however often, fires once
// afterwards.
#pragma once

#include <QObject>
#include <QTimer>

#include "platform/qt/input_gate.h"

namespace tarn {

class Tick : public QObject {
    Q_OBJECT

public:
    Tick(int intervalMs, QObject* parent);

    void start() { timer_.start(); }
    int interval() const { return timer_.interval(); }
    void setInterval(int milliseconds) { timer_.setInterval(milliseconds); }
    // A tick that waits is forgotten.
    void stop();
    bool isActive() const { return timer_.isActive(); }

signals:
    void ticked();

private:
    void due();
    void fireLate();

    InputGate& gate_ = InputGate::ofApplication();
    QTimer timer_;
    bool late_ = false;
};

}  // namespace tarn
