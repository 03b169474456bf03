#pragma once

#include <chrono>

namespace tarn {

// How long a server is waited for: decision D124. What takes longer is a failed load.
struct TimeLimits {
    std::chrono::milliseconds connect{30'000};
    std::chrono::seconds silence{120};  // without a byte, from the request on
};

}  // namespace tarn
