// A line between a client and a server of this machine: as long as a test wants it, and
// broken where a test wants it.
#pragma once

#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <list>
#include <mutex>
#include <thread>

namespace tarn::test {

class Relay {
public:
    enum class Way : std::size_t { ToServer, ToClient };
    enum class End { Close, Reset };

    // What goes in comes out `delay` later, each way; a connection is there after a round trip,
    // as far as its bytes can tell.
    explicit Relay(int serverPort, std::chrono::milliseconds delay = {});
    ~Relay();
    Relay(const Relay&) = delete;
    Relay& operator=(const Relay&) = delete;

    int port() const { return port_; }

    // After so many more bytes of one way the connection that carries them ends, at both ends.
    // What comes over another one passes.
    void cutAfter(Way way, std::size_t bytes, End end);

    std::size_t passed(Way way) const { return passed_[static_cast<std::size_t>(way)]; }
    std::size_t connections() const;             // so far
    void waitForConnections(std::size_t count);  // returns when so many have come
    void waitForEnds(std::size_t count);         // and when so many of them have ended

private:
    class Carrier;

    void take();
    void begin(int client, int server);
    std::size_t allowed(Way way, std::size_t bytes);
    bool isCut(Way way);

    int serverPort_;
    std::chrono::milliseconds delay_;
    int listener_ = -1;
    int port_ = 0;
    std::atomic<bool> ending_ = false;
    std::array<std::atomic<std::size_t>, 2> passed_{};
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    bool cuts_ = false;
    Way cutWay_ = Way::ToServer;
    std::size_t cutBytes_ = 0;  // still to pass
    End cutEnd_ = End::Close;
    std::size_t taken_ = 0;
    std::size_t ended_ = 0;
    std::list<std::thread> carriers_;
    std::thread thread_;
};

}  // namespace tarn::test
