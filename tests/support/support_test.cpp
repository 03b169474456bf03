// The recording seams must tell what happened, or every test above them is blind.
#include <gtest/gtest.h>

#include "tests/support/fixed_machine.h"
#include "tests/support/recording_spooler.h"
#include "tests/support/scripted_boxes.h"
#include "tests/support/scripted_loader.h"

namespace tarn::test {
namespace {

using Call = RecordingSpooler::Call;

TEST(RecordingSpooler, KeepsCallsAndBytesOfEachJob) {
    RecordingSpooler spooler;
    spooler.openPrinter("P");
    spooler.startDocument({.docName = "N", .outputFile = {}, .dataType = {}});
    spooler.startPage();
    EXPECT_EQ(spooler.write("AB"), 2U);
    EXPECT_EQ(spooler.write(""), 0U);
    spooler.endPage();
    spooler.endDocument();
    spooler.closePrinter();
    EXPECT_EQ(spooler.calls,
              (std::vector{Call::Open, Call::StartDocument, Call::StartPage, Call::Write,
                           Call::Write, Call::EndPage, Call::EndDocument, Call::Close}));
    ASSERT_EQ(spooler.jobs.size(), 1U);
    EXPECT_EQ(spooler.jobs[0].writes, (std::vector<std::string>{"AB", ""}));
    EXPECT_EQ(spooler.jobs[0].description.docName, "N");
    EXPECT_TRUE(spooler.jobs[0].pageEnded && spooler.jobs[0].ended && spooler.jobs[0].closed);
}

TEST(RecordingSpooler, AnOpenJobIsReplaced) {
    RecordingSpooler spooler;
    for (const char* text : {"A", "B"}) {
        spooler.openPrinter("P");
        spooler.startDocument({});
        spooler.write(text);
    }
    EXPECT_EQ(spooler.bytes(0), "A");
    EXPECT_EQ(spooler.bytes(1), "B");
    EXPECT_FALSE(spooler.jobs[0].ended);
}

TEST(RecordingSpooler, FailsWhereTold) {
    RecordingSpooler spooler;
    spooler.failOpen = 0;
    spooler.failWrite = 1;
    EXPECT_FALSE(spooler.openPrinter("P"));
    EXPECT_FALSE(spooler.startDocument({}));
    EXPECT_TRUE(spooler.openPrinter("P"));
    EXPECT_TRUE(spooler.startDocument({}));
    EXPECT_EQ(spooler.write("A"), 1U);
    EXPECT_EQ(spooler.write("B"), 0U);
    EXPECT_EQ(spooler.write("C"), 1U);
    EXPECT_EQ(spooler.bytes(), "AC");
}

TEST(RecordingSpooler, AFailedOpenLetsNothingReachTheJobBefore) {
    RecordingSpooler spooler;
    spooler.failOpen = 1;
    spooler.openPrinter("P");
    spooler.startDocument({});
    spooler.write("A");
    EXPECT_FALSE(spooler.openPrinter("P"));
    EXPECT_FALSE(spooler.startDocument({}));
    EXPECT_EQ(spooler.write("B"), 0U);
    EXPECT_EQ(spooler.jobs.size(), 1U);
    EXPECT_EQ(spooler.bytes(), "A");
}

TEST(ScriptedBoxes, AnswersFromTheQueueThenByDefault) {
    ScriptedBoxes boxes;
    boxes.answers = {BoxAnswer::No};
    const Box question{.text = "Q", .buttons = BoxButtons::YesNo};
    EXPECT_EQ(boxes.show(question), BoxAnswer::No);
    EXPECT_EQ(boxes.show(question), BoxAnswer::Yes);
    EXPECT_EQ(boxes.show({.text = "O"}), BoxAnswer::Ok);
    EXPECT_EQ(boxes.texts(), (std::vector<std::string>{"Q", "Q", "O"}));
}

// Else a failed comparison would show the bytes of two objects.
TEST(ScriptedBoxes, ABoxIsReadableWhereAComparisonFails) {
    EXPECT_EQ(testing::PrintToString(Box{"Gerou?", BoxIcon::Question, "Aviso", BoxButtons::YesNo}),
              R"([Question] "Aviso": "Gerou?" (yes/no))");
}

TEST(ScriptedLoader, AnswersInSequenceAndKeepsAddresses) {
    ScriptedLoader loader;
    loader.on("comando=a", "1").on("comando=a", "2").failOn("comando=ab");
    EXPECT_EQ(loader.get("http://h/p?comando=a").body, "1");
    EXPECT_EQ(loader.get("http://h/p?comando=a").body, "2");
    EXPECT_EQ(loader.get("http://h/p?comando=a").body, "2");
    EXPECT_FALSE(loader.get("http://h/p?comando=ab").loaded);
    EXPECT_FALSE(loader.get("http://h/p?comando=z").loaded);
    EXPECT_EQ(loader.queries().back(), "comando=z");
}

TEST(FixedMachine, CountsAndRefuses) {
    FixedMachine machine;
    EXPECT_TRUE(machine.setShortDateFormat("dd/MM/yyyy"));
    machine.refusesDateFormat = true;
    EXPECT_FALSE(machine.setShortDateFormat("x"));
    machine.beep();
    EXPECT_EQ(machine.beeps, 1);
    EXPECT_EQ(machine.dateFormats.size(), 2U);
    FixedClock clock({1, 2, 2003});
    EXPECT_EQ(clock.today(), (Date{1, 2, 2003}));
}

}  // namespace
}  // namespace tarn::test
