// Today and now, by the machine's own clock.
#pragma once

#include "platform/clock.h"

namespace tarn {

class QtClock : public Clock {
public:
    Date today() override;
    TimeOfDay timeOfDay() override;
};

}  // namespace tarn
