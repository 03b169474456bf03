// Work that may take its time, done beside the windows.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <functional>

#include "platform/qt/input_gate.h"

class QEventLoop;

namespace tarn {

// One thread, the same for all work, since libraries remember things by thread. Work that
// is over in no time is waited for; while longer work lasts the calling (GUI) thread turns
// its event loop behind a shut InputGate, hourglass on every window.
class SideThread {
public:
    SideThread();

    // Until `work` is done; throws what it throws.
    void run(const std::function<void()>& work);

private:
    void wait();
    void end(int number);

    InputGate& gate_ = InputGate::ofApplication();
    QObject here_;
    QEventLoop* waiting_ = nullptr;
    int number_ = 0;    // of the work that was begun last
    QThreadPool pool_;  // the first to go: it waits for its thread
};

}  // namespace tarn
