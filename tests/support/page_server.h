// A server of one page that keeps its connections, with TLS or without.
#pragma once

#include <httplib.h>

#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

#include "tests/support/certificate.h"

namespace tarn::test {

struct ServerHabits {
    bool keeps = true;      // connections
    int seconds = 60;       // for how long, unused
    bool tellsThat = true;  // by a line of its answers' heads
};

class PageServer {
public:
    PageServer() : PageServer(nullptr, ServerHabits()) {}
    explicit PageServer(const ServerHabits& habits) : PageServer(nullptr, habits) {}
    explicit PageServer(const CertificateFiles& certificate, const ServerHabits& habits = {})
        : PageServer(&certificate, habits) {}
    ~PageServer();
    PageServer(const PageServer&) = delete;
    PageServer& operator=(const PageServer&) = delete;

    int port() const { return port_; }
    // What follows a line's port: the address of the page by that line.
    std::string addressBy(int port) const;
    // No more requests; those that have come are counted.
    void stop();
    std::size_t arrivals(const std::string& query) const;
    std::size_t arrivals() const;

    static constexpr char answer[] = "<R/>";

private:
    PageServer(const CertificateFiles* certificate, const ServerHabits& habits);

    bool secure_;
    std::unique_ptr<httplib::Server> server_;
    int port_ = 0;
    mutable std::mutex mutex_;
    std::map<std::string, std::size_t> arrivals_;
    std::thread thread_;
};

}  // namespace tarn::test
