// HttpLoader over libcurl: http and https, certificates verified, proxy from the
// environment, compressed answers unpacked.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/curl/redirect.h"
#include "platform/curl/time_limits.h"
#include "platform/http_loader.h"

namespace tarn {

class Line;

class CurlLoader : public HttpLoader {
public:
    // Whether the request of an address changes nothing on the server.
    using OnlyReads = std::function<bool(const std::string& address)>;

    // Without `onlyReads` every request is taken for one that writes. `authorities` names a
    // file with the certificates to trust instead of the machine's own. Raises
    // std::runtime_error when libcurl can't be set up.
    explicit CurlLoader(const TimeLimits& limits = {}, OnlyReads onlyReads = nullptr,
                        const std::string& authorities = {});
    ~CurlLoader() override;

    // The connection is kept for the next request, and a request leaves once, whatever
    // becomes of it. The answer of one that only reads may send it on, within the server that
    // was asked, and from http to https of the same host; anything else is a failure, as the
    // address may hold a password. So is an answer that sends a write on, and a body over
    // largestAnswer, which is dropped while it arrives. The address is never logged.
    // One call at a time.
    HttpAnswer get(const std::string& address) override;
    void close() override;

private:
    OnlyReads onlyReads_;
    Moved moved_;
    std::unique_ptr<Line> line_;
};

}  // namespace tarn
