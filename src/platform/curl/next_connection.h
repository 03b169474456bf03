// The connection that the next request will find, looked after between two requests.
#pragma once

#include <curl/curl.h>

#include <chrono>
#include <memory>
#include <mutex>
#include <thread>

#include "platform/curl/sockets.h"

namespace tarn {

// Between two requests a thread watches the connection that libcurl has kept. Once the server
// closes it, or so much time has passed that the server may be about to, it is given up and
// another one is opened, without a word over it, so that the next request need not wait for
// that. Of those that go unused, a few are opened and no more: a server may have better to do.
class NextConnection {
public:
    NextConnection();
    ~NextConnection();
    NextConnection(const NextConnection&) = delete;
    NextConnection& operator=(const NextConnection&) = delete;

    // After an answer that came from `peer`. `kept` is libcurl's connection, CURL_SOCKET_BAD
    // where the server has closed it; `life` how long an unused one may be relied on.
    void rest(curl_socket_t kept, const Peer& peer, std::chrono::milliseconds life);

    // Before a request: from here on nothing is watched. Whether the kept connection can carry
    // it: open as far as this end knows, nothing come over it, its life not over.
    bool wake();

    // The one opened instead, while it isn't asked for; CURL_SOCKET_BAD: none. After wake().
    curl_socket_t opened() const { return spare_; }
    // The same, to be owned by the caller, if it leads to `peer` and is connected by now.
    curl_socket_t take(const Peer& peer);
    void drop();

private:
    using Time = std::chrono::steady_clock::time_point;

    void beginToWatch();
    void watch();
    void replace();
    void tell();
    std::chrono::milliseconds left() const;
    bool hasNews(curl_socket_t socket, std::chrono::milliseconds wait);

    std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)> waiting_;  // only to wait with
    std::mutex mutex_;
    bool ending_ = false;
    bool resting_ = false;
    int rests_ = 0;
    curl_socket_t kept_ = CURL_SOCKET_BAD;
    curl_socket_t spare_ = CURL_SOCKET_BAD;
    Peer peer_;
    std::chrono::milliseconds life_{};
    Time end_;
    int replaced_ = 0;
    std::thread thread_;
};

}  // namespace tarn
