// A real HTTP server on 127.0.0.1 for tests: own thread, own port, one connection at
// a time, every one closed after its answer. Answers by a script, misbehaves on request,
// keeps the raw request lines.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/plain_sockets.h"

namespace tarn::test {

struct LoopbackReply {
    int status = 200;
    std::string body;
    std::vector<std::string> headers;   // further header lines, without their line end
    std::size_t missing = 0;            // bytes announced beyond those that come
    std::size_t streamed = 0;           // blanks sent behind the body, as many as asked
    bool closesAtOnce = false;          // hangs up without a word
    bool waits = false;                 // answers only after release()
    std::chrono::milliseconds drip{0};  // one blank behind the body so often, `streamed` in all
    bool fallsSilent = false;           // behind what it sends, until release()

    static LoopbackReply xml(std::string text);
    static LoopbackReply error(int status, std::string text);
    static LoopbackReply redirect(const std::string& location, int status = 302);
    static LoopbackReply hangUp();
    static LoopbackReply cut(std::string text, std::size_t missing = 100);
    static LoopbackReply huge(std::string begin, std::size_t bytes);
    static LoopbackReply gzip(const std::string& text);
};

class LoopbackServer {
public:
    using Handler = std::function<LoopbackReply(const std::string& requestLine)>;

    LoopbackServer();
    ~LoopbackServer();
    LoopbackServer(const LoopbackServer&) = delete;
    LoopbackServer& operator=(const LoopbackServer&) = delete;

    int port() const { return listener_.port; }
    std::string baseUrl() const;  // the one page, question mark included

    // The next answers for request lines that contain `part`, one request each, the
    // last one for all further requests. Of several parts that fit the longest counts.
    // What nothing fits is answered with 404.
    LoopbackServer& on(const std::string& part, LoopbackReply reply);
    void setHandler(Handler handler);  // asked instead of the script

    void closePort();                         // from now on connections are refused
    void release();                           // lets the answers that wait go
    void waitForRequests(std::size_t count);  // returns when so many have come

    std::vector<std::string> requestLines() const;  // raw, "GET ... HTTP/1.1"
    std::vector<std::string> queries() const;       // what stands behind the "?"
    std::vector<std::string> heads() const;         // whole request heads, raw

private:
    void serve();
    void answer(Socket connection);
    void drip(Socket connection, const LoopbackReply& reply);
    LoopbackReply replyFor(const std::string& requestLine);

    Listener listener_;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::map<std::string, std::deque<LoopbackReply>> script_;
    Handler handler_;
    std::vector<std::string> heads_;
    bool released_ = false;
    bool stopping_ = false;
    Socket connection_ = noSocket;
    std::thread thread_;
};

}  // namespace tarn::test
