#include "tests/support/loopback_server.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "tests/support/own_environment.h"

namespace tarn::test {
namespace {

std::string readHead(Socket connection) {
    std::string head;
    std::array<char, 4096> buffer{};
    while (head.find("\r\n\r\n") == std::string::npos) {
        const std::size_t count = receiveSome(connection, buffer.data(), buffer.size());
        if (count == 0) {
            break;
        }
        head.append(buffer.data(), count);
    }
    return head;
}

void sendReply(Socket connection, const LoopbackReply& reply) {
    const std::size_t announced = reply.body.size() + reply.streamed + reply.missing;
    std::string head = "HTTP/1.1 " + std::to_string(reply.status) + " x\r\nConnection: close\r\n";
    head += "Content-Length: " + std::to_string(announced) + "\r\n";
    for (const std::string& line : reply.headers) {
        head += line + "\r\n";
    }
    bool open = sendAll(connection, head + "\r\n") && sendAll(connection, reply.body);
    const std::string blanks(std::size_t{64} * 1024, ' ');
    const bool atOnce = reply.drip == reply.drip.zero();
    for (std::size_t left = atOnce ? reply.streamed : 0; open && left > 0;) {
        const std::size_t count = std::min(left, blanks.size());
        open = sendAll(connection, std::string_view(blanks).substr(0, count));
        left -= count;
    }
}

std::string littleEndian(std::uint32_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(value >> (8 * i));
    }
    return text;
}

std::uint32_t crc32(std::string_view text) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char c : text) {
        crc ^= static_cast<unsigned char>(c);
        for (int bit = 0; bit < 8; ++bit) {
            crc = (crc >> 1U) ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return ~crc;
}

std::string firstLine(const std::string& head) {
    return head.substr(0, head.find("\r\n"));
}

}  // namespace

LoopbackReply LoopbackReply::xml(std::string text) {
    return {.body = std::move(text), .headers = {"Content-Type: text/xml"}};
}

LoopbackReply LoopbackReply::error(int status, std::string text) {
    return {.status = status, .body = std::move(text), .headers = {"Content-Type: text/html"}};
}

LoopbackReply LoopbackReply::redirect(const std::string& location, int status) {
    return {.status = status, .body = "moved", .headers = {"Location: " + location}};
}

LoopbackReply LoopbackReply::hangUp() {
    return {.body = {}, .headers = {}, .closesAtOnce = true};
}

LoopbackReply LoopbackReply::cut(std::string text, std::size_t missing) {
    return {.body = std::move(text), .headers = {}, .missing = missing};
}

LoopbackReply LoopbackReply::huge(std::string begin, std::size_t bytes) {
    return {.body = std::move(begin), .headers = {}, .streamed = bytes};
}

// A gzip member whose one block is stored as it is: at most 65,535 bytes.
LoopbackReply LoopbackReply::gzip(const std::string& text) {
    const auto size = static_cast<std::uint32_t>(text.size());
    std::string packed("\x1F\x8B\x08\x00\x00\x00\x00\x00\x00\xFF\x01", 11);
    packed += littleEndian(size, 2) + littleEndian(~size, 2) + text;
    packed += littleEndian(crc32(text), 4) + littleEndian(size, 4);
    return {.body = packed, .headers = {"Content-Encoding: gzip"}};
}

LoopbackServer::LoopbackServer() : listener_(listenOnLoopback()) {
    setVariable("no_proxy", "127.0.0.1,localhost");  // no proxy of the machine's comes between
    thread_ = std::thread([this] { serve(); });
}

LoopbackServer::~LoopbackServer() {
    closePort();
}

std::string LoopbackServer::baseUrl() const {
    return "http://127.0.0.1:" + std::to_string(port()) + "/Kestomain/TarnEmissao.asp?";
}

LoopbackServer& LoopbackServer::on(const std::string& part, LoopbackReply reply) {
    const std::scoped_lock lock(mutex_);
    script_[part].push_back(std::move(reply));
    return *this;
}

void LoopbackServer::setHandler(Handler handler) {
    const std::scoped_lock lock(mutex_);
    handler_ = std::move(handler);
}

void LoopbackServer::closePort() {
    if (!thread_.joinable()) {
        return;
    }
    {
        const std::scoped_lock lock(mutex_);
        stopping_ = true;
        if (connection_ != noSocket) {
            endBothWays(connection_);
        }
    }
    changed_.notify_all();
    knock(port());
    thread_.join();
    closeSocket(listener_.socket);
}

void LoopbackServer::release() {
    {
        const std::scoped_lock lock(mutex_);
        released_ = true;
    }
    changed_.notify_all();
}

void LoopbackServer::waitForRequests(std::size_t count) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return heads_.size() >= count; });
}

std::vector<std::string> LoopbackServer::heads() const {
    const std::scoped_lock lock(mutex_);
    return heads_;
}

std::vector<std::string> LoopbackServer::requestLines() const {
    std::vector<std::string> lines;
    for (const std::string& head : heads()) {
        lines.push_back(firstLine(head));
    }
    return lines;
}

std::vector<std::string> LoopbackServer::queries() const {
    std::vector<std::string> all;
    for (const std::string& line : requestLines()) {
        const std::size_t begin = line.find('?') + 1;
        all.push_back(line.substr(begin, line.rfind(" HTTP/") - begin));
    }
    return all;
}

void LoopbackServer::serve() {
    while (true) {
        const Socket connection = nextConnection(listener_.socket);
        {
            const std::scoped_lock lock(mutex_);
            if (connection == noSocket || stopping_) {
                if (connection != noSocket) {
                    closeSocket(connection);
                }
                return;
            }
            connection_ = connection;
        }
        answer(connection);
        const std::scoped_lock lock(mutex_);
        connection_ = noSocket;
        closeSocket(connection);
    }
}

void LoopbackServer::answer(Socket connection) {
    const std::string head = readHead(connection);
    if (head.empty()) {
        return;
    }
    const LoopbackReply reply = replyFor(firstLine(head));
    {
        std::unique_lock lock(mutex_);
        heads_.push_back(head);
        changed_.notify_all();
        changed_.wait(lock, [&] { return !reply.waits || released_ || stopping_; });
    }
    if (!reply.closesAtOnce) {
        sendReply(connection, reply);
        drip(connection, reply);
        endSending(connection);
    }
}

void LoopbackServer::drip(Socket connection, const LoopbackReply& reply) {
    std::unique_lock lock(mutex_);
    if (reply.drip > reply.drip.zero()) {
        std::size_t left = reply.streamed;
        while (left > 0 && !changed_.wait_for(lock, reply.drip, [&] { return stopping_; }) &&
               sendAll(connection, " ")) {
            --left;
        }
    }
    changed_.wait(lock, [&] { return !reply.fallsSilent || released_ || stopping_; });
}

LoopbackReply LoopbackServer::replyFor(const std::string& requestLine) {
    std::unique_lock lock(mutex_);
    if (handler_) {
        const Handler handler = handler_;
        lock.unlock();
        return handler(requestLine);
    }
    std::deque<LoopbackReply>* best = nullptr;
    std::size_t bestLength = 0;
    for (auto& [part, replies] : script_) {
        const bool fits = requestLine.find(part) != std::string::npos;
        if (fits && (best == nullptr || part.size() > bestLength)) {
            best = &replies;
            bestLength = part.size();
        }
    }
    if (best == nullptr) {
        return LoopbackReply::error(404, "nothing scripted");
    }
    LoopbackReply reply = best->front();
    if (best->size() > 1) {
        best->pop_front();
    }
    return reply;
}

}  // namespace tarn::test
