#include "platform/proxy_list.h"

#include <cstddef>
#include <vector>

#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::string_view local = "<local>";
constexpr std::string_view schemeEnd = "://";

// The entries of a list, parted by semicolons or blanks.
std::vector<std::string> entriesOf(std::string_view list) {
    constexpr std::string_view gaps = "; \t\r\n";
    std::vector<std::string> entries;
    while (!list.empty()) {
        const std::size_t end = list.find_first_of(gaps);
        if (end != 0) {
            entries.push_back(asciiLower(list.substr(0, end)));
        }
        list.remove_prefix(end == std::string_view::npos ? list.size() : end + 1);
    }
    return entries;
}

struct Target {
    std::string scheme;
    std::string host;
    std::string hostAndPort;
};

Target targetOf(std::string_view address) {
    Target target;
    const std::size_t colon = address.find(schemeEnd);
    if (colon != std::string_view::npos) {
        target.scheme = asciiLower(address.substr(0, colon));
        address.remove_prefix(colon + schemeEnd.size());
    }
    address = address.substr(0, address.find_first_of("/?#"));
    const std::size_t at = address.rfind('@');
    address.remove_prefix(at == std::string_view::npos ? 0 : at + 1);
    target.hostAndPort = asciiLower(address);
    const std::size_t bracket = target.hostAndPort.find(']');  // of an IPv6 number
    const std::size_t port =
        target.hostAndPort.find(':', bracket == std::string::npos ? 0 : bracket);
    target.host = target.hostAndPort.substr(0, port);
    return target;
}

// A "*" takes as little as it may and more when the rest then doesn't fit.
bool matches(std::string_view pattern, std::string_view text) {
    std::size_t p = 0;
    std::size_t t = 0;
    std::size_t star = std::string_view::npos;
    std::size_t behindStar = 0;  // where the rest was last tried
    while (t < text.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            behindStar = t;
        } else if (p < pattern.size() && pattern[p] == text[t]) {
            ++p;
            ++t;
        } else if (star != std::string_view::npos) {
            p = star + 1;
            t = ++behindStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string_view::npos;
}

bool isBypassed(const Target& target, std::string_view bypass) {
    for (const std::string& entry : entriesOf(bypass)) {
        if (entry == local) {
            if (target.host.find_first_of(".:") == std::string::npos) {
                return true;
            }
            continue;
        }
        std::string_view pattern = entry;
        const std::size_t scheme = pattern.find(schemeEnd);
        if (scheme != std::string_view::npos) {
            if (pattern.substr(0, scheme) != target.scheme) {
                continue;
            }
            pattern.remove_prefix(scheme + schemeEnd.size());
        }
        if (matches(pattern, target.host) || matches(pattern, target.hostAndPort)) {
            return true;
        }
    }
    return false;
}

}  // namespace

std::string proxyFor(std::string_view address, std::string_view proxies, std::string_view bypass) {
    const Target target = targetOf(address);
    if (isBypassed(target, bypass)) {
        return {};
    }
    std::string forAll;
    std::string socks;
    for (const std::string& entry : entriesOf(proxies)) {
        const std::size_t sign = entry.find('=');
        if (sign == std::string::npos) {
            forAll = forAll.empty() ? entry : forAll;
        } else if (entry.substr(0, sign) == target.scheme) {
            return entry.substr(sign + 1);
        } else if (entry.starts_with("socks=")) {
            socks = "socks4a://" + entry.substr(sign + 1);
        }
    }
    return forAll.empty() ? socks : forAll;
}

}  // namespace tarn
