// Notes that stop in the middle: what is out by then, on every form. Fields are
// read and converted just before their row goes out.

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "tests/notes/compare_notes.h"
#include "tests/notes/form_name.h"
#include "tests/notes/note_press.h"

namespace tarn::test {

namespace {

class BrokenNote : public testing::TestWithParam<FormFacts> {
protected:
    const FormFacts& form() const { return GetParam(); }

    // Prints `xml`, which must stop with `number` right before the first call that
    // `stopsAt` knows; all calls are those of the note `like`.
    void check(const std::string& xml, RuntimeErrorCode number,
               const std::function<bool(const ExpectedCall&)>& stopsAt, const NoteCase& like = {}) {
        const Printed printed = printXml(form().ladder, form().company, form().establishment, xml);
        ASSERT_TRUE(printed.error) << "printed to the end";
        EXPECT_EQ(static_cast<int>(number), static_cast<int>(printed.error->number()))
            << printed.error->description();
        std::vector<ExpectedCall> before = expectedNote(form(), like).jobs.back();
        const auto stop = std::find_if(before.begin(), before.end(), stopsAt);
        ASSERT_NE(before.end(), stop);
        before.erase(stop, before.end());
        ASSERT_EQ(form().setupInOwnJob ? 2U : 1U, printed.jobs.size());
        ASSERT_NO_FATAL_FAILURE(compareJob(before, printed.jobs.back().writes));
        EXPECT_FALSE(printed.jobs.back().pageEnded || printed.jobs.back().closed);
        if (form().setupInOwnJob) {
            EXPECT_TRUE(printed.jobs.front().ended && printed.jobs.front().closed);
        }
    }

    static std::function<bool(const ExpectedCall&)> whatIs(const std::string& what) {
        return [what](const ExpectedCall& call) { return call.what == what; };
    }
    static std::function<bool(const ExpectedCall&)> showing(const std::string& source) {
        return [source](const ExpectedCall& call) {
            return std::any_of(call.fields.begin(), call.fields.end(),
                               [&](const MapField& field) { return field.source == source; });
        };
    }
    // The row's first call is its field row; the mark of exit or entry is the first
    // that reads the document.
    static bool isMark(const ExpectedCall& call) { return call.what == "\"X\""; }
};

TEST_P(BrokenNote, NoItem) {
    NoteDraft draft = draftOf({});
    draft.items.clear();
    check(draft.xml(), RuntimeErrorCode::ObjectVariable, whatIs("item 1"));
}

TEST_P(BrokenNote, RootOfAnotherName) {
    std::string xml = draftOf({}).xml();
    for (std::size_t at = xml.find("PRINCIPAL"); at != std::string::npos;
         at = xml.find("PRINCIPAL")) {
        xml.replace(at, 9, "principal");
    }
    check(xml, RuntimeErrorCode::ObjectVariable, isMark);
}

TEST_P(BrokenNote, FormLinesAbsentEmptyOrNoNumber) {
    NoteDraft draft = draftOf({});
    draft.form.erase("QT_MAX_IT");
    check(draft.xml(), RuntimeErrorCode::TypeMismatch, whatIs("item 1"));
    for (const char* value : {"", "SEIS", "6x", "1,,2"}) {
        SCOPED_TRACE(value);
        draft.form["QT_MAX_IT"] = value;
        check(draft.xml(), RuntimeErrorCode::TypeMismatch, whatIs("item 1"));
    }
    draft.form["QT_MAX_IT"] = "40000";
    check(draft.xml(), RuntimeErrorCode::Overflow, whatIs("item 1"));
}

TEST_P(BrokenNote, ParcelsNoNumber) {
    for (const char* value : {"", "TRES", "1.2.3"}) {
        SCOPED_TRACE(value);
        NoteDraft draft = draftOf({});
        draft.head["QTDE_PARC"] = value;
        if (!form().parcels) {  // such a form doesn't look at the number
            EXPECT_FALSE(print(form(), draft).error);
            continue;
        }
        check(draft.xml(), RuntimeErrorCode::TypeMismatch, [](const ExpectedCall& call) {
            return call.what == "row of parcels" || call.what == "rest of the parcels" ||
                   call.what == "parcel 1";
        });
    }
}

// All of an item is read before anything of it goes out.
TEST_P(BrokenNote, SecondItemsPriceNoNumber) {
    for (const char* value : {"", "3,,24", "1.234.5", "caro"}) {
        SCOPED_TRACE(value);
        NoteDraft draft = draftOf({});
        draft.items[1]["VALOR_UN"] = value;
        check(draft.xml(), RuntimeErrorCode::TypeMismatch, whatIs("item 2"));
    }
}

TEST_P(BrokenNote, SecondItemsQuantityNoNumber) {
    NoteDraft draft = draftOf({});
    draft.items[1]["QTDE"] = "dez";
    check(draft.xml(), RuntimeErrorCode::TypeMismatch, whatIs("item 2"));
}

TEST_P(BrokenNote, TotalNoNumber) {
    NoteDraft draft = draftOf({});
    draft.totals["VALOR_SEGURO"] = "1.234.5";
    check(draft.xml(), RuntimeErrorCode::TypeMismatch, showing("VALOR_SEGURO"));
    draft = draftOf({});
    draft.totals["VALOR_TOTAL"] = "-";
    const bool plainTotal = form().name == "padrao" || form().name == "7";
    check(draft.xml(), RuntimeErrorCode::TypeMismatch,
          showing(plainTotal ? "VALOR_TOTAL" : "product total"));
}

// A name in another case is found by the search and not by the lookup.
TEST_P(BrokenNote, NameInAnotherCase) {
    NoteDraft draft = draftOf({});
    draft.head.erase("RAZAO");
    draft.head["Razao"] = "X";
    check(draft.xml(), RuntimeErrorCode::ObjectVariable, showing("RAZAO"));
    draft = draftOf({});
    draft.head["natoper"] = draft.head["NatOper"];
    draft.head.erase("NatOper");
    check(draft.xml(), RuntimeErrorCode::ObjectVariable, showing("NatOper"));
}

INSTANTIATE_TEST_SUITE_P(Forms, BrokenNote, testing::ValuesIn(allForms()), formName);

}  // namespace

}  // namespace tarn::test
