// What a note lost on its form, told by the desk beside the job and shown on its paper.
#include "printer/paper/told_cuts.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>

#include "forms/job_papers.h"
#include "notes/print_note.h"
#include "platform/directory/directory_spooler.h"
#include "tests/notes/plain_note.h"
#include "tests/support/files.h"
#include "tests/support/recording_spooler.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"

namespace tarn::test {

using namespace dotmatrix;
namespace {

constexpr int itemLines = 13;
constexpr std::size_t nameLine = 10;  // of the customer, on the form of company 1361
constexpr std::size_t nameColumn = 2;
constexpr std::size_t nameWidth = 82;

// A name that is too long by "FIM".
std::string longNamedNote() {
    NoteCase note;
    note.items = 2;
    NoteDraft draft = draftOf(note);
    draft.form["QT_MAX_IT"] = std::to_string(itemLines);
    draft.head["RAZAO"] = std::string(nameWidth, 'N') + "FIM";
    return draft.xml();
}

void issue(Spooler& paper) {
    TestEnvironment seams;
    Environment environment = seams.with(paper);
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(longNamedNote()));
    printNote(Ladder::Issuing, environment, sessionOf(1361, 1), document, "4567");
}

class ToldCuts : public testing::Test {
protected:
    void SetUp() override {
        DirectorySpooler spooler(std::filesystem::path(folder_.path().toStdString()));
        ASSERT_NO_FATAL_FAILURE(issue(spooler));
    }
    std::string file(const char* name) const {
        return folder_.filePath(QLatin1StringView(name)).toStdString();
    }
    QTemporaryDir folder_;
};

TEST_F(ToldCuts, TheNoteTellsWhichFieldLostWhat) {
    const std::string kind = contentOf(file("job-002.kind"));
    EXPECT_NE(kind.find("\ncorta 10 2 RAZAO: não cabe; perde \"FIM\"\n"), std::string::npos)
        << kind;
}

TEST_F(ToldCuts, TheBytesAreThoseOfAJobWhoseCutsNobodyWantsToKnow) {
    RecordingSpooler recorded;
    ASSERT_NO_FATAL_FAILURE(issue(recorded));
    ASSERT_EQ(recorded.jobs.size(), 2U);
    EXPECT_EQ(contentOf(file("job-001.prn")), recorded.jobs[0].bytes());
    EXPECT_EQ(contentOf(file("job-002.prn")), recorded.jobs[1].bytes());
}

TEST_F(ToldCuts, ThePaperShowsThemAtTheirPlaceInsteadOfAGuess) {
    JobPapers papers;
    PaperRoll roll({});
    for (const char* job : {"job-001", "job-002"}) {
        const std::string path = file(job);
        const JobKind kind = jobKindBeside(path + ".prn");
        ASSERT_TRUE(kind.cuts);
        roll.startJob(job, papers.told(kind));
        ASSERT_FALSE(roll.feed(contentOf(path + ".prn")));
    }
    const auto faults = faultsOfJob(roll, 1, nullptr);
    ASSERT_TRUE(faults);
    EXPECT_EQ(faults->size(), roll.jobs()[1].paper.cuts->size())
        << "what fills its box is no guess";
    const auto page = roll.page(roll.jobs()[1].form);
    EXPECT_EQ(faultsOn(*page, nullptr, roll.jobs())->size(), faults->size())
        << "nor is it told a second time for the set-up job";
    const auto found = std::ranges::find(*faults, nameLine, &PaperFault::row);
    ASSERT_NE(found, faults->end());
    const PaperFault& fault = *found;
    EXPECT_EQ(fault.kind, PaperFault::Kind::Cut);
    EXPECT_EQ(fault.column, nameColumn);
    EXPECT_EQ(fault.box, QStringLiteral("Nome / razão social"));
    EXPECT_EQ(fault.text, QStringLiteral("RAZAO: não cabe; perde \"FIM\""));
    EXPECT_EQ(textIn(roll, fault.region), QString(nameWidth, u'N'));
}

}  // namespace
}  // namespace tarn::test
