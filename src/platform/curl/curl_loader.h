// HttpLoader over libcurl: http and https, certificates verified, proxy from the
// environment, compressed answers unpacked, no time-out.
#pragma once

#include "platform/http_loader.h"

namespace tarn {

class CurlLoader : public HttpLoader {
public:
    CurlLoader();

    // Each call makes its own connection: on a kept one that turns out dead libcurl
    // would send the request a second time, and a command may not run twice.
    // Redirects are followed only within the server that was asked, and from http to
    // https of the same host; anything else is a failure, as the address may hold a
    // password. So is a body over 64 MiB, which is dropped while it arrives. The
    // address is never logged. Raises std::runtime_error when libcurl can't be set up.
    HttpAnswer get(const std::string& address) override;
};

}  // namespace tarn
