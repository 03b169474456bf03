// A connection's bytes, with the request line's later question marks hidden
// from a parser that takes only one, and no more of them than a request may have.
#pragma once

#include <httplib.h>

#include <chrono>
#include <cstddef>
#include <limits>
#include <string>

namespace tarn::practice {

// A second "?" may stand as it is in a query, yet the library refuses it. Read
// through this stream each "?" of the request line but the first is "_", of the
// same length; target() has it as it came.
//
// The library looks at a line's length only once the line has ended, so the bounds are
// here: beyond them reading fails, and so it does when the whole request isn't there in time.
class RequestStream : public httplib::Stream {
public:
    static constexpr std::size_t mostLineBytes = 64UL * 1024;
    static constexpr std::size_t mostHeadBytes = 256UL * 1024;  // the request line among them
    static constexpr std::size_t mostBodyBytes = 64UL * 1024;   // the page reads none

    // Doesn't own the socket. A request has so long from the end of the one before it, the first
    // one from now on; a write waits so many seconds at the most.
    RequestStream(socket_t socket, std::chrono::milliseconds requestTime, time_t writeSeconds);

    // The next request of the connection: its bounds and its time begin anew.
    void beginNext();

    // The target of the request line as it came; complete once the line is read.
    std::string target() const;

    void mute() { bytesLeft_ = 0; }  // every write fails from then on
    // After so many bytes every write fails, and whoever asked is to be reset.
    void resetAfter(std::size_t bytes) {
        bytesLeft_ = bytes;
        reset_ = true;
    }
    bool isToBeReset() const { return reset_; }
    // Whether all that was to be sent has been: the library looks at few of its writes.
    bool hasSentAll() const { return sentAll_; }

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* bytes, size_t size) override;
    ssize_t write(const char* bytes, size_t size) override;
    // No one asks where a request comes from.
    void get_remote_ip_and_port(std::string&, int&) const override {}
    void get_local_ip_and_port(std::string&, int&) const override {}
    socket_t socket() const override { return socket_; }

private:
    enum class Part { Line, Head, Body };

    int millisecondsLeft() const;
    bool fill();
    bool withinBounds() const;
    char taken(char byte);
    char takenFromLine(char byte);

    socket_t socket_;
    std::chrono::milliseconds requestTime_;
    std::chrono::steady_clock::time_point end_;
    int writeMilliseconds_;
    std::string line_;  // the request line as it came
    Part part_ = Part::Line;
    std::size_t headBytes_ = 0;
    std::size_t bodyBytes_ = 0;
    bool blankLine_ = false;  // nothing in the head's present line so far
    bool marked_ = false;
    std::size_t bytesLeft_ = std::numeric_limits<std::size_t>::max();
    bool reset_ = false;
    bool sentAll_ = true;
    std::string pending_;  // taken from the socket, not yet read
    std::size_t next_ = 0;
};

}  // namespace tarn::practice
