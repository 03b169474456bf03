// HttpLoader over libcurl: http and https, certificates verified, proxy from the
// environment, compressed answers unpacked.
#pragma once

#include <chrono>
#include <memory>

#include "platform/http_loader.h"

namespace tarn {

// How long a server is waited for: decision D124. What takes longer is a failed load.
struct TimeLimits {
    std::chrono::milliseconds connect{30'000};
    std::chrono::seconds silence{120};  // without a byte, from the request on
};

class CurlLoader : public HttpLoader {
public:
    explicit CurlLoader(const TimeLimits& limits = {});
    ~CurlLoader() override;

    // Each call makes its own connection: on a kept one that turns out dead libcurl
    // would send the request a second time, and a command may not run twice.
    // Redirects are followed only within the server that was asked, and from http to
    // https of the same host; anything else is a failure, as the address may hold a
    // password. So is a body over largestAnswer, which is dropped while it arrives. The
    // address is never logged. Raises std::runtime_error when libcurl can't be set up.
    // One call at a time.
    HttpAnswer get(const std::string& address) override;
    void close() override;

private:
    struct Transfers;

    bool perform(const std::string& line, std::string& body, std::string& next);

    TimeLimits limits_;
    std::unique_ptr<Transfers> transfers_;
};

}  // namespace tarn
