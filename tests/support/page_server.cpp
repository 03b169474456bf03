#include "tests/support/page_server.h"

#include <cstdlib>
#include <numeric>
#include <stdexcept>

namespace tarn::test {
namespace {

constexpr char page[] = "/Kestomain/TarnEmissao.asp";

}  // namespace

PageServer::PageServer(const CertificateFiles* certificate, const ServerHabits& habits)
    : secure_(certificate != nullptr) {
    ::setenv("no_proxy", "127.0.0.1,localhost", 1);  // no proxy of the machine's comes between
    if (certificate != nullptr) {
        server_ = std::make_unique<httplib::SSLServer>(certificate->certificate.c_str(),
                                                       certificate->key.c_str());
    } else {
        server_ = std::make_unique<httplib::Server>();
    }
    constexpr std::size_t endless = 1'000'000;
    constexpr std::size_t threads = 16;
    server_->set_tcp_nodelay(true);
    server_->set_keep_alive_max_count(habits.keeps ? endless : 1);
    server_->set_keep_alive_timeout(habits.seconds);
    server_->new_task_queue = [] { return new httplib::ThreadPool(threads); };
    server_->Get(page, [this](const httplib::Request& request, httplib::Response& response) {
        const std::scoped_lock lock(mutex_);
        ++arrivals_[request.target.substr(request.target.find('?') + 1)];
        response.set_content(answer, "text/xml");
    });
    if (!habits.tellsThat) {
        server_->set_post_routing_handler(
            [](const auto&, httplib::Response& response) { response.headers.erase("Keep-Alive"); });
    }
    port_ = server_->bind_to_any_port("127.0.0.1");
    if (port_ < 0) {
        throw std::runtime_error("no loopback port");
    }
    thread_ = std::thread([this] { server_->listen_after_bind(); });
    while (!server_->is_running()) {
        std::this_thread::yield();
    }
}

PageServer::~PageServer() {
    stop();
}

std::string PageServer::addressBy(int port) const {
    return (secure_ ? "https" : "http") + std::string("://127.0.0.1:") + std::to_string(port) +
           page + "?";
}

void PageServer::stop() {
    server_->stop();
    if (thread_.joinable()) {
        thread_.join();
    }
}

std::size_t PageServer::arrivals(const std::string& query) const {
    const std::scoped_lock lock(mutex_);
    const auto found = arrivals_.find(query);
    return found == arrivals_.end() ? 0 : found->second;
}

std::size_t PageServer::arrivals() const {
    const std::scoped_lock lock(mutex_);
    return std::accumulate(arrivals_.begin(), arrivals_.end(), std::size_t{},
                           [](std::size_t sum, const auto& entry) { return sum + entry.second; });
}

}  // namespace tarn::test
