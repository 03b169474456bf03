// The connection between two requests and under them, over a line that breaks.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/curl/curl_loader.h"
#include "tests/support/certificate.h"
#include "tests/support/loopback_server.h"
#include "tests/support/page_server.h"
#include "tests/support/relay.h"

namespace tarn::test {
namespace {

bool isRead(const std::string& address) {
    return address.find("READ") != std::string::npos;
}

class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tarn-line-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    const std::string& path() const { return path_; }

private:
    std::string path_;
};

// A server, the line to it, and a loader at its other end.
struct KeptLine {
    explicit KeptLine(const ServerHabits& habits = {}) : server(habits) {}
    explicit KeptLine(const CertificateFiles& certificate, const ServerHabits& habits = {})
        : server(certificate, habits), loader({}, isRead, certificate.certificate) {}

    HttpAnswer get(const std::string& query) {
        return loader.get(server.addressBy(relay.port()) + query);
    }

    PageServer server;
    Relay relay{server.port()};
    CurlLoader loader{{}, isRead};
};

TEST(Line, OneConnectionCarriesAllRequests) {
    KeptLine line;
    for (const char* query : {"READ=1", "WRITE=2", "READ=3", "WRITE=4"}) {
        EXPECT_EQ(line.get(query).body, PageServer::answer);
    }
    EXPECT_EQ(line.relay.connections(), 1U);
    EXPECT_EQ(line.server.arrivals(), 4U);
}

TEST(Line, OfAServerThatClosesTheNextConnectionIsOpenedAheadAndUsed) {
    KeptLine line({.keeps = false});
    for (std::size_t request = 1; request <= 3; ++request) {
        EXPECT_TRUE(line.get("READ").loaded);
        line.relay.waitForConnections(request + 1);
    }
    EXPECT_TRUE(line.get("WRITE").loaded);
    line.relay.waitForEnds(4);
    EXPECT_EQ(line.server.arrivals(), 4U);
    EXPECT_LE(line.relay.connections(), 5U);
}

TEST(Line, WhatTheServerClosesUnusedIsReplacedAFewTimesAndNoMore) {
    KeptLine line({.seconds = 1, .tellsThat = false});
    EXPECT_TRUE(line.get("READ").loaded);
    line.relay.waitForEnds(3);
    EXPECT_EQ(line.relay.connections(), 3U);
    EXPECT_TRUE(line.get("WRITE=1").loaded);
    line.relay.waitForConnections(4);
    EXPECT_TRUE(line.get("WRITE=2").loaded);
    EXPECT_EQ(line.server.arrivals(), 3U);
}

// The server has told for how long it keeps a connection.
TEST(Line, AConnectionIsGivenUpBeforeTheServerDoesSo) {
    KeptLine line({.seconds = 1});
    EXPECT_TRUE(line.get("READ").loaded);
    EXPECT_TRUE(line.get("WRITE").loaded);
    line.relay.waitForConnections(2);
    EXPECT_EQ(line.server.arrivals(), 2U);
}

TEST(Line, NeitherAnUnusedConnectionNorAServerOutOfReachHoldsUpTheEnd) {
    auto loader = std::make_unique<CurlLoader>();
    {
        LoopbackServer server;
        server.on("", LoopbackReply::xml("<R/>"));
        EXPECT_TRUE(loader->get(server.baseUrl() + "READ").loaded);
    }
    loader.reset();
}

// Every byte of a request, and of an answer: the line breaks behind it.
class BrokenLine : public testing::Test {
protected:
    struct Case {
        bool kept;  // the connection, from a request before
        bool reads;
        Relay::Way way;
        Relay::End end;
    };

    void serve(std::optional<CertificateFiles> certificate) {
        certificate_ = std::move(certificate);
        server_ = certificate_ ? std::make_unique<PageServer>(*certificate_)
                               : std::make_unique<PageServer>();
    }

    std::unique_ptr<CurlLoader> newLoader() const {
        return std::make_unique<CurlLoader>(TimeLimits(), isRead,
                                            certificate_ ? certificate_->certificate : "");
    }

    // How many bytes of that way the request takes over a line that holds.
    std::size_t bytesOf(const Case& broken) {
        Relay relay(server_->port());
        const auto loader = newLoader();
        const std::string address = server_->addressBy(relay.port());
        if (broken.kept) {
            loader->get(address + "READ=warm");
        }
        const std::size_t before = relay.passed(broken.way);
        EXPECT_TRUE(loader->get(address + "READ=whole").loaded);
        return relay.passed(broken.way) - before;
    }

    // The server has the whole of it, if all of the request passed.
    void breakAfter(const Case& broken, std::size_t bytes) {
        Relay relay(server_->port());
        const auto loader = newLoader();
        const std::string address = server_->addressBy(relay.port());
        if (broken.kept) {
            ASSERT_TRUE(loader->get(address + "READ=warm").loaded);
        }
        relay.cutAfter(broken.way, bytes, broken.end);
        const std::string query =
            (broken.reads ? "READ=" : "WRITE=") + std::to_string(queries_.size());
        const bool loaded = loader->get(address + query).loaded;
        queries_.push_back({query, loaded});
    }

