#include "platform/curl/line.h"

#include <algorithm>
#include <charconv>
#include <new>
#include <stdexcept>
#include <utility>

#include "platform/http_loader.h"
#ifdef _WIN32
#include "platform/winhttp/system_proxy.h"
#endif

namespace tarn {
namespace {

constexpr std::size_t largestHead = std::size_t{1024} * 1024;
constexpr long bytesASecond = 1;   // slower than that is silence
constexpr long probeSeconds = 30;  // of silence before TCP asks whether the server is there
// For how long an unused connection is relied on: what lies between may have forgotten one
// after a minute, and so may the server.
constexpr std::chrono::seconds longestLife{55};
constexpr std::chrono::seconds margin{1};  // of what a server says that it keeps one
// After which a first packet is sent again, and a new connection is as soon there.
constexpr std::chrono::seconds firstPacket{1};

[[noreturn]] void notReady() {
    throw std::runtime_error(
        "Não foi possível preparar o acesso à Internet (libcurl). Abra o programa de novo; se "
        "acontecer outra vez, peça ao administrador que o instale de novo.");
}

// libcurl knows the environment's proxy alone.
void useSystemsProxy([[maybe_unused]] CURL* curl, [[maybe_unused]] const std::string& address) {
#ifdef _WIN32
    const std::string proxy = systemProxy(address);
    curl_easy_setopt(curl, CURLOPT_PROXY, proxy.empty() ? nullptr : proxy.c_str());
#endif
}

bool isHeader(std::string_view line, std::string_view name) {
    return line.size() > name.size() && line[name.size()] == ':' &&
           curl_strnequal(line.data(), name.data(), name.size()) != 0;
}

// "Keep-Alive: timeout=5, max=100"
std::chrono::milliseconds lifeTold(std::string_view line, std::chrono::milliseconds otherwise) {
    constexpr std::string_view key = "timeout=";
    const std::size_t at = line.find(key);
    int seconds = 0;
    if (at == std::string_view::npos ||
        std::from_chars(line.data() + at + key.size(), line.data() + line.size(), seconds).ec !=
            std::errc()) {
        return otherwise;
    }
    const std::chrono::milliseconds life = std::chrono::seconds(seconds) - margin;
    return std::clamp(life, std::chrono::milliseconds::zero(), otherwise);
}

}  // namespace

Line::Library::Library() {
    static const CURLcode ready = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (ready != CURLE_OK) {
        notReady();
    }
}

Line::Line(const TimeLimits& limits, const std::string& authorities)
    : limits_(limits),
      multi_(curl_multi_init(), curl_multi_cleanup),
      easy_(curl_easy_init(), curl_easy_cleanup) {
    if (multi_ == nullptr || easy_ == nullptr) {
        notReady();
    }
    curl_multi_setopt(multi_.get(), CURLMOPT_MAXCONNECTS, 1L);
    setUp(authorities);
    limitTime();
    watchSockets();
}

Line::~Line() = default;

void Line::setUp(const std::string& authorities) {
    CURL* curl = easy_.get();
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(curl, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYHOST, 2L);
    // A list of revoked certificates is heeded where Windows gets one. That of a company's own
    // authority is often out of reach, which is no word against the certificate.
    curl_easy_setopt(curl, CURLOPT_SSL_OPTIONS, static_cast<long>(CURLSSLOPT_REVOKE_BEST_EFFORT));
    if (!authorities.empty()) {
        curl_easy_setopt(curl, CURLOPT_CAINFO, authorities.c_str());
    }
    curl_easy_setopt(curl, CURLOPT_ACCEPT_ENCODING, "");  // all that libcurl unpacks
    curl_easy_setopt(curl, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(curl, CURLOPT_FAILONERROR, 1L);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(
        curl, CURLOPT_WRITEFUNCTION,
        +[](const char* data, std::size_t size, std::size_t count, void* line) {
            return static_cast<Line*>(line)->takeBody({data, size * count});
        });
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(
        curl, CURLOPT_HEADERFUNCTION,
        +[](const char* data, std::size_t size, std::size_t count, void* line) {
            return static_cast<Line*>(line)->takeHeadLine({data, size * count});
        });
    curl_easy_setopt(curl, CURLOPT_PREREQDATA, this);
    curl_easy_setopt(
        curl, CURLOPT_PREREQFUNCTION, +[](void* line, char*, char*, int, int) {
            return static_cast<Line*>(line)->leave() ? CURL_PREREQFUNC_OK : CURL_PREREQFUNC_ABORT;
        });
}

void Line::limitTime() {
    CURL* curl = easy_.get();
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(limits_.connect.count()));
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, bytesASecond);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, static_cast<long>(limits_.silence.count()));
    curl_easy_setopt(curl, CURLOPT_TCP_KEEPALIVE, 1L);
    curl_easy_setopt(curl, CURLOPT_TCP_KEEPIDLE, probeSeconds);
    curl_easy_setopt(curl, CURLOPT_TCP_KEEPINTVL, probeSeconds);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
#if LIBCURL_VERSION_NUM >= 0x075700
    curl_easy_setopt(curl, CURLOPT_QUICK_EXIT, 1L);  // a name still looked up holds up no end
#endif
}

