#include "platform/curl/redirect.h"

#include <curl/curl.h>

#include <memory>

namespace tarn {
namespace {

constexpr long movedPermanently = 301;
constexpr long permanentRedirect = 308;

using Url = std::unique_ptr<CURLU, decltype(&curl_url_cleanup)>;

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

bool isSamePage(const std::string& from, const std::string& to) {
    const Url asked = parsed(from);
    const Url target = parsed(to);
    return asked != nullptr && target != nullptr &&
           part(asked, CURLUPART_PATH) == part(target, CURLUPART_PATH);
}

}  // namespace

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

void Moved::learn(const std::string& from, const std::string& to, long status) {
    const std::size_t query = from.find('?');
    const std::size_t newQuery = to.find('?');
    if (query == std::string::npos || newQuery == std::string::npos ||
        from.substr(query) != to.substr(newQuery)) {
        return;
    }
    if (status == movedPermanently || status == permanentRedirect || isSamePage(from, to)) {
        from_ = from.substr(0, query + 1);
        to_ = to.substr(0, newQuery + 1);
    }
}

std::string Moved::addressNow(const std::string& address) const {
    return !from_.empty() && address.starts_with(from_) ? to_ + address.substr(from_.size())
                                                        : address;
}

}  // namespace tarn
