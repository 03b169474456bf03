// What no browser sends: requests without an end, and connections that say nothing.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <memory>
#include <vector>

#include "practice/server/http_front.h"
#include "tests/practice/serving.h"
#include "tests/support/loopback_address.h"

namespace tarn::practice::test {
namespace {

using std::chrono::milliseconds;
using std::chrono::minutes;

constexpr std::size_t megabyte = 1UL << 20;
constexpr int patience = 60000;  // milliseconds, for a slow machine

class Connection {
public:
    explicit Connection(const Serving& serving) : socket_(socket(AF_INET, SOCK_STREAM, 0)) {
        const sockaddr_in place = tarn::test::loopbackAddress(serving.port());
        EXPECT_EQ(connect(socket_, reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
    }
    ~Connection() { close(socket_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    // False once the server has closed.
    bool send(const std::string& bytes) const {
        std::size_t sent = 0;
        while (sent < bytes.size()) {
            const ssize_t count =
                ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
            if (count <= 0) {
                return false;
            }
            sent += static_cast<std::size_t>(count);
        }
        return true;
    }

    // How many bytes of the kind the server takes before it closes, `most` at the most.
    std::size_t sendUntilClosed(const std::string& piece, std::size_t most) const {
        std::size_t sent = 0;
        while (sent < most && send(piece)) {
            sent += piece.size();
        }
        return sent;
    }

    bool hasNews(int wait) const {
        pollfd wanted{socket_, POLLIN, 0};
        return poll(&wanted, 1, wait) > 0;
    }

    // What comes until the server closes.
    std::string answer() const {
        std::string all;
        std::array<char, 4096> piece{};
        ssize_t count = 0;
        while (hasNews(patience) && (count = recv(socket_, piece.data(), piece.size(), 0)) > 0) {
            all.append(piece.data(), static_cast<std::size_t>(count));
        }
        return all;
    }

private:
    int socket_;
};

std::string page(std::string_view /*query*/) {
    return "<R/>";
}

// More than what the buffers of both ends of a connection hold.
constexpr std::size_t endless = 64 * megabyte;

TEST(HttpLimits, ARequestLineWithoutEndIsCutOff) {
    const Serving serving(page, minutes(10));
    const Connection connection(serving);
    ASSERT_TRUE(connection.send("GET /Kestomain/TarnEmissao.asp?comando="));
    EXPECT_LT(connection.sendUntilClosed(std::string(65536, 'x'), endless), endless);
    EXPECT_EQ(connection.answer(), "");
}

TEST(HttpLimits, HeadersWithoutEndAreCutOff) {
    const Serving serving(page, minutes(10));
    const Connection connection(serving);
    ASSERT_TRUE(connection.send("GET /Kestomain/TarnEmissao.asp?comando=X HTTP/1.1\r\n"));
    std::string lines;
    while (lines.size() < 65536) {
        lines += "Xabcdefgh: abcdefgh\r\n";
    }
    EXPECT_LT(connection.sendUntilClosed(lines, endless), endless);
}

TEST(HttpLimits, ABodyWithoutEndIsCutOff) {
    const Serving serving(page, minutes(10));
    for (const std::string head :
         {"Content-Length: 100000000\r\n\r\n", "Transfer-Encoding: chunked\r\n\r\n5F5E100\r\n"}) {
        const Connection connection(serving);
        ASSERT_TRUE(connection.send("POST /Kestomain/TarnEmissao.asp HTTP/1.1\r\n" + head));
        EXPECT_LT(connection.sendUntilClosed(std::string(65536, 'x'), endless), endless) << head;
    }
}

TEST(HttpLimits, ALongRequestWithinThemIsServed) {
    std::string seen;
    const Serving serving([&seen](std::string_view query) {
        seen = query;
        return std::string("<R/>");
    });
    const Connection connection(serving);
    std::string request =
        "GET /Kestomain/TarnEmissao.asp?A=" + std::string(8000, 'x') + " HTTP/1.1\r\n";
    for (int line = 0; line < 20; ++line) {
        request += "X-" + std::to_string(line) + ": " + std::string(8000, 'y') + "\r\n";
    }
    ASSERT_TRUE(connection.send(request + "Connection: close\r\n\r\n"));
    EXPECT_EQ(connection.answer().rfind("HTTP/1.1 200 OK\r\n", 0), 0U);
    EXPECT_EQ(seen.size(), 8002U);
}

// The parts come more often than a wait for one would end.
TEST(HttpLimits, ARequestThatComesInDropsIsCutOffInTime) {
    const Serving serving(page, milliseconds(300));
    const Connection connection(serving);
    ASSERT_TRUE(connection.send("GET / HTTP/1.1\r\n"));
    int drops = 0;
    while (drops < patience / 100 && connection.send("x") && !connection.hasNews(100)) {
        ++drops;
    }
    EXPECT_LT(drops, patience / 100);
}

TEST(HttpLimits, SilentConnectionsKeepNobodyWaiting) {
    const Serving serving(page, minutes(10));
    std::vector<std::unique_ptr<Connection>> silent(200);
    for (std::unique_ptr<Connection>& connection : silent) {
        connection = std::make_unique<Connection>(serving);
    }
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(silent[static_cast<std::size_t>(i)]->send("GET /"));
    }
    httplib::Client client("127.0.0.1", serving.port());
    client.set_read_timeout(patience / 1000);
    const auto result = client.Get(std::string(pagePath) + "?comando=X");
    ASSERT_TRUE(result);
    EXPECT_EQ(result->body, "<R/>");
    for (const auto& connection : silent) {
        EXPECT_FALSE(connection->hasNews(0)) << "closed before the others were served";
    }
}

std::string requestFor(const std::string& query) {
    return "GET /Kestomain/TarnEmissao.asp?" + query + " HTTP/1.1\r\nHost: x\r\n";
}

TEST(HttpLimits, AConnectionCarriesManyRequestsAlsoSeveralAtOnce) {
    std::vector<std::string> seen;
    const Serving serving([&seen](std::string_view query) {
        seen.emplace_back(query);
        return std::string("<R/>");
    });
    const Connection connection(serving);
    ASSERT_TRUE(connection.send(requestFor("A=1?") + "\r\n"));
    ASSERT_TRUE(connection.hasNews(patience));
    ASSERT_TRUE(connection.send(requestFor("A=2??") + "\r\n" + requestFor("A=3?=?") + "\r\n" +
                                requestFor("A=4") + "Connection: close\r\n\r\n"));
    connection.answer();
    EXPECT_EQ(seen, (std::vector<std::string>{"A=1?", "A=2??", "A=3?=?", "A=4"}));
}

TEST(HttpLimits, ABodyThatNobodyReadsIsNoNextRequest) {
    std::vector<std::string> seen;
    const Serving serving([&seen](std::string_view query) {
        seen.emplace_back(query);
        return std::string("<R/>");
    });
    const Connection connection(serving);
    const std::string hidden = requestFor("A=hidden") + "\r\n";
    ASSERT_TRUE(connection.send(requestFor("A=1") + "Content-Length: " +
                                std::to_string(hidden.size()) + "\r\n\r\n" + hidden));
    connection.answer();
    EXPECT_EQ(seen, std::vector<std::string>{"A=1"});
}

TEST(HttpLimits, AnUnusedConnectionIsClosedInTime) {
    const Serving serving(page, milliseconds(300));
    const Connection connection(serving);
    ASSERT_TRUE(connection.send(requestFor("A=1") + "\r\n"));
    EXPECT_EQ(connection.answer().rfind("HTTP/1.1 200 OK\r\n", 0), 0U);
}

TEST(HttpLimits, TheEndWaitsForNoSilentConnection) {
    auto serving = std::make_unique<Serving>(page, minutes(10));
    const Connection silent(*serving);
    ASSERT_TRUE(silent.send("GET /"));
    ASSERT_TRUE(serving->get("/"));
    serving.reset();
    EXPECT_EQ(silent.answer(), "");
}

}  // namespace
}  // namespace tarn::practice::test
