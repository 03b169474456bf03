#include "platform/curl/curl_loader.h"

#include <curl/curl.h>

#include <atomic>
#include <memory>
#include <new>
#include <stdexcept>
#include <string_view>

#include "platform/request_line.h"

namespace tarn {
namespace {

constexpr std::size_t largestHead = std::size_t{1024} * 1024;
constexpr int mostRedirects = 20;  // what browsers allow
constexpr long ok = 200;           // nobody asks for a part, and none is taken for the whole
constexpr long bytesASecond = 1;   // slower than that is silence
constexpr long probeSeconds = 30;  // of silence before TCP asks whether the server is there

using Easy = std::unique_ptr<CURL, decltype(&curl_easy_cleanup)>;
using Multi = std::unique_ptr<CURLM, decltype(&curl_multi_cleanup)>;
using Url = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;

struct Received {
    std::string body;
    std::size_t headBytes = 0;
};

std::size_t takeBody(const char* data, std::size_t size, std::size_t count, void* user) {
    auto& received = *static_cast<Received*>(user);
    const std::size_t length = size * count;
    if (length > largestAnswer - received.body.size()) {
        return 0;  // libcurl ends the transfer
    }
    try {
        received.body.append(data, length);
    } catch (const std::bad_alloc&) {
        return 0;
    }
    return length;
}

std::size_t countHead(const char*, std::size_t size, std::size_t count, void* user) {
    auto& received = *static_cast<Received*>(user);
    received.headBytes += size * count;
    return received.headBytes > largestHead ? 0 : size * count;
}

std::string part(const Url& url, CURLUPart which) {
    char* text = nullptr;
    if (curl_url_get(url.get(), which, &text, CURLU_DEFAULT_PORT) != CURLUE_OK) {
        return {};
    }
    std::string copy(text);
    curl_free(text);
    return copy;
}

Url parsed(const std::string& address) {
    Url url(curl_url(), curl_url_cleanup);
    if (url != nullptr && curl_url_set(url.get(), CURLUPART_URL, address.c_str(), 0) != CURLUE_OK) {
        url.reset();
    }
    return url;
}

// The server that was asked itself, or its https door.
bool mayFollow(const std::string& from, const std::string& to) {
    const Url asked = parsed(from);
    const Url target = parsed(to);
    if (asked == nullptr || target == nullptr ||
        curl_strequal(part(asked, CURLUPART_HOST).c_str(), part(target, CURLUPART_HOST).c_str()) ==
            0) {
        return false;
    }
    const std::string scheme = part(asked, CURLUPART_SCHEME);
    const std::string newScheme = part(target, CURLUPART_SCHEME);
    const std::string port = part(asked, CURLUPART_PORT);
    const std::string newPort = part(target, CURLUPART_PORT);
    return (newScheme == scheme && newPort == port) ||
           (scheme == "http" && port == "80" && newScheme == "https" && newPort == "443");
}

[[noreturn]] void notReady() {
    throw std::runtime_error("Não foi possível preparar o acesso à Internet (libcurl).");
}

void limitTime(CURL* curl, const TimeLimits& limits) {
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(limits.connect.count()));
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_LIMIT, bytesASecond);
    curl_easy_setopt(curl, CURLOPT_LOW_SPEED_TIME, static_cast<long>(limits.silence.count()));
    curl_easy_setopt(curl, CURLOPT_TCP_KEEPALIVE, 1L);
    curl_easy_setopt(curl, CURLOPT_TCP_KEEPIDLE, probeSeconds);
    curl_easy_setopt(curl, CURLOPT_TCP_KEEPINTVL, probeSeconds);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
#if LIBCURL_VERSION_NUM >= 0x075700
    curl_easy_setopt(curl, CURLOPT_QUICK_EXIT, 1L);  // a name still looked up holds up no end
#endif
}

