#include <utility>

#include "platform/curl/curl_loader.h"
#include "platform/parts/network_part.h"

extern "C" tarn::HttpLoader* tarnNewNetworkLoader(
    std::function<bool(const std::string&)>* onlyReads) {
    return std::make_unique<tarn::CurlLoader>(tarn::TimeLimits(), std::move(*onlyReads)).release();
}
