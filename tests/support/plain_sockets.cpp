#include "tests/support/plain_sockets.h"

#ifdef _WIN32
#include <winsock2.h>
#else
#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

#include <stdexcept>

#include "tests/support/loopback_address.h"

namespace tarn::test {
namespace {

#ifdef _WIN32
using Native = SOCKET;
using Length = int;
using Count = int;
constexpr int withoutSignal = 0;  // Windows knows none
constexpr int sendingEnd = SD_SEND;
constexpr int bothEnds = SD_BOTH;

constexpr int inheritedByNobody = 0;

Native taken(Native listener) {
    return ::accept(listener, nullptr, nullptr);
}
void makeReady() {
    static const bool ready = [] {
        WSADATA told{};
        return WSAStartup(MAKEWORD(2, 2), &told) == 0;
    }();
    if (!ready) {
        throw std::runtime_error("no sockets");
    }
}
#else
using Native = int;
using Length = socklen_t;
using Count = std::size_t;
constexpr int withoutSignal = MSG_NOSIGNAL;
constexpr int sendingEnd = SHUT_WR;
constexpr int bothEnds = SHUT_RDWR;

constexpr int inheritedByNobody = SOCK_CLOEXEC;

Native taken(Native listener) {
    return ::accept4(listener, nullptr, nullptr, inheritedByNobody);
}
void makeReady() {}
#endif

Native native(Socket socket) {
    return static_cast<Native>(socket);
}

Socket newSocket() {
    return static_cast<Socket>(::socket(AF_INET, SOCK_STREAM | inheritedByNobody, 0));
}

}  // namespace

Listener listenOnLoopback() {
    makeReady();
    constexpr int waiting = 16;
    const Socket made = newSocket();
    sockaddr_in address = loopbackAddress();
    Length length = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    if (made == noSocket || ::bind(native(made), generic, length) != 0 ||
        ::listen(native(made), waiting) != 0 ||
        ::getsockname(native(made), generic, &length) != 0) {
        throw std::runtime_error("no loopback port");
    }
    return {made, ntohs(address.sin_port)};
}

Socket nextConnection(Socket listener) {
    return static_cast<Socket>(taken(native(listener)));
}

void knock(int port) {
    const Socket made = newSocket();
    const sockaddr_in address = loopbackAddress(port);
    // Whoever listens may be gone already.
    static_cast<void>(
        ::connect(native(made), reinterpret_cast<const sockaddr*>(&address), sizeof address));
    closeSocket(made);
}

bool sendAll(Socket connection, std::string_view data) {
    while (!data.empty()) {
        const auto sent =
            ::send(native(connection), data.data(), static_cast<Count>(data.size()), withoutSignal);
        if (sent <= 0) {
            return false;
        }
        data.remove_prefix(static_cast<std::size_t>(sent));
    }
    return true;
}

std::size_t receiveSome(Socket connection, char* bytes, std::size_t most) {
    const auto count = ::recv(native(connection), bytes, static_cast<Count>(most), 0);
    return count > 0 ? static_cast<std::size_t>(count) : 0;
}

void endSending(Socket connection) {
    ::shutdown(native(connection), sendingEnd);
}

void endBothWays(Socket connection) {
    ::shutdown(native(connection), bothEnds);
}

void closeSocket(Socket socket) {
#ifdef _WIN32
    ::closesocket(native(socket));
#else
    ::close(native(socket));
#endif
}

}  // namespace tarn::test