Easy newRequest(Received& received, const TimeLimits& limits) {
    Easy easy(curl_easy_init(), curl_easy_cleanup);
    if (easy == nullptr) {
        notReady();
    }
    CURL* curl = easy.get();
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_FOLLOWLOCATION, 0L);
    curl_easy_setopt(curl, CURLOPT_HTTP_VERSION, static_cast<long>(CURL_HTTP_VERSION_1_1));
    curl_easy_setopt(curl, CURLOPT_FRESH_CONNECT, 1L);
    curl_easy_setopt(curl, CURLOPT_FORBID_REUSE, 1L);
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYPEER, 1L);
    curl_easy_setopt(curl, CURLOPT_SSL_VERIFYHOST, 2L);
    curl_easy_setopt(curl, CURLOPT_ACCEPT_ENCODING, "");  // all that libcurl unpacks
    curl_easy_setopt(curl, CURLOPT_PATH_AS_IS, 1L);
    curl_easy_setopt(curl, CURLOPT_FAILONERROR, 1L);
    limitTime(curl, limits);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, takeBody);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &received);
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, countHead);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &received);
    return easy;
}

}  // namespace

// What a transfer under way can be woken by from another thread.
struct CurlLoader::Transfers {
    Multi multi{curl_multi_init(), curl_multi_cleanup};
    std::atomic<bool> closed = false;

    // Carries the request out; false also when the loader was closed meanwhile.
    bool run(CURL* easy) {
        if (curl_multi_add_handle(multi.get(), easy) != CURLM_OK) {
            return false;
        }
        int underWay = 1;
        while (underWay > 0 && !closed && curl_multi_perform(multi.get(), &underWay) == CURLM_OK &&
               underWay > 0) {
            constexpr int milliseconds = 1000;  // libcurl's own time-outs cut that short
            curl_multi_poll(multi.get(), nullptr, 0, milliseconds, nullptr);
        }
        int further = 0;
        const CURLMsg* end = curl_multi_info_read(multi.get(), &further);
        const bool done =
            end != nullptr && end->msg == CURLMSG_DONE && end->data.result == CURLE_OK;
        curl_multi_remove_handle(multi.get(), easy);
        return done;
    }
};

CurlLoader::CurlLoader(const TimeLimits& limits) : limits_(limits) {
    static const CURLcode ready = curl_global_init(CURL_GLOBAL_DEFAULT);
    if (ready != CURLE_OK) {
        notReady();
    }
    transfers_ = std::make_unique<Transfers>();
    if (transfers_->multi == nullptr) {
        notReady();
    }
}

CurlLoader::~CurlLoader() = default;

void CurlLoader::close() {
    transfers_->closed = true;
    curl_multi_wakeup(transfers_->multi.get());
}

// One request. Fills `next` when the server sends elsewhere.
bool CurlLoader::perform(const std::string& line, std::string& body, std::string& next) {
    Received received;
    const Easy easy = newRequest(received, limits_);
    if (curl_easy_setopt(easy.get(), CURLOPT_URL, line.c_str()) != CURLE_OK ||
        !transfers_->run(easy.get())) {
        return false;
    }
    long status = 0;
    const char* redirect = nullptr;
    curl_easy_getinfo(easy.get(), CURLINFO_RESPONSE_CODE, &status);
    curl_easy_getinfo(easy.get(), CURLINFO_REDIRECT_URL, &redirect);
    if (redirect != nullptr) {
        next = redirect;
        return true;
    }
    body = std::move(received.body);
    return status == ok;
}

HttpAnswer CurlLoader::get(const std::string& address) {
    std::string line = requestLine(address);
    for (int hops = 0; hops <= mostRedirects; ++hops) {
        std::string body;
        std::string next;
        if (!perform(line, body, next)) {
            return {};
        }
        if (next.empty()) {
            return {.loaded = true, .body = std::move(body)};
        }
        if (!mayFollow(line, next)) {
            return {};
        }
        line = std::move(next);
    }
    return {};
}

}  // namespace tarn
