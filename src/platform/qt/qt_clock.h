// Today, by the machine's own calendar.
#pragma once

#include "platform/clock.h"

namespace tarn {

class QtClock : public Clock {
public:
    Date today() override;
};

}  // namespace tarn
