#include "runtime/code_page.h"

#include <gtest/gtest.h>

#include "runtime/text.h"

namespace tarn::test {
namespace {

std::string printed(std::string_view utf8, CodePage page = CodePage::Page1252) {
    std::string out;
    appendPrinterBytes(out, utf8, page);
    return out;
}

// The 27 characters of bytes 80 to 9F, and the two that look like a blank and a hyphen.
constexpr std::string_view blockCharacters = "€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ\u00A0\u00AD";
constexpr std::string_view blockLookAlikes = "E'f\".++^%S<OZ''\"\"*--~Ts>ozY -";

TEST(PrinterPage, BytesBelow128GoAsTheyAre) {
    std::string bytes;
    for (int i = 0; i < 128; ++i) {
        bytes.push_back(static_cast<char>(i));
    }
    for (const CodePage page : {CodePage::Page1252, CodePage::Page850, CodePage::Page860}) {
        EXPECT_EQ(printed(bytes, page), bytes);
    }
}

TEST(PrinterPage, AccentsOfEachPage) {
    EXPECT_EQ(printed("çÇéãõº"), "\xE7\xC7\xE9\xE3\xF5\xBA");
    EXPECT_EQ(printed("çÇéãõº", CodePage::Page850), "\x87\x80\x82\xC6\xE4\xA7");
    EXPECT_EQ(printed("çÇéãõº", CodePage::Page860), "\x87\x80\x82\x84\x94\xA7");
    EXPECT_EQ(printed("ÀÁÂÃ"), "\xC0\xC1\xC2\xC3");
    EXPECT_EQ(printed("ÀÁÂÃ", CodePage::Page850), "\xB7\xB5\xB6\xC7");
    EXPECT_EQ(printed("ÀÁÂÃ", CodePage::Page860), "\x91\x86\x8F\x8E");
}

TEST(PrinterPage, NothingOfTheBlock80To9FLeavesOnPage1252) {
    EXPECT_EQ(lengthOf(blockCharacters), blockLookAlikes.size());
    EXPECT_EQ(printed(blockCharacters), blockLookAlikes);
    for (char32_t code = 0x80; code < 0xA0; ++code) {
        const std::string utf8{static_cast<char>(0xC2), static_cast<char>(code)};
        EXPECT_EQ(printed(utf8), "?");
    }
}

TEST(PrinterPage, LookAlikesHoldOnTheOtherPagesToo) {
    EXPECT_EQ(printed(blockCharacters, CodePage::Page850), blockLookAlikes);
    EXPECT_EQ(printed(blockCharacters, CodePage::Page860), blockLookAlikes);
}

TEST(PrinterPage, WhatThePageLacksIsOneQuestionMark) {
    EXPECT_EQ(printed("日本"), "??");
    EXPECT_EQ(printed("\xF0\x9F\x98\x80"), "?");
    EXPECT_EQ(printed("A\xC7"
                      "B"),
              "A?B");
    EXPECT_EQ(printed("×", CodePage::Page860), "?");
    EXPECT_EQ(printed("×", CodePage::Page850), "\x9E");
    EXPECT_EQ(printed("─"), "?");
    EXPECT_EQ(printed("─", CodePage::Page860), "\xC4");
}

TEST(PrinterPage, AppendsBehindWhatIsThere) {
    std::string out = "A";
    appendPrinterBytes(out, "ç", CodePage::Page1252);
    EXPECT_EQ(out, "A\xE7");
}

TEST(PrinterPage, ByNumber) {
    EXPECT_EQ(codePageByNumber(1252), CodePage::Page1252);
    EXPECT_EQ(codePageByNumber(850), CodePage::Page850);
    EXPECT_EQ(codePageByNumber(860), CodePage::Page860);
    EXPECT_FALSE(codePageByNumber(437).has_value());
}

TEST(Windows1252, FullPageBothWays) {
    EXPECT_EQ(toWindows1252("ç€“ \u00A0"), "\xE7\x80\x93 \xA0");
    EXPECT_EQ(toWindows1252("日"), "?");
    EXPECT_EQ(toWindows1252("\u0081"), "?");
    EXPECT_EQ(fromWindows1252("\xE7\x80\x93"), "ç€“");
    for (int i = 0; i < 256; ++i) {
        const bool undefined = i == 0x81 || i == 0x8D || i == 0x8F || i == 0x90 || i == 0x9D;
        const std::string byte(1, static_cast<char>(i));
        EXPECT_EQ(toWindows1252(fromWindows1252(byte)), undefined ? "?" : byte) << i;
    }
}

}  // namespace
}  // namespace tarn::test
