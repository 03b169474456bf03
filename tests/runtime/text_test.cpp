#include "runtime/text.h"

#include <gtest/gtest.h>

#include <string>

#include "runtime/ascii.h"

namespace tarn::test {
namespace {

TEST(Text, CountsAndCutsCharacters) {
    EXPECT_EQ(lengthOf("AÇÃO"), 4U);
    EXPECT_EQ(lengthOf("€"), 1U);
    EXPECT_EQ(lengthOf("\xF0\x9F\x98\x80"), 1U);
    EXPECT_EQ(lengthOf(""), 0U);
    EXPECT_EQ(leftOf("AÇÃO", 2), "AÇ");
    EXPECT_EQ(leftOf("AÇÃO", 4), "AÇÃO");
    EXPECT_EQ(leftOf("AÇÃO", 5), "AÇÃO");
    EXPECT_EQ(leftOf("AÇÃO", 0), "");
    EXPECT_EQ(rightOf("AÇÃO", 2), "ÃO");
    EXPECT_EQ(rightOf("AÇÃO", 9), "AÇÃO");
    EXPECT_EQ(rightOf("AÇÃO", 0), "");
    EXPECT_EQ(midOf("AÇÃO", 1, 2), "AÇ");
    EXPECT_EQ(midOf("AÇÃO", 2, 2), "ÇÃ");
    EXPECT_EQ(midOf("AÇÃO", 3, 9), "ÃO");
    EXPECT_EQ(midOf("AÇÃO", 5, 1), "");
    EXPECT_EQ(midOf("AÇÃO", 9, 1), "");
}

TEST(Text, MalformedBytesAreOneCharacterEach) {
    EXPECT_EQ(lengthOf("A\xC7\x41"), 3U);         // lead byte without its tail
    EXPECT_EQ(lengthOf("\xE2\x82"), 2U);          // cut sequence
    EXPECT_EQ(lengthOf("\x80\x80"), 2U);          // tails alone
    EXPECT_EQ(lengthOf("\xC0\xAF"), 2U);          // overlong
    EXPECT_EQ(lengthOf("\xE0\x80\xAF"), 3U);      // overlong
    EXPECT_EQ(lengthOf("\xED\xA0\x80"), 3U);      // surrogate
    EXPECT_EQ(lengthOf("\xF4\x90\x80\x80"), 4U);  // past the last code point
    EXPECT_EQ(leftOf("\xFF\xC3\x87"
                     "A",
                     2),
              "\xFF\xC3\x87");
}

TEST(Text, TrimsBlanksOnly) {
    EXPECT_EQ(trimBlanks("  A B  "), "A B");
    EXPECT_EQ(trimBlanks("\tA\t"), "\tA\t");
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks(""), "");
}

TEST(Text, Capitals) {
    EXPECT_EQ(upperCase("São José, nº 1 ção"), "SÃO JOSÉ, Nº 1 ÇÃO");
    EXPECT_EQ(upperCase("ß÷µ"), "ß÷µ");
    EXPECT_EQ(upperCase("ÿšœž"), "ŸŠŒŽ");
    EXPECT_EQ(upperCase("\xE7"), "\xE7");
    EXPECT_EQ(asciiUpper("ação"), "AçãO");
}

TEST(Text, Replaces) {
    EXPECT_EQ(replaceAll("a%b%", "%", "||"), "a||b||");
    EXPECT_EQ(replaceAll("aaa", "aa", "b"), "ba");
    EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
    EXPECT_EQ(replaceAll("", "a", "x"), "");
}

TEST(Text, ControlCharactersBecomeBlanks) {
    EXPECT_EQ(blankControls("A\r\nB\tC\x1B\x7F"
                            "Ç"),
              "A  B C  Ç");
    EXPECT_EQ(blankControls(std::string("\0A", 2)), " A");
    std::string line = "\x1B";
    appendBlankingControls(line, "\x1BX");
    EXPECT_EQ(line, "\x1B X");  // what stood there stays
}

TEST(Text, NothingCommandsATerminal) {
    EXPECT_EQ(forTerminal("Ação\n\tR$ 1"), "Ação\n\tR$ 1");
    EXPECT_EQ(forTerminal("\x1B]0;PWN\x07\x1B[31m\r\x7F\b"), "?]0;PWN??[31m???");
    EXPECT_EQ(forTerminal("\xC2\x9B"
                          "31m \xC2\x80\xC2\x9F\xC2\xA0"),
              "?31m ??\xC2\xA0");
    EXPECT_EQ(forTerminal("\x9B"
                          "31m \xC3"),
              "?31m ?");
    EXPECT_EQ(forTerminal(std::string("\0", 1)), "?");
}

TEST(Text, APartOfALineIsEscaped) {
    EXPECT_EQ(escapedLine(""), "");
    EXPECT_EQ(escapedLine("São|&"), "São|&");
    EXPECT_EQ(escapedLine("a\\n\tb\r\nc"), "a\\\\n\\tb\\r\\nc");
}

TEST(Text, OneByteThatIsNoPlainTextIsSeenWhereverItStands) {
    for (std::size_t length = 1; length <= 25; ++length) {
        EXPECT_TRUE(isPlain(std::string(length, '~')));
        EXPECT_EQ(asciiRun(std::string(length, '\x7F')), length);
        for (std::size_t position = 0; position < length; ++position) {
            for (int byte = 0; byte < 256; ++byte) {
                std::string text(length, ' ');
                text[position] = static_cast<char>(byte);
                ASSERT_EQ(isPlain(text), byte >= ' ' && byte <= '~') << byte << " in " << length;
                ASSERT_EQ(asciiRun(text), byte < 0x80 ? length : position) << byte;
            }
        }
    }
    EXPECT_TRUE(isPlain(""));
}

using Pieces = std::vector<std::string_view>;

TEST(Split, GivesWhatStandsBetweenTheSeparators) {
    EXPECT_EQ(split("15/03/2012", '/'), (Pieces{"15", "03", "2012"}));
    EXPECT_EQ(split("a b", '/'), Pieces{"a b"});
}

TEST(Split, KeepsEmptyPieces) {
    EXPECT_EQ(split("", ' '), Pieces{""});
    EXPECT_EQ(split(" a  b ", ' '), (Pieces{"", "a", "", "b", ""}));
}

}  // namespace
}  // namespace tarn::test
