#include "platform/winhttp/system_proxy.h"

#include <windows.h>
// after windows.h, which it needs
#include <winhttp.h>

#include <array>
#include <cstdlib>
#include <memory>

#include "platform/proxy_list.h"
#include "runtime/wide_text.h"

namespace tarn {
namespace {

using GlobalText = std::unique_ptr<wchar_t, decltype(&GlobalFree)>;
using Session = std::unique_ptr<void, decltype(&WinHttpCloseHandle)>;

std::string textOf(const GlobalText& text) {
    return text == nullptr ? std::string() : utf8Of(text.get());
}

bool environmentNamesOne() {
    constexpr std::array names{"http_proxy", "https_proxy", "all_proxy"};
    for (const char* name : names) {
        const char* value = std::getenv(name);  // Windows' names have no case
        if (value != nullptr && *value != '\0') {
            return true;
        }
    }
    return false;
}

// By the script that is named, or that the network offers.
std::string scriptsProxy(const std::string& address, bool toBeFound, const std::string& script) {
    constexpr int milliseconds = 5000;  // for each step of fetching the script
    const Session session(WinHttpOpen(L"TarnEmissao", WINHTTP_ACCESS_TYPE_NO_PROXY,
                                      WINHTTP_NO_PROXY_NAME, WINHTTP_NO_PROXY_BYPASS, 0),
                          WinHttpCloseHandle);
    if (session == nullptr) {
        return {};
    }
    WinHttpSetTimeouts(session.get(), milliseconds, milliseconds, milliseconds, milliseconds);
    const std::wstring place = wideOf(script);
    WINHTTP_AUTOPROXY_OPTIONS asked{};
    asked.fAutoLogonIfChallenged = TRUE;
    if (toBeFound) {
        asked.dwFlags |= WINHTTP_AUTOPROXY_AUTO_DETECT;
        asked.dwAutoDetectFlags = WINHTTP_AUTO_DETECT_TYPE_DHCP | WINHTTP_AUTO_DETECT_TYPE_DNS_A;
    }
    if (!place.empty()) {
        asked.dwFlags |= WINHTTP_AUTOPROXY_CONFIG_URL;
        asked.lpszAutoConfigUrl = place.c_str();
    }
    WINHTTP_PROXY_INFO found{};
    if (WinHttpGetProxyForUrl(session.get(), wideOf(address).c_str(), &asked, &found) == 0) {
        return {};
    }
    const GlobalText proxies(found.lpszProxy, GlobalFree);
    const GlobalText bypass(found.lpszProxyBypass, GlobalFree);
    return proxyFor(address, textOf(proxies), textOf(bypass));
}

// The script needs to know the server alone, and the rest may hold a password.
std::string serverOf(const std::string& address) {
    const std::size_t host = address.find("://");
    const std::size_t end = address.find_first_of("/?#", host == std::string::npos ? 0 : host + 3);
    return address.substr(0, end) + "/";
}

}  // namespace

std::string systemProxy(const std::string& address) {
    WINHTTP_CURRENT_USER_IE_PROXY_CONFIG settings{};
    if (environmentNamesOne() || WinHttpGetIEProxyConfigForCurrentUser(&settings) == 0) {
        return {};
    }
    const GlobalText script(settings.lpszAutoConfigUrl, GlobalFree);
    const GlobalText proxies(settings.lpszProxy, GlobalFree);
    const GlobalText bypass(settings.lpszProxyBypass, GlobalFree);
    const bool toBeFound = settings.fAutoDetect != 0;
    std::string proxy;
    if (toBeFound || script != nullptr) {
        proxy = scriptsProxy(serverOf(address), toBeFound, textOf(script));
    }
    return proxy.empty() ? proxyFor(address, textOf(proxies), textOf(bypass)) : proxy;
}

}  // namespace tarn
