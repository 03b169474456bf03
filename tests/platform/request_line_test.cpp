#include "platform/request_line.h"

#include <gtest/gtest.h>

namespace tarn::test {
namespace {

TEST(RequestLine, WhatIsLegalStays) {
    const std::string legal =
        "http://host:80/Kestomain/TarnEmissao.asp?comando=x&A=1,5%20+=/-_.!~*'();:@$[]&B=%";
    EXPECT_EQ(requestLine(legal), legal);
}

TEST(RequestLine, WhatMayNotStandIsEncodedInWindows1252) {
    EXPECT_EQ(requestLine("a b"), "a%20b");
    EXPECT_EQ(requestLine("\r\n\t"), "%0D%0A%09");
    EXPECT_EQ(requestLine(std::string("\0\x1F\x7F", 3)), "%00%1F%7F");
    EXPECT_EQ(requestLine("\"<>#\\^`{|}"), "%22%3C%3E%23%5C%5E%60%7B%7C%7D");
    EXPECT_EQ(requestLine("Ação é às"), "A%E7%E3o%20%E9%20%E0s");
    EXPECT_EQ(requestLine("€ “x” ’"), "%80%20%93x%94%20%92");
    EXPECT_EQ(requestLine("Ж日"), "??");
    EXPECT_EQ(requestLine(""), "");
}

}  // namespace
}  // namespace tarn::test
