#include "practice/server/request_stream.h"

#include <algorithm>
#include <array>

#include "practice/server/sockets.h"

namespace tarn::practice {
namespace {

constexpr int millisecond = 1000;  // of a second
constexpr std::size_t pieceBytes = 4096;
constexpr char standIn = '_';

}  // namespace

RequestStream::RequestStream(socket_t socket, std::chrono::milliseconds requestTime,
                             time_t writeSeconds)
    : socket_(socket),
      requestTime_(requestTime),
      end_(std::chrono::steady_clock::now() + requestTime),
      writeMilliseconds_(static_cast<int>(writeSeconds) * millisecond) {}

// Bytes that came together with the request before count for this one.
void RequestStream::beginNext() {
    end_ = std::chrono::steady_clock::now() + requestTime_;
    line_.clear();
    part_ = Part::Line;
    headBytes_ = 0;
    bodyBytes_ = 0;
    blankLine_ = false;
    marked_ = false;
    pending_.erase(0, next_);
    next_ = 0;
    for (char& byte : pending_) {
        byte = taken(byte);
    }
}

std::string RequestStream::target() const {
    const std::size_t first = line_.find(' ');
    if (first == std::string::npos) {
        return {};
    }
    const std::size_t last = line_.find(' ', first + 1);
    return line_.substr(first + 1, last == std::string::npos ? last : last - first - 1);
}

bool RequestStream::is_readable() const {
    return next_ < pending_.size() || isReadable(socket_, millisecondsLeft());
}

bool RequestStream::is_writable() const {
    return isWritable(socket_, writeMilliseconds_);
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
    const std::size_t most = std::min(size, bytesLeft_);
    ssize_t sent = -1;
    if (most > 0 && is_writable()) {
        sent = sendSome(socket_, bytes, most);
    }
    bytesLeft_ -= sent > 0 ? static_cast<std::size_t>(sent) : 0;
    sentAll_ = sentAll_ && sent > 0;
    return sent;
}

int RequestStream::millisecondsLeft() const {
    const auto left =
        std::chrono::ceil<std::chrono::milliseconds>(end_ - std::chrono::steady_clock::now());
    return static_cast<int>(std::max(left.count(), std::chrono::milliseconds::rep{0}));
}

bool RequestStream::fill() {
    pending_.clear();
    next_ = 0;
    const int milliseconds = millisecondsLeft();
    if (milliseconds == 0 || !withinBounds() || !isReadable(socket_, milliseconds)) {
        return false;
    }
    std::array<char, pieceBytes> piece{};
    const ssize_t count = receiveSome(socket_, piece.data(), piece.size());
    for (ssize_t i = 0; i < count; ++i) {
        pending_.push_back(taken(piece[static_cast<std::size_t>(i)]));
    }
    return count > 0;
}

bool RequestStream::withinBounds() const {
    return line_.size() <= mostLineBytes && headBytes_ <= mostHeadBytes &&
           bodyBytes_ <= mostBodyBytes;
}

char RequestStream::taken(char byte) {
    if (part_ == Part::Body) {
        ++bodyBytes_;
        return byte;
    }
    ++headBytes_;
    if (part_ == Part::Line) {
        return takenFromLine(byte);
    }
    if (byte == '\n') {
        part_ = blankLine_ ? Part::Body : Part::Head;
        blankLine_ = true;
    } else if (byte != '\r') {
        blankLine_ = false;
    }
    return byte;
}

char RequestStream::takenFromLine(char byte) {
    line_.push_back(byte);
    if (byte == '\n') {
        part_ = Part::Head;
        blankLine_ = true;
    }
    const bool hidden = marked_ && byte == '?';
    marked_ = marked_ || byte == '?';
    return hidden ? standIn : byte;
}

}  // namespace tarn::practice
