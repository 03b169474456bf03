// The few socket calls that libcurl leaves to its user, alike on every system.
#pragma once

#include <curl/curl.h>

#include <string>

namespace tarn {

// What a connection leads to.
struct Peer {
    int family = 0;
    int type = 0;
    int protocol = 0;
    std::string address;  // the system's bytes of it

    explicit operator bool() const { return !address.empty(); }
    bool operator==(const Peer&) const = default;
};

Peer peerOf(const curl_sockaddr& address);

// Whether libcurl can be handed a connection that is there. Of 7.88 it asks for one all the same,
// which other systems grant, and Windows refuses.
#ifdef _WIN32
inline constexpr bool canHandOver = false;
#else
inline constexpr bool canHandOver = true;
#endif

// CURL_SOCKET_BAD where the system gives none.
curl_socket_t newSocket(const Peer& peer);
// Begins to connect and doesn't wait; CURL_SOCKET_BAD where that fails at once.
curl_socket_t beginConnection(const Peer& peer);

// Whether it is connected and nothing has come over it: no byte, no end, no error.
bool isOpenAndSilent(curl_socket_t socket);

// Both ends see the end of it; the socket itself stays for who owns it.
void hangUp(curl_socket_t socket);
void closeSocket(curl_socket_t socket);

}  // namespace tarn
