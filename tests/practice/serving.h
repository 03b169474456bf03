// The page over the network, on a free port of loopback.
#pragma once

#include <httplib.h>

#include <chrono>
#include <string>
#include <thread>
#include <utility>

#include "practice/server/http_front.h"

namespace tarn::practice::test {

// A front that serves for the life of a test.
class Serving {
public:
    explicit Serving(HttpFront::Answer answer,
                     std::chrono::milliseconds requestTime = HttpFront::usualRequestTime)
        : front_(std::move(answer), "text/xml; charset=windows-1252", requestTime),
          port_(front_.bind("127.0.0.1", 0)),
          thread_([this] { front_.serve(); }) {}
    ~Serving() {
        front_.stop();
        thread_.join();
    }
    Serving(const Serving&) = delete;
    Serving& operator=(const Serving&) = delete;

    int port() const { return port_; }
    std::string baseUrl() const {
        return "http://127.0.0.1:" + std::to_string(port_) + std::string(pagePath) + '?';
    }
    httplib::Result get(const std::string& target) const {
        httplib::Client client("127.0.0.1", port_);
        client.set_url_encode(false);
        return client.Get(target);
    }

private:
    HttpFront front_;
    int port_;
    std::thread thread_;
};

}  // namespace tarn::practice::test
