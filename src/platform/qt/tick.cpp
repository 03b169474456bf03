#include "platform/qt/tick.h"

#include <utility>

namespace tarn {

Tick::Tick(int intervalMs, QObject* parent) : QObject(parent) {
    timer_.setInterval(intervalMs);
    connect(&timer_, &QTimer::timeout, this, &Tick::due);
    connect(&gate_, &InputGate::ticksMayFire, this, &Tick::fireLate);
}

void Tick::stop() {
    timer_.stop();
    late_ = false;
}

void Tick::due() {
    if (gate_.ticksWait()) {
        late_ = true;
    } else {
        emit ticked();
    }
}

void Tick::fireLate() {
    if (std::exchange(late_, false)) {
        emit ticked();
    }
}

}  // namespace tarn
