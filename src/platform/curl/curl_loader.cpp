#include "platform/curl/curl_loader.h"

#include <utility>

#include "platform/curl/line.h"
#include "platform/request_line.h"

namespace tarn {
namespace {

constexpr int mostRedirects = 20;  // what browsers allow
constexpr long ok = 200;           // nobody asks for a part, and none is taken for the whole

}  // namespace

CurlLoader::CurlLoader(const TimeLimits& limits, OnlyReads onlyReads,
                       const std::string& authorities)
    : onlyReads_(std::move(onlyReads)), line_(std::make_unique<Line>(limits, authorities)) {}

CurlLoader::~CurlLoader() = default;

void CurlLoader::close() {
    line_->close();
}

HttpAnswer CurlLoader::get(const std::string& address) {
    const int mostHops = onlyReads_ && onlyReads_(address) ? mostRedirects : 0;
    std::string asked = moved_.addressNow(requestLine(address));
    for (int hops = 0;; ++hops) {
        LineAnswer answer = line_->ask(asked);
        if (answer.redirect.empty()) {
            const bool loaded = answer.arrived && answer.status == ok;
            return {.loaded = loaded, .body = loaded ? std::move(answer.body) : std::string()};
        }
        if (hops == mostHops || !mayFollow(asked, answer.redirect)) {
            return {};
        }
        moved_.learn(asked, answer.redirect, answer.status);
        asked = std::move(answer.redirect);
    }
}

}  // namespace tarn
