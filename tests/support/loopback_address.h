// A socket's address on this machine alone.
#pragma once

#ifdef _WIN32
#include <winsock2.h>
#else
#include <arpa/inet.h>
#include <netinet/in.h>
#endif

#include <cstdint>

namespace tarn::test {

// Port 0 is one that the system chooses.
inline sockaddr_in loopbackAddress(int port = 0) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    return address;
}

}  // namespace tarn::test
