// Seam: today.
#pragma once

#include "runtime/dates.h"

namespace tarn {

class Clock {
public:
    virtual ~Clock() = default;
    virtual Date today() = 0;
};

}  // namespace tarn
