// The proxy that the settings of Windows name.
#pragma once

#include <string>

namespace tarn {

// For an address, as libcurl takes it; empty where it is asked directly, or where the
// environment names one, which libcurl follows itself. Asks the network where the settings
// are a script or are to be found there.
std::string systemProxy(const std::string& address);

}  // namespace tarn
