// Sockets as the tests' own servers need them, under one set of names: Windows has others.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tarn::test {

using Socket = std::intptr_t;
inline constexpr Socket noSocket = -1;

struct Listener {
    Socket socket = noSocket;
    int port = 0;
};

// On a free port of 127.0.0.1; throws std::runtime_error where there is none.
Listener listenOnLoopback();
// The next connection, waited for; noSocket once there can be none.
Socket nextConnection(Socket listener);
// A connection that ends at once, for whom waits for the next one.
void knock(int port);

bool sendAll(Socket connection, std::string_view data);
// How many bytes came; 0 at the end, be it a good or a bad one.
std::size_t receiveSome(Socket connection, char* bytes, std::size_t most);

void endSending(Socket connection);
void endBothWays(Socket connection);
void closeSocket(Socket socket);

}  // namespace tarn::test
