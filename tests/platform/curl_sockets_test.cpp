// The loader where only a system of POSIX shows what it does: its sockets and its memory.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <future>
#include <vector>

#include "tests/platform/curl_loader_fixture.h"
#include "tests/support/loopback_address.h"

namespace tarn::test {
namespace {

using CurlSockets = CurlLoaderTest;

long peakMemoryKiB() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

TEST_F(CurlSockets, AHugeBodyIsDroppedWhileItArrives) {
    constexpr std::size_t mib = std::size_t{1024} * 1024;
    server_.on("", LoopbackReply::huge("<R>", 200 * mib));
    const long before = peakMemoryKiB();
    expectFailure("x");
#ifdef __SANITIZE_ADDRESS__
    const long mostKiB = 512L * 1024;  // what is freed stays in quarantine for a while
#else
    const long mostKiB = 40L * 1024;  // a growing string may hold two copies
#endif
    EXPECT_LT(peakMemoryKiB() - before, mostKiB);
}

// Connections to it are neither taken nor refused: what it may hold waiting is full.
class FullPort {
public:
    FullPort() {
        socklen_t length = sizeof address_;
        const int listener = open(0);
        EXPECT_EQ(::bind(listener, generic(), length), 0);
        EXPECT_EQ(::listen(listener, 0), 0);
        EXPECT_EQ(::getsockname(listener, generic(), &length), 0);
        for (int i = 0; i < 4; ++i) {
            // Only to fill it: whether one has come isn't asked.
            static_cast<void>(::connect(open(SOCK_NONBLOCK), generic(), length));
        }
    }
    ~FullPort() {
        for (const int one : sockets_) {
            ::close(one);
        }
    }
    FullPort(const FullPort&) = delete;
    FullPort& operator=(const FullPort&) = delete;

    std::string host() const {
        return "http://127.0.0.1:" + std::to_string(ntohs(address_.sin_port));
    }

private:
    int open(int flags) {
        sockets_.push_back(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | flags, 0));
        return sockets_.back();
    }
    sockaddr* generic() { return reinterpret_cast<sockaddr*>(&address_); }

    sockaddr_in address_ = loopbackAddress();
    std::vector<int> sockets_;
};

TEST_F(CurlSockets, AServerThatTakesNoConnectionIsGivenUp) {
    const FullPort full;
    CurlLoader hasty({.connect = std::chrono::milliseconds(200)});
    const Stopwatch time;
    EXPECT_FALSE(hasty.get(full.host() + "/?x").loaded);
    EXPECT_GE(time.elapsed(), 200);
    EXPECT_LT(time.elapsed(), muchLater);
}

// The values of a socket option on the one connection of this process to that port.
int optionOf(int port, int level, int option) {
    for (int socket = 0; socket < 1024; ++socket) {
        sockaddr_in peer{};
        socklen_t length = sizeof peer;
        if (::getpeername(socket, reinterpret_cast<sockaddr*>(&peer), &length) == 0 &&
            peer.sin_family == AF_INET && ntohs(peer.sin_port) == port) {
            int value = -1;
            length = sizeof value;
            ::getsockopt(socket, level, option, &value, &length);
            return value;
        }
    }
    return -1;
}

// A server that lost its power says nothing, not even that it is gone.
TEST_F(CurlSockets, AsksAfterAMuteServerEveryHalfMinute) {
    LoopbackReply mute = LoopbackReply::xml("<R/>");
    mute.waits = true;
    server_.on("", mute);
    auto answer = std::async(std::launch::async, [this] { return get("x"); });
    server_.waitForRequests(1);
    EXPECT_EQ(optionOf(server_.port(), SOL_SOCKET, SO_KEEPALIVE), 1);
    EXPECT_EQ(optionOf(server_.port(), IPPROTO_TCP, TCP_KEEPIDLE), 30);
    EXPECT_EQ(optionOf(server_.port(), IPPROTO_TCP, TCP_KEEPINTVL), 30);
    server_.release();
    EXPECT_TRUE(answer.get().loaded);
}

}  // namespace
}  // namespace tarn::test
