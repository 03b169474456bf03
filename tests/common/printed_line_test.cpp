#include "common/printed_line.h"

#include <gmock/gmock.h>

#include "tests/support/recording_spooler.h"

namespace tarn::test {
namespace {

constexpr NumberMask twoPlaces{"##,##0.00"};

TEST(PrintedLine, GoesOutWholeInOneWrite) {
    RecordingSpooler spooler;
    RawChannel channel(spooler, CodePage::Page1252);
    channel.open();
    PrintedLine line(channel);
    line.text("a\tb").blanks(2).field("campo longo", 5).field("ç", 3);
    EXPECT_EQ(spooler.jobs.at(0).bytes(), "") << "nothing before the end of the line";
    line.rightField("x", 3).rightField(1234.5, twoPlaces, 9).out();
    line.out(2);
    line.commands("\x0F\x1BG").out(0);
    channel.close();
    EXPECT_EQ(spooler.jobs.at(0).bytes(),
              " a b  campo\xE7    x 1.234,50\r\n"
              " \r\n\r\n"
              " \x0F\x1BG");
    EXPECT_EQ(spooler.writes, 3U);
}

}  // namespace
}  // namespace tarn::test
