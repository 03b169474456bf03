// The length of the forms: the sum of their line ends, which must bring the next
// form under the head, and where it is known to differ.

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/notes/compare_notes.h"
#include "tests/notes/form_name.h"
#include "tests/notes/note_press.h"

namespace tarn::test {

namespace {

// Line ends more or less than with one parcel, by number of parcels. A number above
// the form's limit stands for all above it.
const std::map<std::string, std::map<int, int>> heightOfParcels{
    {"1361", {{0, 1}, {10, 1}}},
    {"padrao", {{2, 1}, {4, 1}}},
    {"2161_3341", {{9, 1}, {10, 2}}},
    {"2161_3381", {{9, 1}, {10, 2}}},
    {"2161_3383", {{9, 1}, {10, 2}}},
    {"2321", {{9, 1}, {10, 2}}},
    {"821", {{4, -1}}},
    {"3601", {{13, -1}}},
    {"e5282", {{13, -1}}},
    {"3081", {{2, 1}}},
    {"4621_7321", {{6, 1}}},
    {"4621_others", {{6, 1}}},
};

class FormLength : public testing::TestWithParam<FormFacts> {
protected:
    const FormFacts& form() const { return GetParam(); }

    // Of the plain note with 2 items.
    int plainLength() const {
        const int lines = form().name == "padrao" ? 2 : plainItemLines;
        return form().length + lines + form().repeatedLines;
    }

    // Line ends that `items` item rows add to the plain note's.
    int moreBy(int items) const {
        if (form().name == "padrao") {
            return items - 2;
        }  // this form has no blank lines to give
        if (!form().pushes) {
            return 0;
        }
        if (form().name == "2041") {
            return std::max(0, items - plainItemLines + 1);
        }  // a full form is one longer
        if (form().name == "7") {
            return std::max(0, items - plainItemLines - 1);
        }  // has one line of grace
        return std::max(0, items - plainItemLines);
    }
};

TEST_P(FormLength, ByParcels) {
    for (int parcels = 0; parcels <= 15; ++parcels) {
        SCOPED_TRACE("parcels: " + std::to_string(parcels));
        NoteCase note;
        note.parcels = parcels;
        const Printed printed = print(form(), draftOf(note));
        ASSERT_FALSE(printed.error) << printed.error->description();
        int more = 0;
        if (const auto found = heightOfParcels.find(form().name); found != heightOfParcels.end()) {
            const int limit = form().parcels->limit;
            const auto told = found->second.find(std::min(parcels, limit + 1));
            more = told == found->second.end() ? 0 : told->second;
        }
        EXPECT_EQ(plainLength() + more, printed.lineEnds());
    }
}

TEST_P(FormLength, ByItems) {
    for (int items = 1; items <= 14; ++items) {
        SCOPED_TRACE("items: " + std::to_string(items));
        NoteCase note;
        note.items = items;
        const Printed printed = print(form(), draftOf(note));
        ASSERT_FALSE(printed.error) << printed.error->description();
        EXPECT_EQ(plainLength() + moreBy(items), printed.lineEnds());
    }
}

// Seven rows on six lines, the second a service.
TEST_P(FormLength, ServiceAmongTheProducts) {
    NoteCase note;
    note.items = 7;
    NoteDraft draft = draftOf(note);
    for (std::size_t i = 0; i < draft.items.size(); ++i) {
        draft.items[i]["DESCRICAO"] = "ROW" + std::to_string(i + 1) + ";";
    }
    draft.items[1]["IC_TP_CAD"] = "S";
    draft.items[1]["VL_LIQ_IT"] = "1";
    draft.items[1]["VL_ISS"] = "1";
    const Printed printed = print(form(), draft);
    ASSERT_FALSE(printed.error) << printed.error->description();
    std::string rows;
    const std::string bytes = printed.jobs.back().bytes();
    for (std::size_t at = bytes.find("ROW"); at != std::string::npos;
         at = bytes.find("ROW", at + 1)) {
        rows += bytes[at + 3];
    }
    if (!form().onlyProducts) {
        EXPECT_EQ("1234567", rows);
        EXPECT_EQ(plainLength() + moreBy(7), printed.lineEnds());
    } else {
        // A form that cuts counts the service against its lines, and prints it not.
        EXPECT_EQ(form().pushes ? "134567" : "13456", rows);
        EXPECT_EQ(plainLength(), printed.lineEnds());
    }
}

INSTANTIATE_TEST_SUITE_P(Forms, FormLength, testing::ValuesIn(allForms()), formName);

}  // namespace

}  // namespace tarn::test
