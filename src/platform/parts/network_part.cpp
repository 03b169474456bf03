#include "platform/parts/network_part.h"

#include <utility>

#ifndef TARN_ONE_PIECE
#include "platform/parts/part.h"
#endif

namespace tarn {
namespace {

auto* creator() {
#ifdef TARN_ONE_PIECE
    return &tarnNewNetworkLoader;
#else
    return reinterpret_cast<decltype(&tarnNewNetworkLoader)>(
        Part(fileOfPart("tarn_network")).function("tarnNewNetworkLoader"));
#endif
}

}  // namespace

std::unique_ptr<HttpLoader> newNetworkLoader(std::function<bool(const std::string&)> onlyReads) {
    return std::unique_ptr<HttpLoader>(creator()(&onlyReads));
}

}  // namespace tarn
