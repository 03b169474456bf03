// A server on the loopback that takes every connection and never says a word.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "tests/support/loopback_address.h"

namespace tarn::test {

class SilentServer {
public:
    SilentServer() {
        sockaddr_in address = loopbackAddress();
        socklen_t length = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        if (bind(socket_, generic, length) != 0 || listen(socket_, SOMAXCONN) != 0 ||
            getsockname(socket_, generic, &length) != 0) {
            throw std::runtime_error("no loopback socket");
        }
        address_ = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    }
    ~SilentServer() { close(socket_); }
    SilentServer(const SilentServer&) = delete;
    SilentServer& operator=(const SilentServer&) = delete;

    // What libcups takes for its server, from its first use in a thread on.
    void beThePrintServer() const { setenv("CUPS_SERVER", address_.c_str(), 1); }

private:
    int socket_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);  // the kernel accepts
    std::string address_;
};

}  // namespace tarn::test