    void breakEverywhere(const Case& broken) {
        const std::size_t all = bytesOf(broken);
        ASSERT_GT(all, 50U);
        for (std::size_t bytes = 0; bytes <= all; ++bytes) {
            breakAfter(broken, bytes);
        }
    }

    // Once the server counts no more.
    void expectNoneTwice() {
        server_->stop();
        std::size_t arrived = 0;
        std::size_t lost = 0;
        for (const auto& [query, loaded] : queries_) {
            const std::size_t times = server_->arrivals(query);
            EXPECT_LE(times, 1U) << query;
            EXPECT_TRUE(times == 1U || !loaded) << query << " was answered by nobody";
            arrived += times;
            lost += loaded ? 0U : 1U;
        }
        EXPECT_GT(arrived, 0U);
        EXPECT_GT(lost, 0U);
    }

    void breakAll(bool kept, bool reads) {
        for (const Relay::Way way : {Relay::Way::ToServer, Relay::Way::ToClient}) {
            for (const Relay::End end : {Relay::End::Close, Relay::End::Reset}) {
                breakEverywhere({kept, reads, way, end});
            }
        }
        expectNoneTwice();
    }

    TemporaryFolder folder_;

private:
    struct Asked {
        std::string query;
        bool loaded;
    };

    std::optional<CertificateFiles> certificate_;
    std::unique_ptr<PageServer> server_;
    std::vector<Asked> queries_;
};

TEST_F(BrokenLine, NoWriteArrivesTwiceOverANewConnection) {
    serve({});
    breakAll(false, false);
}

TEST_F(BrokenLine, NoWriteArrivesTwiceOverAKeptConnection) {
    serve({});
    breakAll(true, false);
}

TEST_F(BrokenLine, NorDoesAReadOverANewConnection) {
    serve({});
    breakAll(false, true);
}

TEST_F(BrokenLine, NorDoesAReadOverAKeptConnection) {
    serve({});
    breakAll(true, true);
}

TEST_F(BrokenLine, NoWriteArrivesTwiceOverAKeptConnectionWithTls) {
    serve(makeCertificate(folder_.path(), "server"));
    breakAll(true, false);
}

TEST_F(BrokenLine, NoWriteArrivesTwiceOverANewConnectionWithTls) {
    serve(makeCertificate(folder_.path(), "server"));
    breakEverywhere({false, false, Relay::Way::ToServer, Relay::End::Reset});
    breakEverywhere({false, false, Relay::Way::ToClient, Relay::End::Close});
    expectNoneTwice();
}

class SecureLine : public testing::Test {
protected:
    TemporaryFolder folder_;
};

TEST_F(SecureLine, ATrustedServerIsAskedOverOneConnection) {
    KeptLine line(makeCertificate(folder_.path(), "server"));
    EXPECT_EQ(line.get("READ").body, PageServer::answer);
    EXPECT_EQ(line.get("WRITE").body, PageServer::answer);
    EXPECT_EQ(line.relay.connections(), 1U);
}

// A resumed session brings no certificate over the line.
TEST_F(SecureLine, ASessionIsTakenUpAgain) {
    KeptLine line(makeCertificate(folder_.path(), "server"), {.keeps = false});
    EXPECT_TRUE(line.get("READ").loaded);
    line.relay.waitForEnds(1);
    const std::size_t whole = line.relay.passed(Relay::Way::ToClient);
    EXPECT_TRUE(line.get("WRITE").loaded);
    line.relay.waitForEnds(2);
    const std::size_t certificateBytes = 300;  // at the least, of the smallest kind
    EXPECT_LT(line.relay.passed(Relay::Way::ToClient) + certificateBytes, 2 * whole);
}

TEST_F(SecureLine, AServerWithAnotherCertificateIsToldNothing) {
    const CertificateFiles trusted = makeCertificate(folder_.path(), "trusted");
    const CertificateFiles stranger = makeCertificate(folder_.path(), "stranger");
    PageServer server(stranger);
    CurlLoader loader({}, isRead, trusted.certificate);
    EXPECT_FALSE(loader.get(server.addressBy(server.port()) + "WRITE").loaded);
    CurlLoader ofTheMachine({}, isRead);
    EXPECT_FALSE(ofTheMachine.get(server.addressBy(server.port()) + "WRITE").loaded);
    server.stop();
    EXPECT_EQ(server.arrivals(), 0U);
}

TEST_F(SecureLine, ACertificateForAnotherHostIsRefused) {
    const CertificateFiles other = makeCertificate(folder_.path(), "other", "127.0.0.2");
    PageServer server(other);
    CurlLoader loader({}, isRead, other.certificate);
    EXPECT_FALSE(loader.get(server.addressBy(server.port()) + "WRITE").loaded);
    server.stop();
    EXPECT_EQ(server.arrivals(), 0U);
}

TEST_F(SecureLine, ACertificateThatIsOverIsRefused) {
    const CertificateFiles old = makeCertificate(folder_.path(), "old", "127.0.0.1", 0);
    PageServer server(old);
    CurlLoader loader({}, isRead, old.certificate);
    EXPECT_FALSE(loader.get(server.addressBy(server.port()) + "WRITE").loaded);
    server.stop();
    EXPECT_EQ(server.arrivals(), 0U);
}

}  // namespace
}  // namespace tarn::test
