// The part that speaks to the server, with libcurl.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/http_loader.h"

namespace tarn {

// CurlLoader's, but that the part is loaded. Raises std::runtime_error where it can't be.
std::unique_ptr<HttpLoader> newNetworkLoader(std::function<bool(const std::string&)> onlyReads);

}  // namespace tarn

// What the part gives away.
extern "C" tarn::HttpLoader* tarnNewNetworkLoader(
    std::function<bool(const std::string&)>* onlyReads);
