#include "tests/support/relay.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "tests/support/loopback_address.h"

namespace tarn::test {
namespace {

using RelayClock = std::chrono::steady_clock;

// After which a carrier looks whether the relay ends.
constexpr std::chrono::milliseconds turn{20};

void sendAtOnce(int socket) {
    const int yes = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &yes, sizeof yes);
}

bool sendWhole(int socket, std::string_view bytes) {
    while (!bytes.empty()) {
        const ssize_t sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
        if (sent <= 0) {
            return false;
        }
        bytes.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

}  // namespace

// One connection of the client's and the one to the server behind it.
class Relay::Carrier {
public:
    Carrier(Relay& relay, int client, int server) : relay_(relay), out_{server, client} {}
    ~Carrier() {
        const linger atOnce{1, 0};
        for (const int socket : out_) {
            if (reset_) {
                ::setsockopt(socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
            }
            ::close(socket);
        }
    }
    Carrier(const Carrier&) = delete;
    Carrier& operator=(const Carrier&) = delete;

    void run() {
        while (!relay_.ending_ && !cut_ && !(delivered_[0] && delivered_[1])) {
            std::array<pollfd, 2> sources{};
            for (const std::size_t way : {0U, 1U}) {
                sources[way] = {taken_[way] ? -1 : out_[1 - way], POLLIN, 0};
            }
            const timespec wait{0, untilDue().count()};
            ::ppoll(sources.data(), sources.size(), &wait, nullptr);
            for (const std::size_t way : {0U, 1U}) {
                if (sources[way].revents != 0) {
                    takeIn(way);
                }
                deliver(way);
            }
        }
    }

private:
    struct Piece {
        RelayClock::time_point due;
        std::string bytes;  // none: the end
    };

    std::chrono::nanoseconds untilDue() const {
        auto wake = RelayClock::now() + turn;
        for (const auto& pieces : onTheWay_) {
            wake = pieces.empty() ? wake : std::min(wake, pieces.front().due);
        }
        return std::max<std::chrono::nanoseconds>(wake - RelayClock::now(), {});
    }

    void takeIn(std::size_t way) {
        std::string bytes(16384, '\0');
        const ssize_t count = ::recv(out_[1 - way], bytes.data(), bytes.size(), 0);
        bytes.resize(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        taken_[way] = bytes.empty();
        const auto left = std::max(RelayClock::now(), since_ + 2 * relay_.delay_);
        onTheWay_[way].push_back({left + relay_.delay_, std::move(bytes)});
    }

    void deliver(std::size_t way) {
        auto& pieces = onTheWay_[way];
        while (!cut_ && !pieces.empty() && pieces.front().due <= RelayClock::now()) {
            const std::string bytes = std::move(pieces.front().bytes);
            pieces.pop_front();
            if (bytes.empty()) {
                delivered_[way] = true;
                ::shutdown(out_[way], SHUT_WR);
                continue;
            }
            const std::size_t count = relay_.allowed(static_cast<Way>(way), bytes.size());
            relay_.passed_[way] += count;
            sendWhole(out_[way], std::string_view(bytes).substr(0, count));
            cut_ = relay_.isCut(static_cast<Way>(way));
            reset_ = cut_ && relay_.cutEnd_ == End::Reset;
        }
    }

    Relay& relay_;
    std::array<int, 2> out_;  // by way
    std::array<std::deque<Piece>, 2> onTheWay_;
    std::array<bool, 2> taken_{};      // to its end
    std::array<bool, 2> delivered_{};  // likewise
    RelayClock::time_point since_ = RelayClock::now();
    bool cut_ = false;
    bool reset_ = false;
};

Relay::Relay(int serverPort, std::chrono::milliseconds delay)
    : serverPort_(serverPort), delay_(delay) {
    listener_ = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = loopbackAddress(0);
    socklen_t length = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    if (::bind(listener_, generic, length) != 0 || ::listen(listener_, 16) != 0 ||
        ::getsockname(listener_, generic, &length) != 0) {
        throw std::runtime_error("no loopback port");
    }
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { take(); });
}

Relay::~Relay() {
    ending_ = true;
    ::shutdown(listener_, SHUT_RDWR);
    thread_.join();
    for (std::thread& carrier : carriers_) {
        carrier.join();
    }
    ::close(listener_);
}

void Relay::cutAfter(Way way, std::size_t bytes, End end) {
    const std::scoped_lock lock(mutex_);
    cuts_ = true;
    cutWay_ = way;
    cutBytes_ = bytes;
    cutEnd_ = end;
}

std::size_t Relay::connections() const {
    const std::scoped_lock lock(mutex_);
    return taken_;
}

void Relay::waitForConnections(std::size_t count) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return taken_ >= count; });
}

void Relay::waitForEnds(std::size_t count) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return ended_ >= count; });
}

void Relay::take() {
    while (!ending_) {
        const int client = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
        if (client < 0) {
            return;
        }
        const int server = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const sockaddr_in address = loopbackAddress(serverPort_);
        if (::connect(server, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
            ::close(server);
            ::close(client);
            continue;
        }
        sendAtOnce(client);
        sendAtOnce(server);
        begin(client, server);
    }
}

void Relay::begin(int client, int server) {
    const std::scoped_lock lock(mutex_);
    ++taken_;
    changed_.notify_all();
    carriers_.emplace_back([this, client, server] {
        Carrier(*this, client, server).run();
        const std::scoped_lock endLock(mutex_);
        ++ended_;
        changed_.notify_all();
    });
}

// How many of the bytes may pass before the cut.
std::size_t Relay::allowed(Way way, std::size_t bytes) {
    const std::scoped_lock lock(mutex_);
    if (!cuts_ || cutWay_ != way) {
        return bytes;
    }
    bytes = std::min(bytes, cutBytes_);
    cutBytes_ -= bytes;
    return bytes;
}

bool Relay::isCut(Way way) {
    const std::scoped_lock lock(mutex_);
    const bool cut = cuts_ && cutWay_ == way && cutBytes_ == 0;
    cuts_ = cuts_ && !cut;
    return cut;
}

}  // namespace tarn::test
