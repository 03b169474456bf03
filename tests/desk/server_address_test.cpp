#include "desk/server_address.h"

#include <gtest/gtest.h>

#include <utility>

namespace tarn::test {
namespace {

TEST(ServerAddress, IsThatOfTheOnePageWithItsQuestionMark) {
    const std::pair<const char*, const char*> cases[] = {
        {"http://h:8610", "http://h:8610/Kestomain/TarnEmissao.asp?"},
        {"https://h/", "https://h/Kestomain/TarnEmissao.asp?"},
        {"http://h/Kestomain", "http://h/Kestomain/TarnEmissao.asp?"},
        {"http://h/kestomain/", "http://h/kestomain/TarnEmissao.asp?"},
        {"http://h/loja", "http://h/loja/Kestomain/TarnEmissao.asp?"},
        {"http://h/loja/", "http://h/loja/Kestomain/TarnEmissao.asp?"},
        {"http://h/x.asp", "http://h/x.asp?"},
        {"http://h/v1.2/Kestomain", "http://h/v1.2/Kestomain/TarnEmissao.asp?"},
        {"http://h/x.asp?", "http://h/x.asp?"},
        {"http://h/pedido?", "http://h/pedido?"},
        {"http://h/x.asp?chave=7&", "http://h/x.asp?chave=7&"},
        {"http://ana:senha@h:80", "http://ana:senha@h:80/Kestomain/TarnEmissao.asp?"},
        {"http://[::1]:8610", "http://[::1]:8610/Kestomain/TarnEmissao.asp?"}};
    for (const auto& [typed, url] : cases) {
        EXPECT_EQ(serverAddress(typed).url, url);
        EXPECT_EQ(serverAddress(typed).refusal, "");
    }
}

TEST(ServerAddress, TheSchemeMayBeInCapitals) {
    EXPECT_EQ(serverAddress("HTTP://h/X.ASP").url, "http://h/X.ASP?");
    EXPECT_EQ(serverAddress("Https://H").url, "https://H/Kestomain/TarnEmissao.asp?");
}

TEST(ServerAddress, IsRefusedWhereNoRequestWouldArrive) {
    for (const char* typed : {"", "h:8610", "ftp://h", "file:///etc/passwd", "http://", "http:///x",
                              "http://?", "http://:80", "http://ana@", "http://h/x.asp?a=1",
                              "http://h/x#y", "http://h /x", "http://h/x\n"}) {
        EXPECT_EQ(serverAddress(typed).url, "") << typed;
        EXPECT_NE(serverAddress(typed).refusal, "") << typed;
    }
}

TEST(ServerAddress, IsShownWithoutThePageAndWithoutASecret) {
    const std::pair<const char*, const char*> cases[] = {
        {"http://h:8610/Kestomain/TarnEmissao.asp?", "http://h:8610"},
        {"https://ana:se@nha@h/x.asp?chave=7&", "https://h/x.asp"},
        {"http://h/p/a@b.asp?", "http://h/p/a@b.asp"},
        {"http://h?senha=1", "http://h"},
        {"h\x1B[2J", "h [2J"}};
    for (const auto& [url, shown] : cases) {
        EXPECT_EQ(shownAddress(url), shown);
    }
}

}  // namespace
}  // namespace tarn::test
