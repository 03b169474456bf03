// What the forms from 1521 on have in common: their length, the mark, the rows that
// print and those that are dropped, long numbers, errors.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/wide_note.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

struct FormOf {
    const char* name;
    std::int32_t establishment;
    std::size_t length;    // line ends besides one for each item line
    std::size_t markLine;  // and the columns of exit and entry
    std::size_t exit;
    std::size_t entry;
    std::size_t item;  // line of the first item
    std::size_t code;  // column of its code
    // Line ends more, by QTDE_PARC; the last for too many. None: no parcels.
    std::vector<int> more;
    std::size_t limit;
    std::size_t foot;  // column of the number in the stub; 0: none

    const notes::Form& form() const {
        const notes::Layout* layout = notes::layoutByName(name);
        EXPECT_NE(layout, nullptr) << name;
        return layout->formFor(establishment);
    }
};

const std::vector<FormOf>& forms() {
    static const std::vector<FormOf> all = {
        {"ImprimeNF_1521", 1, 51, 2, 110, 125, 31, 5, {}, 12, 0},
        {"ImprimeNF_821", 1, 47, 3, 110, 122, 22, 2, {0, 0, 0, 0, -1}, 4, 170},
        {"ImprimeNF_3301", 1, 46, 3, 91, 107, 19, 2, {}, 0, 142},
        {"ImprimeNF_3881", 1, 49, 4, 99, 116, 21, 3, {}, 3, 10},
        {"ImprimeNF_E6001", 6001, 44, 4, 99, 116, 19, 3, {}, 3, 12},
        {"ImprimeNF_3081", 1, 51, 3, 99, 117, 23, 2, {0, 0, 1, 0, 0}, 4, 10},
        {"ImprimeNF_E5282",
         5282,
         48,
         3,
         110,
         124,
         24,
         2,
         {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, -1},
         12,
         142},
        {"ImprimeNF_3601",
         5281,
         47,
         5,
         110,
         123,
         26,
         2,
         {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, -1},
         12,
         142},
        {"ImprimeNF_3681", 1, 47, 2, 99, 117, 21, 2, {}, 9, 147},
        {"ImprimeNF_4621", 7321, 38, 2, 78, 90, 16, 2, {0, 0, 0, 0, 0, 0, 1}, 6, 97},
        {"ImprimeNF_4621", 1, 38, 2, 78, 90, 16, 2, {0, 0, 0, 0, 0, 0, 1}, 6, 112},
    };
    return all;
}

bool cuts(const FormOf& form) {
    return std::string(form.name) != "ImprimeNF_4621";
}

std::size_t lineEnds(const FormOf& form, const NoteText& note) {
    return linesOf(printed(form.form(), note)).size() - 1;
}

// The codes of the printed items, by their lines.
Lines codes(const FormOf& form, const std::string& stream, std::size_t lines) {
    Lines found;
    for (const std::string& item : rows(stream, form.item, form.item + lines - 1)) {
        found.push_back(item.size() > form.code ? item.substr(form.code - 1, 2) : "");
    }
    return found;
}

TEST(FormsFrom1521, TheirLengthForEveryNumberOfParcels) {
    for (const FormOf& form : forms()) {
        for (int count = 0; count <= 13; ++count) {
            SCOPED_TRACE(std::string(form.name) + ", " + std::to_string(count));
            const auto place = static_cast<std::size_t>(count);
            const int more = place < form.more.size() ? form.more[place] : 0;
            EXPECT_EQ(static_cast<int>(lineEnds(form, wideParcels(count))),
                      static_cast<int>(form.length) + 6 + more);
        }
    }
}

TEST(FormsFrom1521, AFractionOfAParcelIsCutAndNoneIsZero) {
    for (const FormOf& form : forms()) {
        SCOPED_TRACE(form.name);
        NoteText note = wideParcels(static_cast<int>(form.limit));
        const std::string whole = printed(form.form(), note);
        note.head["QTDE_PARC"] += ".9";
        EXPECT_EQ(printed(form.form(), note), whole);
        note.head.erase("QTDE_PARC");
        EXPECT_EQ(printed(form.form(), note), printed(form.form(), wideParcels(0)));
    }
}

