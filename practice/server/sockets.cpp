#include "practice/server/sockets.h"

#ifndef _WIN32
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

#include <cerrno>

namespace tarn::practice {
namespace {

template <typename Value>
void setOption(socket_t socket, int name, const Value& value) {
    setsockopt(socket, SOL_SOCKET, name, reinterpret_cast<const char*>(&value), sizeof value);
}

#ifdef _WIN32

constexpr int readingSide = SD_RECEIVE;
constexpr int bothSides = SD_BOTH;
constexpr int noSignal = 0;
using Length = int;

int waitFor(WSAPOLLFD& wanted, int milliseconds) {
    return WSAPoll(&wanted, 1, milliseconds);
}

// Windows interrupts no call, so there is none to be repeated.
bool wasInterrupted() {
    return false;
}

#else

constexpr int readingSide = SHUT_RD;
constexpr int bothSides = SHUT_RDWR;
constexpr int noSignal = MSG_NOSIGNAL;
using Length = std::size_t;

int waitFor(pollfd& wanted, int milliseconds) {
    return poll(&wanted, 1, milliseconds);
}

bool wasInterrupted() {
    return errno == EINTR;
}

#endif

bool isReady(socket_t socket, short events, int milliseconds) {
    pollfd wanted{};
    wanted.fd = socket;
    wanted.events = events;
    int count = 0;
    do {
        count = waitFor(wanted, milliseconds);
    } while (count < 0 && wasInterrupted());
    return count > 0;
}

}  // namespace

void takePortAlone(socket_t socket) {
#ifdef _WIN32
    setOption(socket, SO_EXCLUSIVEADDRUSE, int{1});
#else
    setOption(socket, SO_REUSEADDR, int{1});
#endif
}

bool isAddress(const std::string& address) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    const bool known =
        !address.empty() && getaddrinfo(address.c_str(), nullptr, &hints, &found) == 0;
    if (found != nullptr) {
        freeaddrinfo(found);
    }
    return known;
}

void forgetPortRefusal() {
#ifdef _WIN32
    WSASetLastError(0);
#else
    errno = 0;
#endif
}

PortRefusal lastPortRefusal() {
#ifdef _WIN32
    switch (WSAGetLastError()) {
        case WSAEADDRINUSE:
            return PortRefusal::Taken;
        case WSAEACCES:
            return PortRefusal::Forbidden;
        case WSAEADDRNOTAVAIL:
            return PortRefusal::NotOfThisMachine;
        default:
            return PortRefusal::Other;
    }
#else
    switch (errno) {
        case EADDRINUSE:
            return PortRefusal::Taken;
        case EACCES:
            return PortRefusal::Forbidden;
        case EADDRNOTAVAIL:
            return PortRefusal::NotOfThisMachine;
        default:
            return PortRefusal::Other;
    }
#endif
}

bool isReadable(socket_t socket, int milliseconds) {
    return isReady(socket, POLLIN, milliseconds);
}

bool isWritable(socket_t socket, int milliseconds) {
    return isReady(socket, POLLOUT, milliseconds);
}

ssize_t sendSome(socket_t socket, const char* bytes, std::size_t size) {
    ssize_t count = 0;
    do {
        count = send(socket, bytes, static_cast<Length>(size), noSignal);
    } while (count < 0 && wasInterrupted());
    return count;
}

ssize_t receiveSome(socket_t socket, char* bytes, std::size_t size) {
    ssize_t count = 0;
    do {
        count = recv(socket, bytes, static_cast<Length>(size), 0);
    } while (count < 0 && wasInterrupted());
    return count;
}

void closeSocket(socket_t socket) {
#ifdef _WIN32
    closesocket(socket);
#else
    close(socket);
#endif
}

void endReading(socket_t socket) {
    shutdown(socket, readingSide);
}

void endBothWays(socket_t socket) {
    shutdown(socket, bothSides);
}

void resetWhenClosed(socket_t socket) {
    setOption(socket, SO_LINGER, linger{1, 0});
}

}  // namespace tarn::practice
