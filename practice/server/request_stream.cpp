#include "practice/server/request_stream.h"

#include <poll.h>
#include <sys/socket.h>

#include <algorithm>
#include <array>
#include <cerrno>

namespace tarn::practice {
namespace {

constexpr int millisecond = 1000;  // of a second
constexpr std::size_t pieceBytes = 4096;
constexpr char standIn = '_';

bool ready(socket_t socket, short events, int milliseconds) {
    pollfd wanted{socket, events, 0};
    int count = 0;
    do {
        count = poll(&wanted, 1, milliseconds);
    } while (count < 0 && errno == EINTR);
    return count > 0;
}

}  // namespace

RequestStream::RequestStream(socket_t socket, time_t readSeconds, time_t writeSeconds)
    : socket_(socket),
      readMilliseconds_(static_cast<int>(readSeconds) * millisecond),
      writeMilliseconds_(static_cast<int>(writeSeconds) * millisecond) {}

std::string RequestStream::target() const {
    const std::size_t first = line_.find(' ');
    if (first == std::string::npos) {
        return {};
    }
    const std::size_t last = line_.find(' ', first + 1);
    return line_.substr(first + 1, last == std::string::npos ? last : last - first - 1);
}

bool RequestStream::is_readable() const {
    return next_ < pending_.size() || ready(socket_, POLLIN, readMilliseconds_);
}

bool RequestStream::is_writable() const {
    return ready(socket_, POLLOUT, writeMilliseconds_);
}

ssize_t RequestStream::read(char* bytes, size_t size) {
    if (next_ == pending_.size() && !fill()) {
        return -1;
    }
    const std::size_t count = std::min(size, pending_.size() - next_);
    std::copy_n(pending_.data() + next_, count, bytes);
    next_ += count;
    return static_cast<ssize_t>(count);
}

ssize_t RequestStream::write(const char* bytes, size_t size) {
    if (muted_ || !is_writable()) {
        return -1;
    }
    ssize_t sent = 0;
    do {
        sent = send(socket_, bytes, size, MSG_NOSIGNAL);
    } while (sent < 0 && errno == EINTR);
    return sent;
}

bool RequestStream::fill() {
    pending_.clear();
    next_ = 0;
    if (!ready(socket_, POLLIN, readMilliseconds_)) {
        return false;
    }
    std::array<char, pieceBytes> piece{};
    ssize_t count = 0;
    do {
        count = recv(socket_, piece.data(), piece.size(), 0);
    } while (count < 0 && errno == EINTR);
    for (ssize_t i = 0; i < count; ++i) {
        pending_.push_back(taken(piece[static_cast<std::size_t>(i)]));
    }
    return count > 0;
}

char RequestStream::taken(char byte) {
    if (!inLine_) {
        return byte;
    }
    line_.push_back(byte);
    inLine_ = byte != '\n';
    const bool hidden = marked_ && byte == '?';
    marked_ = marked_ || byte == '?';
    return hidden ? standIn : byte;
}

}  // namespace tarn::practice
