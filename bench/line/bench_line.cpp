// What a clerk waits for on a slow line, in round trips: the desk's requests over a relay that
// delays by 25 ms each way, beside a connection for each request. A round trip is what a byte
// takes that the relay carries there and back.
#include <arpa/inet.h>
#include <curl/curl.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "bench/support/measure.h"
#include "gateway/command_effects.h"
#include "gateway/commands.h"
#include "platform/curl/curl_loader.h"
#include "tests/support/certificate.h"
#include "tests/support/loopback_address.h"
#include "tests/support/page_server.h"
#include "tests/support/relay.h"

namespace {

using tarn::bench::Limits;
using tarn::test::CertificateFiles;
using tarn::test::PageServer;
using tarn::test::Relay;
using tarn::test::ServerHabits;

constexpr std::chrono::milliseconds delay{25};  // each way
constexpr int times = 12;
constexpr int slips = 100;

double wallSecondsOf(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void fail(const char* what) {
    std::fprintf(stderr, "bench_line: %s\n", what);
    std::exit(2);
}

// Gives back each byte that it gets over one connection.
class Echo {
public:
    Echo() : listener_(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address = tarn::test::loopbackAddress(0);
        socklen_t length = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        if (bind(listener_, generic, length) != 0 || listen(listener_, 1) != 0 ||
            getsockname(listener_, generic, &length) != 0) {
            fail("no port");
        }
        port_ = ntohs(address.sin_port);
        thread_ = std::thread([this] {
            const int taken = accept(listener_, nullptr, nullptr);
            char byte = 0;
            while (recv(taken, &byte, 1, 0) == 1 && send(taken, &byte, 1, MSG_NOSIGNAL) == 1) {
            }
            close(taken);
        });
    }
    ~Echo() {
        thread_.join();
        close(listener_);
    }
    Echo(const Echo&) = delete;
    Echo& operator=(const Echo&) = delete;
    int port() const { return port_; }

private:
    int listener_;
    int port_ = 0;
    std::thread thread_;
};

double roundTripSeconds() {
    const Echo echo;
    const Relay relay(echo.port(), delay);
    const int line = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = tarn::test::loopbackAddress(relay.port());
    if (connect(line, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        fail("no line");
    }
    std::vector<double> trips;
    for (int i = 0; i <= times; ++i) {
        trips.push_back(wallSecondsOf([line] {
            char byte = 'x';
            if (send(line, &byte, 1, 0) != 1 || recv(line, &byte, 1, 0) != 1) {
                fail("the line broke");
            }
        }));
    }
    close(line);
    trips.erase(trips.begin());  // with the connection's own
    return tarn::bench::medianOf(trips);
}

// A desk's way to the server, at one end of the slow line.
class Way {
public:
    virtual ~Way() = default;
    virtual bool ask(const std::string& address) = 0;
};

class Desk : public Way {
public:
    explicit Desk(const std::string& authorities)
        : loader_({}, tarn::commands::onlyReads, authorities) {}
    bool ask(const std::string& address) override { return loader_.get(address).loaded; }

private:
    tarn::CurlLoader loader_;
};

// The peer: libcurl, with a connection and a TLS handshake for each request.
class ConnectionEach : public Way {
public:
    explicit ConnectionEach(std::string authorities) : authorities_(std::move(authorities)) {}
    bool ask(const std::string& address) override {
        CURL* curl = curl_easy_init();
        curl_easy_setopt(curl, CURLOPT_URL, address.c_str());
        curl_easy_setopt(curl, CURLOPT_FORBID_REUSE, 1L);
        if (!authorities_.empty()) {
            curl_easy_setopt(curl, CURLOPT_CAINFO, authorities_.c_str());
        }
        curl_easy_setopt(
            curl, CURLOPT_WRITEFUNCTION,
            +[](char*, std::size_t size, std::size_t count, void*) { return size * count; });
        const bool done = curl_easy_perform(curl) == CURLE_OK;
        curl_easy_cleanup(curl);
        return done;
    }

private:
    std::string authorities_;
};

struct Slow {
    Slow(const CertificateFiles* certificate, const ServerHabits& habits)
        : server(certificate != nullptr ? std::make_unique<PageServer>(*certificate, habits)
                                        : std::make_unique<PageServer>(habits)),
          authorities(certificate != nullptr ? certificate->certificate : std::string()) {}

    std::unique_ptr<PageServer> server;
    Relay relay{server->port(), delay};
    std::string authorities;

    // The requests one after another, as a job of the desk sends them.
    void ask(Way& way, const std::vector<std::string>& queries) {
        for (const std::string& query : queries) {
            if (!way.ask(server->addressBy(relay.port()) + query)) {
                fail("a request failed");
            }
        }
    }
};

struct Job {
    const char* what;
    std::vector<std::string> queries;
    bool cold;  // the program has just begun
    int times;
};

std::vector<Job> jobs() {
    const tarn::Sessao session;
    const tarn::commands::Slip slip{.branch = "1", .documentKind = "1", .document = "45001"};
    Job slipRun{"a hundred slips", {tarn::commands::sel_carteira_cob(session, 1)}, false, 1};
    for (int i = 0; i < slips; ++i) {
        slipRun.queries.push_back(tarn::commands::altera_docto_cob(session, slip));
    }
    return {
        {"a read", {tarn::commands::sel_ordem_fatu(session)}, false, times},
        {"a write", {tarn::commands::sp_can_oft(session, "1", "2")}, false, times},
        {"start and logon (3 requests)",
         {tarn::commands::VERSAO_TARN_EMISSAO("07/01/2009"),
          tarn::commands::LOGIN("1361", "ana", "x"), tarn::commands::sel_dados_empresa(session)},
         true,
         times / 2},
        {"a note (4 requests)",
         {tarn::commands::Seleciona_Obs_Vnd_X_Ord(session, "1"),
          tarn::commands::Seleciona_Obs_Ord_X_Est(session, "1"),
          tarn::commands::SP_GERA_NF(session, "1"), tarn::commands::sel_gera_nf(session, "1", "1")},
         false,
         times / 2},
        slipRun};
}

template <typename Kind>
double secondsOf(Slow& slow, const Job& job) {
    std::vector<double> all;
    Kind warm(slow.authorities);
    slow.ask(warm, {"comando=warm"});
    for (int i = 0; i < job.times; ++i) {
        Kind fresh(slow.authorities);
        Way& way = job.cold ? static_cast<Way&>(fresh) : warm;
        all.push_back(wallSecondsOf([&] { slow.ask(way, job.queries); }));
    }
    return tarn::bench::medianOf(all);
}

// As secondsOf for one request, with a while between two in which the clerk reads.
double secondsAfterReading(Slow& slow, const std::string& query) {
    std::vector<double> all;
    Desk desk(slow.authorities);
    slow.ask(desk, {"comando=warm"});
    for (int i = 0; i < times; ++i) {
        std::this_thread::sleep_for(8 * delay);
        all.push_back(wallSecondsOf([&] { slow.ask(desk, {query}); }));
    }
    return tarn::bench::medianOf(all);
}

// How many round trips there must be, with a tenth for the rest; a read and a write have
// limits of their own.
double limitOf(const Job& job, bool secure) {
    constexpr double readLimit = 1.2;
    constexpr double writeLimit = 2.2;
    constexpr double rest = 1.1;
    if (job.queries.size() == 1) {
        return job.what == std::string("a write") ? writeLimit : readLimit;
    }
    const double connection = !job.cold ? 0 : secure ? 2 : 1;
    return (connection + static_cast<double>(job.queries.size())) * rest;
}

}  // namespace

int main() {
    setenv("no_proxy", "127.0.0.1", 1);
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("bench_line-" + std::to_string(getpid()));
    std::filesystem::create_directory(folder);
    const CertificateFiles certificate = tarn::test::makeCertificate(folder.string(), "server");
    const double trip = roundTripSeconds();
    std::printf("a round trip takes %.1f ms\n", trip * 1e3);
    Limits limits;
    for (const bool secure : {false, true}) {
        const char* scheme = secure ? "https" : "http";
        const CertificateFiles* of = secure ? &certificate : nullptr;
        Slow slow(of, {});
        for (const Job& job : jobs()) {
            const double each = secondsOf<ConnectionEach>(slow, job) / trip;
            const double kept = secondsOf<Desk>(slow, job) / trip;
            std::printf("%s, %s: a connection each %.2f round trips\n", scheme, job.what, each);
            limits.check(std::string(scheme) + ", " + job.what + ": round trips", kept,
                         limitOf(job, secure));
        }
        Slow closing(of, {.keeps = false});
        const double after =
            secondsAfterReading(closing, tarn::commands::sel_ordem_fatu(tarn::Sessao())) / trip;
        limits.check(std::string(scheme) + ", a server that closes, after a while: round trips",
                     after, secure ? 2.2 : 1.2);
    }
    std::filesystem::remove_all(folder);
    return limits.exitStatus();
}
