// The proxy of Windows' own settings, which are the user's again afterwards.
#include "platform/winhttp/system_proxy.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <cstring>
#include <optional>
#include <string>

namespace tarn::test {
namespace {

constexpr wchar_t place[] =
    L"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings\\Connections";
constexpr wchar_t name[] = L"DefaultConnectionSettings";

// What Windows keeps of the settings: a mark, a counter, which of them hold, and the texts,
// each behind its length.
using Record = std::string;

Record numberIn(DWORD number) {
    Record bytes(sizeof number, '\0');
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
}

Record textIn(const std::string& text) {
    return numberIn(static_cast<DWORD>(text.size())) + text;
}

void keep(const Record& record) {
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, place, name, REG_BINARY, record.data(),
                              static_cast<DWORD>(record.size())),
              ERROR_SUCCESS);
}

enum class Way : DWORD { Direct = 1, Proxy = 3 };

void set(Way way, const std::string& proxies, const std::string& bypass = "") {
    constexpr DWORD mark = 0x46;
    keep(numberIn(mark) + numberIn(1) + numberIn(static_cast<DWORD>(way)) + textIn(proxies) +
         textIn(bypass) + textIn(""));
}

class SystemProxy : public testing::Test {
protected:
    SystemProxy() {
        DWORD size = 0;
        if (RegGetValueW(HKEY_CURRENT_USER, place, name, RRF_RT_REG_BINARY, nullptr, nullptr,
                         &size) == ERROR_SUCCESS) {
            before_.emplace(size, '\0');
            RegGetValueW(HKEY_CURRENT_USER, place, name, RRF_RT_REG_BINARY, nullptr,
                         before_->data(), &size);
        }
        for (const char* variable : {"http_proxy=", "https_proxy=", "all_proxy="}) {
            _putenv(variable);
        }
    }
    ~SystemProxy() override {
        if (before_) {
            keep(*before_);
        } else {
            RegDeleteKeyValueW(HKEY_CURRENT_USER, place, name);
        }
        _putenv("http_proxy=");
    }

private:
    std::optional<Record> before_;
};

TEST_F(SystemProxy, IsTheOneOfTheSettings) {
    set(Way::Proxy, "proxy.escritorio:3128");
    EXPECT_EQ(systemProxy("http://servidor.matriz/TarnEmissao.asp?a=1"), "proxy.escritorio:3128");
    set(Way::Proxy, "http=um:80;https=outro:81");
    EXPECT_EQ(systemProxy("https://servidor.matriz/TarnEmissao.asp?"), "outro:81");
}

TEST_F(SystemProxy, IsNoneWhereTheSettingsNameNone) {
    set(Way::Direct, "proxy.escritorio:3128");
    EXPECT_EQ(systemProxy("http://servidor.matriz/"), "");
}

TEST_F(SystemProxy, IsNotAskedForWhatTheSettingsLeaveOut) {
    set(Way::Proxy, "proxy.escritorio:3128", "*.matriz;127.*");
    EXPECT_EQ(systemProxy("http://servidor.matriz/"), "");
    EXPECT_EQ(systemProxy("http://127.0.0.1:8610/"), "");
    EXPECT_EQ(systemProxy("http://servidor.filial/"), "proxy.escritorio:3128");
}

TEST_F(SystemProxy, IsLeftToTheEnvironmentThatNamesOne) {
    set(Way::Proxy, "proxy.escritorio:3128");
    _putenv("http_proxy=http://outro:8080");
    EXPECT_EQ(systemProxy("http://servidor.matriz/"), "");
}

}  // namespace
}  // namespace tarn::test
