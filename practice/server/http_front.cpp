#include "practice/server/http_front.h"

#include <httplib.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <limits>
#include <mutex>
#include <set>
#include <stdexcept>
#include <thread>
#include <utility>

#include "practice/server/connection_threads.h"
#include "practice/server/request_stream.h"
#include "practice/server/sockets.h"

namespace tarn::practice {
namespace {

constexpr const char* plainText = "text/plain; charset=utf-8";
constexpr time_t turnMicroseconds = 50000;
constexpr std::size_t blanksAtOnce = 1U << 16;
constexpr std::size_t someOfTheHead = 20;   // bytes
constexpr std::size_t mostRequests = 1000;  // of a connection

std::string whyNotBound(const std::string& address, int port) {
    const std::string place = "a porta " + std::to_string(port) + " do endereço " + address;
    switch (lastPortRefusal()) {
        case PortRefusal::Taken:
            return "Não foi possível usar " + place +
                   ": já está ocupada por outro programa. Escolha outra com --porta, ou 0 para "
                   "uma porta livre qualquer.";
        case PortRefusal::Forbidden:
            return "Não foi possível usar " + place +
                   ": o sistema não permite. Escolha uma porta acima de 1023 com --porta.";
        case PortRefusal::NotOfThisMachine:
            return "O endereço " + address +
                   " não é desta máquina. Escolha outro com --endereco, por exemplo 127.0.0.1.";
        case PortRefusal::Other:
            break;
    }
    return "Não foi possível usar " + place + ". Escolha outros com --endereco e --porta.";
}

std::string_view queryOf(std::string_view target) {
    const std::size_t mark = target.find('?');
    return mark == std::string_view::npos ? std::string_view{} : target.substr(mark + 1);
}

// The connections being served, so that the end waits for no silent one.
class OpenConnections {
public:
    // False once all have been ended; the connection isn't taken then.
    bool add(socket_t socket) {
        const std::lock_guard lock(mutex_);
        return !ended_ && open_.insert(socket).second;
    }
    void remove(socket_t socket) {
        const std::lock_guard lock(mutex_);
        open_.erase(socket);
    }
    // Nothing more is read; what is being answered is still sent.
    void endReading() {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        for (const socket_t socket : open_) {
            practice::endReading(socket);
        }
    }

private:
    std::mutex mutex_;
    std::set<socket_t> open_;
    bool ended_ = false;
};

// The target of a request is handed on as it came.
class PageServer : public httplib::Server {
public:
    explicit PageServer(std::chrono::milliseconds requestTime) : requestTime_(requestTime) {}

    // Keeps the request that this thread is serving without an answer.
    static void sendNothing() { current_->mute(); }
    // Sends at most so many bytes of the answer and resets the connection.
    static void resetAfter(std::size_t bytes) { current_->resetAfter(bytes); }
    void endReading() { connections_.endReading(); }
    // Of connections not yet taken; the library asks for five.
    void lengthenQueue() { ::listen(svr_sock_, SOMAXCONN); }

private:
    bool process_and_close_socket(socket_t socket) override {
        bool done = false;
        if (connections_.add(socket)) {
            done = serve(socket);
            connections_.remove(socket);
        } else {
            endBothWays(socket);
        }
        closeSocket(socket);
        return done;
    }

    bool serve(socket_t socket) {
        RequestStream stream(socket, requestTime_, write_timeout_sec_);
        current_ = &stream;
        bool done = true;
        for (std::size_t left = mostRequests; left > 0 && done && serveOne(stream, left == 1, done);
             --left) {
            stream.beginNext();
        }
        if (stream.isToBeReset()) {
            resetWhenClosed(socket);
        } else {
            endBothWays(socket);
        }
        return done;
    }

    // Whether the connection can carry another one.
    bool serveOne(RequestStream& stream, bool last, bool& done) {
        if (!stream.is_readable()) {
            return false;
        }
        bool closed = false;
        bool understood = false;
        done = process_request(stream, last, closed, [&](httplib::Request& request) {
            request.target = stream.target();
            // Uncompressed: the library would spend a tenth of a second on a long list.
            request.headers.erase("Accept-Encoding");
            // The library leaves a body where it is that comes with a GET.
            understood =
                !request.has_header("Content-Length") && !request.has_header("Transfer-Encoding");
        });
        return done && understood && !closed && stream.hasSentAll();
    }

    static thread_local RequestStream* current_;  // of the request being served

