// A connection's bytes, with the request line's later question marks hidden
// from a parser that takes only one.
#pragma once

#include <httplib.h>

#include <string>

namespace tarn::practice {

// A second "?" may stand as it is in a query, yet the library refuses it. Read
// through this stream each "?" of the request line but the first is "_", of the
// same length; target() has it as it came.
class RequestStream : public httplib::Stream {
public:
    // Doesn't own the socket. A read or write waits so many seconds at the most.
    RequestStream(socket_t socket, time_t readSeconds, time_t writeSeconds);

    // The target of the request line as it came; complete once the line is read.
    std::string target() const;

    void mute() { muted_ = true; }  // every write fails from then on

    bool is_readable() const override;
    bool is_writable() const override;
    ssize_t read(char* bytes, size_t size) override;
    ssize_t write(const char* bytes, size_t size) override;
    // No one asks where a request comes from.
    void get_remote_ip_and_port(std::string&, int&) const override {}
    void get_local_ip_and_port(std::string&, int&) const override {}
    socket_t socket() const override { return socket_; }

private:
    bool fill();
    char taken(char byte);

    socket_t socket_;
    int readMilliseconds_;
    int writeMilliseconds_;
    std::string line_;  // the request line as it came
    bool inLine_ = true;
    bool marked_ = false;
    bool muted_ = false;
    std::string pending_;  // taken from the socket, not yet read
    std::size_t next_ = 0;
};

}  // namespace tarn::practice
