#include "platform/curl/next_connection.h"

#include <algorithm>
#include <system_error>
#include <utility>

namespace tarn {
namespace {

constexpr int mostReplacements = 2;
constexpr std::chrono::milliseconds tillTold = std::chrono::hours(24);

}  // namespace

NextConnection::NextConnection() : waiting_(curl_multi_init(), curl_multi_cleanup) {}

NextConnection::~NextConnection() {
    {
        const std::scoped_lock lock(mutex_);
        ending_ = true;
        resting_ = false;
    }
    tell();
    if (thread_.joinable()) {
        thread_.join();
    }
    drop();
}

void NextConnection::tell() {
    curl_multi_wakeup(waiting_.get());
}

std::chrono::milliseconds NextConnection::left() const {
    const auto left = end_ - std::chrono::steady_clock::now();
    return std::max(std::chrono::ceil<std::chrono::milliseconds>(left),
                    std::chrono::milliseconds::zero());
}

void NextConnection::rest(curl_socket_t kept, const Peer& peer, std::chrono::milliseconds life) {
    {
        const std::scoped_lock lock(mutex_);
        kept_ = kept;
        peer_ = peer;
        life_ = life;
        end_ = std::chrono::steady_clock::now() + life;
        replaced_ = 0;
        ++rests_;
        resting_ = waiting_ != nullptr && peer;
        if (resting_ && kept == CURL_SOCKET_BAD) {
            replace();
        }
    }
    beginToWatch();
    tell();
}

// Without a thread the kept connection is looked at by the next request alone.
void NextConnection::beginToWatch() {
    if (!thread_.joinable()) {
        try {
            thread_ = std::thread([this] { watch(); });
        } catch (const std::system_error&) {  // the machine gives no more of them
        }
    }
}

bool NextConnection::wake() {
    const std::scoped_lock lock(mutex_);
    resting_ = false;
    tell();
    const curl_socket_t kept = std::exchange(kept_, CURL_SOCKET_BAD);
    return kept != CURL_SOCKET_BAD && left() > left().zero() && isOpenAndSilent(kept);
}

curl_socket_t NextConnection::take(const Peer& peer) {
    if (spare_ == CURL_SOCKET_BAD || peer != peer_ || !isOpenAndSilent(spare_)) {
        drop();
        return CURL_SOCKET_BAD;
    }
    return std::exchange(spare_, CURL_SOCKET_BAD);
}

void NextConnection::drop() {
    if (spare_ != CURL_SOCKET_BAD) {
        closeSocket(std::exchange(spare_, CURL_SOCKET_BAD));
    }
}

// With the mutex held.
void NextConnection::replace() {
    if (kept_ != CURL_SOCKET_BAD) {
        hangUp(std::exchange(kept_, CURL_SOCKET_BAD));  // libcurl's, and in its cache
    }
    drop();
    if (replaced_++ == mostReplacements) {
        resting_ = false;
        return;
    }
    spare_ = canHandOver ? beginConnection(peer_) : CURL_SOCKET_BAD;
    end_ = std::chrono::steady_clock::now() + life_;
    resting_ = spare_ != CURL_SOCKET_BAD;
}

bool NextConnection::hasNews(curl_socket_t socket, std::chrono::milliseconds wait) {
    curl_waitfd waited{socket, CURL_WAIT_POLLIN, 0};
    int news = 0;
    curl_multi_poll(waiting_.get(), &waited, socket == CURL_SOCKET_BAD ? 0 : 1,
                    static_cast<int>(wait.count()), &news);
    return news > 0;
}

void NextConnection::watch() {
    std::unique_lock lock(mutex_);
    while (!ending_) {
        const int rest = rests_;
        const curl_socket_t watched = !resting_                  ? CURL_SOCKET_BAD
                                      : kept_ != CURL_SOCKET_BAD ? kept_
                                                                 : spare_;
        const std::chrono::milliseconds wait = resting_ ? left() : tillTold;
        lock.unlock();
        const bool news = hasNews(watched, wait);
        lock.lock();
        if (resting_ && rest == rests_ && (news || left() == left().zero())) {
            replace();
        }
    }
}

}  // namespace tarn
