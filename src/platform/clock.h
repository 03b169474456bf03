// Seam: today, and the time of day.
#pragma once

#include "runtime/dates.h"

namespace tarn {

struct TimeOfDay {
    int hour = 0;
    int minute = 0;
};

class Clock {
public:
    virtual ~Clock() = default;
    virtual Date today() = 0;
    virtual TimeOfDay timeOfDay() = 0;
};

}  // namespace tarn
