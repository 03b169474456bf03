// Every form, with the plain note and with what moves its blocks, call by call
// against its line map.

#include <gtest/gtest.h>

#include "tests/notes/compare_notes.h"
#include "tests/notes/form_name.h"
#include "tests/notes/note_press.h"

namespace tarn::test {

namespace {

std::string counted(const std::string& word, std::size_t length) {
    std::string text;
    for (int n = 1; text.size() < length; ++n) {
        text += word + std::to_string(n) + " ";
    }
    text.resize(length);
    return text;
}

class FormMap : public testing::TestWithParam<FormFacts> {
protected:
    const FormFacts& form() const { return GetParam(); }

    // Of the note's own job.
    std::string bytesOf(const NoteDraft& draft) const {
        const Printed printed = print(form(), draft);
        EXPECT_FALSE(printed.error);
        return printed.jobs.back().bytes();
    }

    // Prints and compares; `sums` as expectedNote takes them.
    void check(const NoteCase& note, const Sums& sums = {}) {
        const Printed printed = print(form(), draftOf(note));
        if (printed.error) {
            FAIL() << printed.error->description();
        }
        const ExpectedNote expected = expectedNote(form(), note, sums);
        ASSERT_EQ(expected.jobs.size(), printed.jobs.size());
        for (std::size_t job = 0; job < expected.jobs.size(); ++job) {
            ASSERT_NO_FATAL_FAILURE(compareJob(expected.jobs[job], printed.jobs[job].writes))
                << "job " << job + 1;
        }
    }
};

// The maps hold together: from row to row, and with the length of the form.
TEST_P(FormMap, MapAndFactsAgree) {
    const ExpectedNote expected = expectedNote(form(), NoteCase{});
    int below = 0;  // what a form prints once more moves the rows below it
    int lineEnds = 0;
    std::size_t mapped = 0;
    for (const ExpectedCall& call : expected.jobs.back()) {
        if (call.mapLine > 0) {
            EXPECT_EQ(call.mapLine + below, call.line) << call.what;
            ++mapped;
        }
        if (call.what == "order references, twice") {
            below = form().repeatedLines;
        }
        lineEnds += call.lineEnds;
    }
    EXPECT_GT(mapped, 12U);
    const int lines = form().name == "padrao" ? 2 : plainItemLines;
    EXPECT_EQ(form().length + lines, lineEnds);
}

TEST_P(FormMap, PlainNote) {
    check(NoteCase{});
}

TEST_P(FormMap, EntryNote) {
    NoteCase note;
    note.entry = true;
    check(note);
}

// Every field cut at its width, the texts of the foot too long for their places.
TEST_P(FormMap, OverflowingNote) {
    NoteCase note;
    note.overflowing = true;
    note.directOrder = overflowOf("ID_VND_DIR");
    note.observation = counted("O", 500);
    note.legalTexts = {counted("L", 500)};
    check(note, {"10001250", "5.001.562,500"});
}

// Only what begins with a capital E is an entry.
TEST_P(FormMap, AnythingElseIsAnExit) {
    const std::string exit = bytesOf(draftOf({}));
    NoteCase entryCase;
    entryCase.entry = true;
    const std::string entry = bytesOf(draftOf(entryCase));
    NoteDraft draft = draftOf({});
    for (const char* word : {"e", "", " E", "SE"}) {
        draft.head["Ent_Sai"] = word;
        EXPECT_EQ(bytesOf(draft), exit) << word;
    }
    draft.head.erase("Ent_Sai");
    EXPECT_EQ(bytesOf(draft), exit);
    draft.head["Ent_Sai"] = "ENTRADA";
    EXPECT_EQ(bytesOf(draft), entry);
}

// The jobs' lives: each opened, one page, ended and closed, without a name.
TEST_P(FormMap, JobsAreEndedAndClosed) {
    const Printed printed = print(form(), draftOf(NoteCase{}));
    ASSERT_EQ(form().setupInOwnJob ? 2U : 1U, printed.jobs.size());
    using Call = RecordingSpooler::Call;
    std::vector<Call> life;
    for (const RecordingSpooler::Job& job : printed.jobs) {
        EXPECT_TRUE(job.pageEnded && job.ended && job.closed);
        EXPECT_FALSE(job.description.docName || job.description.outputFile ||
                     job.description.dataType);
        life.insert(life.end(), {Call::Open, Call::StartDocument, Call::StartPage});
        life.insert(life.end(), job.writes.size(), Call::Write);
        life.insert(life.end(), {Call::EndPage, Call::EndDocument, Call::Close});
    }
    EXPECT_EQ(life, printed.calls);
    EXPECT_TRUE(printed.documentLetGo);
}

TEST_P(FormMap, EveryNumberOfParcels) {
    for (int parcels = 0; parcels <= 13; ++parcels) {
        SCOPED_TRACE("parcels: " + std::to_string(parcels));
        NoteCase note;
        note.parcels = parcels;
        check(note);
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
    }
}

TEST_P(FormMap, AFractionOfAParcelIsCutAndNoneIsZero) {
    NoteCase note;
    note.parcels = form().parcels ? form().parcels->limit : 3;
    const std::string whole = bytesOf(draftOf(note));
    NoteDraft draft = draftOf(note);
    draft.head["QTDE_PARC"] += ".9";
    EXPECT_EQ(bytesOf(draft), whole);
    draft.head.erase("QTDE_PARC");
    note.parcels = 0;
    EXPECT_EQ(bytesOf(draft), bytesOf(draftOf(note)));
    draft.head["QTDE_PARC"] = "40000";
    note.parcels = 13;
    EXPECT_EQ(bytesOf(draft), bytesOf(draftOf(note)));
}

// Of a form that cuts, rows past its lines are not even read.
TEST_P(FormMap, RowsPastTheLinesOfAFormThatCuts) {
    NoteCase six;
    six.items = plainItemLines;
    NoteCase eight;
    eight.items = plainItemLines + 2;
    NoteDraft draft = draftOf(eight);
    draft.items[6]["QTDE"] = "nada";
    draft.items[6]["DC_TXT_LEG_NF"] = "NUNCA";
    draft.items[7]["IC_TP_CAD"] = "S";
    if (form().pushes) {
        EXPECT_TRUE(print(form(), draft).error);
    } else {
        EXPECT_EQ(bytesOf(draft), bytesOf(draftOf(six)));
    }
}

// A row that is no product is not read either, where the form prints products only.
TEST_P(FormMap, ARowOfNoKindIsNoProduct) {
    NoteCase three;
    three.items = 3;
    NoteDraft draft = draftOf(three);
    draft.items[1].erase("IC_TP_CAD");
    draft.items[1]["QTDE"] = "nada";
    draft.items[1]["VL_ISS"] = draft.items[1]["VL_LIQ_IT"] = "1";
    EXPECT_EQ(print(form(), draft).error.has_value(), !form().onlyProducts);
}

TEST_P(FormMap, EveryNumberOfItems) {
    // Of the default layout, which adds up the items in hand: 12,5 and 1250 of 0,5 and 1,25.
    const std::vector<Sums> sums{
        {"12,5", "6,250"},     {"1262,5", "1.568,750"}, {"1275", "1.575,000"},
        {"2525", "3.137,500"}, {"2537,5", "3.143,750"}, {"3787,5", "4.706,250"},
        {"3800", "4.712,500"}, {"5050", "6.275,000"},   {"5062,5", "6.281,250"}};
    for (std::size_t items = 1; items <= sums.size(); ++items) {
        SCOPED_TRACE("items: " + std::to_string(items));
        NoteCase note;
        note.items = static_cast<int>(items);
        check(note, sums[items - 1]);
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
    }
}

// Texts of every length around the ends of the pieces, each part recognisable.
TEST_P(FormMap, TextsOfEveryLength) {
    for (const std::size_t length :
         {0U,   1U,   43U,  44U,  45U,  57U,  58U,  59U,  61U,  62U,  63U,  64U,  73U,  74U,  75U,
          84U,  85U,  86U,  88U,  89U,  90U,  91U,  124U, 132U, 133U, 148U, 149U, 150U, 155U, 156U,
          176U, 177U, 200U, 248U, 255U, 280U, 320U, 341U, 372U, 373U, 404U, 405U, 500U}) {
        SCOPED_TRACE("length: " + std::to_string(length));
        NoteCase legal;
        legal.legalTexts = {counted("L", length)};
        legal.observation = "";
        check(legal);
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
        NoteCase observation;
        observation.legalTexts = {""};
        observation.observation = counted("O", length);
        check(observation);
        if (HasFatalFailure()) {
            return;
        }
        NoteCase both;
        both.legalTexts = {counted("L", length), counted("M", 70)};
        both.observation = counted("O", length);
        check(both);
        if (HasFatalFailure()) {
            return;
        }
    }
}

// An empty text is an entry like another: a separator may follow it, none stands
// before the first text.
TEST_P(FormMap, EmptyAndRepeatedLegalTexts) {
    for (const std::vector<std::string>& texts :
         {std::vector<std::string>{"A", ""}, {"", "A"}, {"A", "", "B", "A"}, {"A", "a", "A "}}) {
        NoteCase note;
        note.items = 4;
        note.legalTexts = texts;
        check(note, {"2525", "3.137,500"});
        if (HasFatalFailure() || IsSkipped()) {
            return;
        }
    }
}

TEST_P(FormMap, NoOrderOfOurs) {
    NoteCase note;
    note.directOrder = "0";
    check(note);
    const std::string none = bytesOf(draftOf(note));
    NoteDraft draft = draftOf(note);
    draft.head.erase("ID_VND_DIR");
    EXPECT_EQ(bytesOf(draft), none);
    note.directOrder = "00";
    check(note);
}

TEST_P(FormMap, NoTaxCredit) {
    NoteCase note;
    note.taxCredit = "0";
    check(note);
    note.taxCredit = "-1500.5";
    check(note);
}

INSTANTIATE_TEST_SUITE_P(Forms, FormMap, testing::ValuesIn(allForms()), formName);

}  // namespace

}  // namespace tarn::test
