#include "common/raw_channel.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/recording_spooler.h"

namespace tarn::test {
namespace {

using Call = RecordingSpooler::Call;

class RawChannelTest : public testing::Test {
protected:
    // Prints a text that nobody needs afterwards.
    void print(int column, std::string text, int lines) {
        channel_.ImprimeRaw(column, text, lines);
    }

    RecordingSpooler spooler_;
    RawChannel channel_{spooler_, CodePage::Page1252};
};

TEST_F(RawChannelTest, LifeOfAJob) {
    channel_.open();
    print(1, "A", 1);
    channel_.close();
    EXPECT_EQ(spooler_.calls,
              (std::vector{Call::Open, Call::StartDocument, Call::StartPage, Call::Write,
                           Call::EndPage, Call::EndDocument, Call::Close}));
    EXPECT_EQ(spooler_.opened, (std::vector<std::string>{"Impressora de teste"}));
    EXPECT_EQ(spooler_.bytes(), " A\r\n");
    const JobDescription& job = spooler_.jobs.at(0).description;
    EXPECT_FALSE(job.docName || job.outputFile || job.dataType);
}

TEST_F(RawChannelTest, DescriptionReachesTheSpooler) {
    channel_.open({.docName = "Impressao de Cheque", .outputFile = "", .dataType = ""});
    EXPECT_EQ(spooler_.jobs.at(0).description.docName, "Impressao de Cheque");
    EXPECT_EQ(spooler_.jobs.at(0).description.dataType, "");
}

TEST_F(RawChannelTest, TheDefaultPrinterIsAskedForAtEachOpening) {
    channel_.open();
    channel_.close();
    spooler_.printer = "Outra";
    channel_.open();
    EXPECT_EQ(spooler_.opened, (std::vector<std::string>{"Impressora de teste", "Outra"}));
}

TEST_F(RawChannelTest, AnEmptyTextIsStillOneWrite) {
    channel_.open();
    print(0, "", 0);
    EXPECT_EQ(spooler_.jobs.at(0).writes, (std::vector<std::string>{""}));
}

TEST_F(RawChannelTest, ColumnAndLineEnds) {
    channel_.open();
    print(1, "", 2);
    print(3, "X", 0);
    print(0, "Y", 1);
    print(1, "\x0F\x1BG", 0);
    EXPECT_EQ(spooler_.jobs.at(0).writes,
              (std::vector<std::string>{" \r\n\r\n", "   X", "Y\r\n", " \x0F\x1BG"}));
}

TEST_F(RawChannelTest, TheCallersTextKeepsItsLineEnds) {
    channel_.open();
    std::string text = "AB";
    channel_.ImprimeRaw(1, text, 1);
    EXPECT_EQ(text, "AB\r\n");
    channel_.ImprimeRaw(1, text, 1);
    EXPECT_EQ(text, "AB\r\n\r\n");
    EXPECT_EQ(spooler_.bytes(), " AB\r\n AB\r\n\r\n");
}

TEST_F(RawChannelTest, OneByteACharacterOfTheConfiguredPage) {
    channel_.open();
    print(0, "AÇÃO “1”", 0);
    RawChannel other(spooler_, CodePage::Page850);
    std::string text = "ção";
    other.ImprimeRaw(0, text, 0);
    EXPECT_EQ(spooler_.jobs.at(0).writes,
              (std::vector<std::string>{"A\xC7\xC3O \"1\"", "\x87\xC6o"}));
}

TEST_F(RawChannelTest, NegativeCountsAreAnErrorAndWriteNothing) {
    channel_.open();
    for (const auto& [column, lines] : {std::pair{-1, 0}, std::pair{0, -1}}) {
        try {
            print(column, "A", lines);
            FAIL() << "no error";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), RuntimeErrorCode::InvalidArgument);
        }
    }
    EXPECT_EQ(spooler_.writes, 0U);
}

TEST_F(RawChannelTest, FailuresPassUnnoticed) {
    spooler_.failOpen = 0;
    channel_.open();
    print(1, "A", 1);
    channel_.close();
    EXPECT_EQ(spooler_.calls.size(), 7U);
    EXPECT_TRUE(spooler_.jobs.empty());
    spooler_.failWrite = spooler_.writes + 1;
    channel_.open();
    print(0, "A", 0);
    print(0, "B", 0);
    print(0, "C", 0);
    EXPECT_EQ(spooler_.bytes(), "AC");
}

TEST_F(RawChannelTest, AJobNeverClosedIsNotContinued) {
    channel_.open();
    print(0, "A", 0);
    channel_.open();
    print(0, "B", 0);
    channel_.close();
    EXPECT_EQ(spooler_.bytes(0), "A");
    EXPECT_EQ(spooler_.bytes(1), "B");
    EXPECT_FALSE(spooler_.jobs.at(0).closed);
    EXPECT_TRUE(spooler_.jobs.at(1).closed);
}

std::string field(std::string_view text, int width, bool alignRight) {
    std::string line;
    appendField(line, text, width, alignRight);
    return line;
}

TEST(AppendField, FillsUpAtEitherEnd) {
    EXPECT_EQ(field("AB", 5, false), "AB   ");
    EXPECT_EQ(field("AB", 5, true), "   AB");
    EXPECT_EQ(field("ÇÃ", 4, true), "  ÇÃ");
    EXPECT_EQ(field("ÇÃ", 4, false), "ÇÃ  ");
}

TEST(AppendField, TheExactWidthStaysAndALongerTextLosesItsEnd) {
    for (const bool alignRight : {false, true}) {
        EXPECT_EQ(field("ABCDE", 5, alignRight), "ABCDE");
        EXPECT_EQ(field("1.234,50", 5, alignRight), "1.234");
        EXPECT_EQ(field("ÇÃÕÉÁÍÓ", 5, alignRight), "ÇÃÕÉÁ");
    }
}

TEST(AppendField, WidthZeroAndBelow) {
    EXPECT_EQ(field("A", 0, false), "");
    EXPECT_EQ(field("", 0, true), "");
    try {
        field("A", -1, false);
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::InvalidArgument);
    }
}

TEST(AppendField, GoesBehindWhatIsThereWithControlsBlanked) {
    std::string line = "\x0F";
    appendField(line, "AB", 4, false);
    appendField(line, "12,5", 6, true);
    appendField(line, "ABCDEF", 3, true);
    appendField(line,
                "A\r\n\x1B"
                "B\tC",
                8, false);
    appendField(line, "ÇÃ", 3, true);
    appendField(line, "X", 0, false);
    EXPECT_EQ(line,
              "\x0F"
              "AB    12,5ABCA   B C  ÇÃ");
}

}  // namespace
}  // namespace tarn::test