    std::chrono::milliseconds requestTime_;
    OpenConnections connections_;
};

thread_local RequestStream* PageServer::current_ = nullptr;

// A body of which only the first half leaves before the connection closes.
void sendHalf(httplib::Response& response, std::string body, const std::string& type) {
    const std::size_t size = body.size();
    response.set_content_provider(
        size, type, [body = std::move(body)](std::size_t, std::size_t, httplib::DataSink& sink) {
            sink.write(body.data(), body.size() / 2);
            return false;
        });
}

// A body and blanks behind it, sent in pieces.
void sendWithBlanks(httplib::Response& response, std::string body, std::size_t blanks,
                    const std::string& type) {
    const std::size_t size = body.size() + blanks;
    response.set_content_provider(
        size, type,
        [body = std::move(body)](std::size_t at, std::size_t left, httplib::DataSink& sink) {
            if (at < body.size()) {
                return sink.write(body.data() + at, body.size() - at);
            }
            const std::string piece(std::min(left, blanksAtOnce), ' ');
            return sink.write(piece.data(), piece.size());
        });
}

void sendWhole(httplib::Response& response, Page page, const std::string& type) {
    if (page.blanksBehind > 0) {
        sendWithBlanks(response, std::move(page.body), page.blanksBehind, type);
    } else {
        response.set_content(page.body, type);
    }
}

}  // namespace

struct HttpFront::State {
    explicit State(std::chrono::milliseconds requestTime) : server(requestTime) {}

    Answer answer;
    std::string contentType;
    PageServer server;
    std::atomic<bool> finished = false;
    std::mutex mutex;
    std::condition_variable stopping;
    bool stopped = false;

    void send(Page page, httplib::Response& response);
};

void HttpFront::State::send(Page page, httplib::Response& response) {
    if (page.wait > page.wait.zero()) {
        std::unique_lock lock(mutex);
        stopping.wait_for(lock, page.wait, [this] { return stopped; });
    }
    const std::string type = page.contentType.empty() ? contentType : page.contentType;
    response.status = page.status;
    switch (page.ending) {
        case Ending::Before:
            PageServer::sendNothing();
            break;
        case Ending::ResetBefore:
            PageServer::resetAfter(0);
            break;
        case Ending::ResetWithinHead:
            PageServer::resetAfter(someOfTheHead);
            response.set_content(page.body, type);
            break;
        case Ending::ResetWithinBody:
            PageServer::resetAfter(std::numeric_limits<std::size_t>::max());
            sendHalf(response, std::move(page.body), type);
            break;
        case Ending::Within:
            sendHalf(response, std::move(page.body), type);
            break;
        case Ending::Whole:
            sendWhole(response, std::move(page), type);
            break;
    }
}

HttpFront::HttpFront(Answer answer, std::string contentType, std::chrono::milliseconds requestTime)
    : state_(std::make_unique<State>(requestTime)) {
    state_->answer = std::move(answer);
    state_->contentType = std::move(contentType);
    State* state = state_.get();
    state->server.set_socket_options(takePortAlone);
    state->server.set_payload_max_length(RequestStream::mostBodyBytes);
    // What the answers tell of it.
    state->server.set_keep_alive_max_count(mostRequests);
    state->server.set_keep_alive_timeout(
        std::chrono::floor<std::chrono::seconds>(requestTime).count());
    // A head and its body leave as two packets: the second one needn't wait for word of the first.
    state->server.set_tcp_nodelay(true);
    state->server.new_task_queue = [] { return new ConnectionThreads; };
    // Waits for connections in short turns, so that a stop is always noticed.
    state->server.set_idle_interval(0, turnMicroseconds);
    state->server.Get(std::string(pagePath),
                      [state](const httplib::Request& request, httplib::Response& response) {
                          state->send(state->answer(queryOf(request.target)), response);
                      });
    state->server.set_exception_handler(
        [](const httplib::Request&, httplib::Response& response, std::exception_ptr thrown) {
            response.status = serverError;
            try {
                std::rethrow_exception(std::move(thrown));
            } catch (const std::exception& error) {
                response.set_content(error.what(), plainText);
            }
        });
    state->server.set_error_handler([](const httplib::Request&, httplib::Response& response) {
        if (response.status == notFound && response.body.empty()) {
            response.set_content(
                "Esta página não existe. A página é " + std::string(pagePath) + "?comando=...\n",
                plainText);
        }
    });
}

HttpFront::~HttpFront() = default;

int HttpFront::bind(const std::string& address, int port) {
    if (!isAddress(address)) {
        throw std::runtime_error("O endereço \"" + address +
                                 "\" não existe. Escolha outro com --endereco, por exemplo "
                                 "127.0.0.1.");
    }
    forgetPortRefusal();
    const int bound = port == 0 ? state_->server.bind_to_any_port(address)
                      : state_->server.bind_to_port(address, port) ? port
                                                                   : -1;
    if (bound < 0) {
        throw std::runtime_error(whyNotBound(address, port));
    }
    state_->server.lengthenQueue();
    return bound;
}

void HttpFront::serve() {
    state_->server.listen_after_bind();
    state_->finished = true;
}

// The library takes no notice of a stop that comes before it listens.
void HttpFront::stop() {
    while (!state_->server.is_running() && !state_->finished) {
        std::this_thread::yield();
    }
    {
        const std::lock_guard lock(state_->mutex);
        state_->stopped = true;
    }
    state_->stopping.notify_all();
    state_->server.stop();
    state_->server.endReading();
}

}  // namespace tarn::practice
