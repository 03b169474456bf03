// What a server asks of its sockets, under the names of this program: Windows has others.
#pragma once

#include <httplib.h>

#include <cstddef>
#include <string>

namespace tarn::practice {

// Makes a port that is already served be refused. The library's own SO_REUSEPORT, and on
// Windows SO_REUSEADDR, would take it a second time in silence.
void takePortAlone(socket_t socket);

bool isAddress(const std::string& address);

// Why the last port couldn't be had.
enum class PortRefusal { Taken, Forbidden, NotOfThisMachine, Other };
void forgetPortRefusal();
PortRefusal lastPortRefusal();

// Whether bytes can be read from the socket, or written to it, before the time is over.
bool isReadable(socket_t socket, int milliseconds);
bool isWritable(socket_t socket, int milliseconds);

// How many bytes; negative where it failed, and 0 at the end of what is received.
ssize_t sendSome(socket_t socket, const char* bytes, std::size_t size);
ssize_t receiveSome(socket_t socket, char* bytes, std::size_t size);

void endReading(socket_t socket);
void endBothWays(socket_t socket);
// Closing it will reset the connection, whatever is still to be sent.
void resetWhenClosed(socket_t socket);
void closeSocket(socket_t socket);

}  // namespace tarn::practice
