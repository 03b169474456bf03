#include "platform/curl/sockets.h"

#ifdef _WIN32
#include <winsock2.h>
#else
#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#endif

namespace tarn {
namespace {

#ifdef _WIN32
constexpr int inheritedByNobody = 0;
using Polled = WSAPOLLFD;

int look(Polled& socket) {
    return WSAPoll(&socket, 1, 0);
}
bool letCallsReturn(curl_socket_t socket) {
    u_long yes = 1;
    return ioctlsocket(socket, FIONBIO, &yes) == 0;
}
bool isUnderWay() {
    return WSAGetLastError() == WSAEWOULDBLOCK;
}
using AddressLength = int;
constexpr int bothWays = SD_BOTH;
#else
constexpr int inheritedByNobody = SOCK_CLOEXEC;
using Polled = pollfd;

int look(Polled& socket) {
    return poll(&socket, 1, 0);
}
bool letCallsReturn(curl_socket_t socket) {
    return fcntl(socket, F_SETFL, O_NONBLOCK) == 0;
}
bool isUnderWay() {
    return errno == EINPROGRESS;
}
using AddressLength = socklen_t;
constexpr int bothWays = SHUT_RDWR;
#endif

}  // namespace

Peer peerOf(const curl_sockaddr& address) {
    // libcurl's structure goes on behind its end where an address is longer.
    const auto* bytes = reinterpret_cast<const char*>(&address.addr);
    return {address.family, address.socktype, address.protocol,
            std::string(bytes, bytes + address.addrlen)};
}

curl_socket_t newSocket(const Peer& peer) {
    return socket(peer.family, peer.type | inheritedByNobody, peer.protocol);
}

curl_socket_t beginConnection(const Peer& peer) {
    const curl_socket_t made = newSocket(peer);
    if (made == CURL_SOCKET_BAD) {
        return made;
    }
    const auto* address = reinterpret_cast<const sockaddr*>(peer.address.data());
    const auto length = static_cast<AddressLength>(peer.address.size());
    if (letCallsReturn(made) && (connect(made, address, length) == 0 || isUnderWay())) {
        return made;
    }
    closeSocket(made);
    return CURL_SOCKET_BAD;
}

bool isOpenAndSilent(curl_socket_t socket) {
    Polled polled{};
    polled.fd = socket;
    polled.events = POLLIN | POLLOUT;
    return look(polled) == 1 && polled.revents == POLLOUT;
}

void hangUp(curl_socket_t socket) {
    shutdown(socket, bothWays);
}

void closeSocket(curl_socket_t socket) {
#ifdef _WIN32
    closesocket(socket);
#else
    close(socket);
#endif
}

}  // namespace tarn