void Line::watchSockets() {
    CURL* curl = easy_.get();
    curl_easy_setopt(curl, CURLOPT_OPENSOCKETDATA, this);
    curl_easy_setopt(
        curl, CURLOPT_OPENSOCKETFUNCTION, +[](void* line, curlsocktype, curl_sockaddr* address) {
            return static_cast<Line*>(line)->open(*address);
        });
    curl_easy_setopt(curl, CURLOPT_SOCKOPTDATA, this);
    curl_easy_setopt(
        curl, CURLOPT_SOCKOPTFUNCTION, +[](void* line, curl_socket_t socket, curlsocktype) {
            return socket == static_cast<Line*>(line)->handedOver_ ? CURL_SOCKOPT_ALREADY_CONNECTED
                                                                   : CURL_SOCKOPT_OK;
        });
    curl_easy_setopt(curl, CURLOPT_CLOSESOCKETDATA, this);
    curl_easy_setopt(
        curl, CURLOPT_CLOSESOCKETFUNCTION,
        +[](void* line, curl_socket_t socket) { return static_cast<Line*>(line)->closed(socket); });
}

std::size_t Line::takeBody(std::string_view bytes) {
    if (bytes.size() > largestAnswer - body_.size()) {
        return 0;  // libcurl ends the transfer
    }
    try {
        body_.append(bytes);
    } catch (const std::bad_alloc&) {
        return 0;
    }
    return bytes.size();
}

std::size_t Line::takeHeadLine(std::string_view line) {
    headBytes_ += line.size();
    if (isHeader(line, "Keep-Alive")) {
        life_ = lifeTold(line, life_);
    }
    return headBytes_ > largestHead ? 0 : line.size();
}

bool Line::leave() {
    if (!open_.empty()) {
        carrier_ = open_.back();
    }
    return departures_++ == 0;
}

// Once the request has left, nothing more is opened for it.
curl_socket_t Line::open(const curl_sockaddr& address) {
    if (departures_ > 0) {
        return CURL_SOCKET_BAD;
    }
    const Peer peer = peerOf(address);
    handedOver_ = next_.take(peer);
    const curl_socket_t socket = handedOver_ != CURL_SOCKET_BAD ? handedOver_ : newSocket(peer);
    if (socket != CURL_SOCKET_BAD) {
        open_.push_back({socket, peer});
    }
    return socket;
}

int Line::closed(curl_socket_t socket) {
    std::erase_if(open_, [socket](const Open& open) { return open.socket == socket; });
    if (carrier_.socket == socket) {
        carrier_.socket = CURL_SOCKET_BAD;
    }
    closeSocket(socket);
    return 0;
}

// One that is nearly there is waited for.
void Line::awaitNext() {
    if (next_.opened() != CURL_SOCKET_BAD) {
        curl_waitfd connected{next_.opened(), CURL_WAIT_POLLOUT, 0};
        const std::chrono::milliseconds most =
            std::min<std::chrono::milliseconds>(firstPacket, limits_.connect);
        curl_multi_poll(multi_.get(), &connected, 1, static_cast<int>(most.count()), nullptr);
    }
}

// Carries the request out; false also when the line was closed meanwhile.
bool Line::run() {
    if (curl_multi_add_handle(multi_.get(), easy_.get()) != CURLM_OK) {
        return false;
    }
    int underWay = 1;
    while (underWay > 0 && !closed_ && curl_multi_perform(multi_.get(), &underWay) == CURLM_OK &&
           underWay > 0) {
        constexpr int milliseconds = 1000;  // libcurl's own time-outs cut that short
        curl_multi_poll(multi_.get(), nullptr, 0, milliseconds, nullptr);
    }
    int further = 0;
    const CURLMsg* end = curl_multi_info_read(multi_.get(), &further);
    const bool done = end != nullptr && end->msg == CURLMSG_DONE && end->data.result == CURLE_OK;
    curl_multi_remove_handle(multi_.get(), easy_.get());
    return done;
}

LineAnswer Line::ask(const std::string& address) {
    CURL* curl = easy_.get();
    body_.clear();
    headBytes_ = 0;
    departures_ = 0;
    life_ = longestLife;
    if (next_.wake()) {
        curl_easy_setopt(curl, CURLOPT_FRESH_CONNECT, 0L);
    } else {
        curl_easy_setopt(curl, CURLOPT_FRESH_CONNECT, 1L);
        awaitNext();
    }
    useSystemsProxy(curl, address);
    if (curl_easy_setopt(curl, CURLOPT_URL, address.c_str()) != CURLE_OK || !run()) {
        return {};
    }
    LineAnswer answer{.arrived = true, .status = 0, .redirect = {}, .body = std::move(body_)};
    const char* redirect = nullptr;
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &answer.status);
    curl_easy_getinfo(curl, CURLINFO_REDIRECT_URL, &redirect);
    answer.redirect = redirect != nullptr ? redirect : "";
    curl_easy_setopt(curl, CURLOPT_URL, nullptr);  // it may hold a password
    next_.drop();
    next_.rest(carrier_.socket, carrier_.peer, life_);
    return answer;
}

void Line::close() {
    closed_ = true;
    curl_multi_wakeup(multi_.get());
}

}  // namespace tarn
