// A loader and the server that it asks.
#pragma once

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "platform/curl/curl_loader.h"
#include "tests/support/loopback_server.h"

namespace tarn::test {

class CurlLoaderTest : public testing::Test {
protected:
    HttpAnswer get(const std::string& query) { return loader_.get(server_.baseUrl() + query); }
    void expectFailure(const std::string& query) {
        const HttpAnswer answer = get(query);
        EXPECT_FALSE(answer.loaded);
        EXPECT_EQ(answer.body, "");
    }
    std::string host() const { return "http://127.0.0.1:" + std::to_string(server_.port()); }

    LoopbackServer server_;
    CurlLoader loader_{
        {}, [](const std::string& address) { return address.find("WRITE") == std::string::npos; }};
};

// Milliseconds from now on.
class Stopwatch {
public:
    long long elapsed() const {
        return std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start_).count();
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point start_ = Clock::now();
};

inline constexpr long long muchLater = 20'000;  // ms; less than any limit that isn't a test's own

}  // namespace tarn::test