TEST(FormsFrom1521, TheMarkStandsInTheBoxOfExitOrEntry) {
    for (const FormOf& form : forms()) {
        SCOPED_TRACE(form.name);
        NoteText note = wideNote();
        const auto marked = [&] {
            return linesOf(printed(form.form(), note))[form.markLine - 1].substr(0, form.entry);
        };
        for (const char* exit : {"S", "e", "", " E"}) {
            note.head["Ent_Sai"] = exit;
            EXPECT_EQ(marked().substr(0, form.exit), line({T(form.exit, "X")}));
        }
        note.head.erase("Ent_Sai");
        EXPECT_EQ(marked().substr(0, form.exit), line({T(form.exit, "X")}));
        note.head["Ent_Sai"] = "ENTRADA";
        EXPECT_EQ(marked(), line({T(form.entry, "X")}));
    }
}

TEST(FormsFrom1521, ItemsUpToTheFormsLinesMoveNothing) {
    for (const FormOf& form : forms()) {
        for (std::size_t count = 1; count <= 6; ++count) {
            SCOPED_TRACE(std::string(form.name) + ", " + std::to_string(count));
            const std::string stream = printed(form.form(), wideItems(count));
            EXPECT_EQ(linesOf(stream).size() - 1, form.length + 6);
            Lines expected;
            for (std::size_t n = 1; n <= count; ++n) {
                expected.push_back(numbered("C", n));
            }
            EXPECT_EQ(codes(form, stream, count), expected);
        }
    }
}

TEST(FormsFrom1521, RowsBeyondTheFormsLinesAreDropped) {
    for (const FormOf& form : forms()) {
        SCOPED_TRACE(form.name);
        NoteText note = wideItems(8);
        if (!cuts(form)) {
            EXPECT_EQ(lineEnds(form, note), form.length + 8);
            continue;
        }
        note.items[6]["QTDE"] = "nada";
        note.items[7]["IC_TP_CAD"] = "S";
        // Neither their lines nor their texts nor their classes are there.
        EXPECT_EQ(printed(form.form(), note), printed(form.form(), wideItems(6)));
    }
}

TEST(FormsFrom1521, AServiceTakesALineOfTheFormAndPrintsNothing) {
    for (const FormOf& form : forms()) {
        SCOPED_TRACE(form.name);
        NoteText note = wideItems(7);
        note.items[1]["IC_TP_CAD"] = "S";
        note.items[4].erase("IC_TP_CAD");
        note.items[4]["QTDE"] = "nada";
        const std::string stream = printed(form.form(), note);
        EXPECT_EQ(linesOf(stream).size() - 1, form.length + 6) << "blank lines make up for them";
        const Lines four = {"C1", "C3", "C4", "C6"};
        const Lines five = {"C1", "C3", "C4", "C6", "C7"};
        EXPECT_EQ(codes(form, stream, cuts(form) ? 4 : 5), cuts(form) ? four : five);
        EXPECT_EQ(stream.find("L2"), std::string::npos);
        EXPECT_EQ(stream.find("L5"), std::string::npos);
        EXPECT_EQ(stream.find("L7") == std::string::npos, cuts(form));
    }
}

TEST(FormsFrom1521, LegalTextsAreJoinedOnce) {
    for (const FormOf& form : forms()) {
        SCOPED_TRACE(form.name);
        NoteText note = wideItems(4);
        note.items[1]["DC_TXT_LEG_NF"] = "L1";
        note.items[2]["DC_TXT_LEG_NF"] = "";
        note.items[3]["DC_TXT_LEG_NF"] = "M";
        const std::string stream = printed(form.form(), note);
        EXPECT_NE(stream.find(" L1 \\\\  \\\\ M\r\n"), std::string::npos);
    }
}

TEST(FormsFrom1521, TheStubHasTheNumberAndTheLastLineEnds) {
    for (const FormOf& form : forms()) {
        SCOPED_TRACE(form.name);
        const std::vector<Job> jobs = print(form.form(), wideNote().xml(), nullptr, "12345678");
        const std::string last = jobs.back().writes.back();
        const std::string text = last.substr(0, last.find("\r\n"));
        if (form.foot > 0) {
            EXPECT_EQ(text, line({T(form.foot, "12345678")}));
        } else {
            EXPECT_NE(text.find("VOLUME"), std::string::npos);
        }
    }
}

TEST(FormsFrom1521, TheItemLinesMustBeANumber) {
    for (const FormOf& form : forms()) {
        for (const char* count : {"", "seis"}) {
            SCOPED_TRACE(std::string(form.name) + ", \"" + count + "\"");
            NoteText note = wideItems(1);
            note.form["QT_MAX_IT"] = count;
            EXPECT_EQ(linesOf(untilTypeError(form.form(), note)).size(), form.item);
        }
    }
}

}  // namespace
}  // namespace tarn::test
