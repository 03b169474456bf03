// The line to the server: libcurl's connection, kept from one request to the next.
#pragma once

#include <curl/curl.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/curl/next_connection.h"
#include "platform/curl/sockets.h"
#include "platform/curl/time_limits.h"

namespace tarn {

struct LineAnswer {
    bool arrived = false;  // whole, whatever its status
    long status = 0;
    std::string redirect;  // where the server sends, if it does
    std::string body;
};

// A request leaves once. libcurl by itself sends one again that it has sent over a kept
// connection which then ends before the first byte of an answer: it can't know whether the
// server has acted on it. Before each request goes out it asks whether it may (leave()), and
// a second time it may not. So a kept connection is used only while nothing speaks against it.
class Line {
public:
    // `authorities`: file with the certificates to trust, empty for the machine's own.
    Line(const TimeLimits& limits, const std::string& authorities);
    ~Line();
    Line(const Line&) = delete;
    Line& operator=(const Line&) = delete;

    // One at a time.
    LineAnswer ask(const std::string& address);
    // From any thread, for good.
    void close();

private:
    // libcurl made ready for the whole program; what uses it stands behind.
    struct Library {
        Library();
    };
    struct Open {
        curl_socket_t socket = CURL_SOCKET_BAD;
        Peer peer;
    };

    void setUp(const std::string& authorities);
    void limitTime();
    void watchSockets();
    void awaitNext();
    bool run();

    std::size_t takeBody(std::string_view bytes);
    std::size_t takeHeadLine(std::string_view line);
    bool leave();
    curl_socket_t open(const curl_sockaddr& address);
    int closed(curl_socket_t socket);

    Library library_;
    TimeLimits limits_;
    std::atomic<bool> closed_ = false;
    std::string body_;
    std::size_t headBytes_ = 0;
    int departures_ = 0;
    std::chrono::milliseconds life_{};  // as the last answer tells it
    std::vector<Open> open_;            // libcurl's, in the order in which they were opened
    Open carrier_;                      // of the request
    curl_socket_t handedOver_ = CURL_SOCKET_BAD;
    NextConnection next_;
    std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> multi_;
    std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> easy_;
};

}  // namespace tarn
