// What the forms have in common beyond their columns: the line ends behind the
// items, the mark of an entry note, which rows print, long numbers.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

std::string lineEnds(std::size_t count) {
    std::string out;
    for (std::size_t i = 0; i < count; ++i) {
        out += "\r\n";
    }
    return out;
}

struct ItemsOf {
    const char* name;
    const notes::Form* form;
    std::size_t line;    // of the first item
    std::size_t totals;  // line of the totals with two items
    // The calls behind the last item, with 1, 5, 6, 7 and 8 items on six lines.
    std::vector<std::vector<std::size_t>> after;
};

const std::vector<ItemsOf>& allForms() {
    static const std::vector<ItemsOf> forms = {
        {"2041",
         &notes::imprimeNF_2041.formFor(1),
         25,
         31,
         {{4, 1}, {0, 1}, {0, 1}, {0, 1}, {0, 1}}},
        {"Padrao", &notes::imprimeNF_Padrao.formFor(1), 27, 30, {{1}, {1}, {1}, {1}, {1}}},
        {"7", &notes::imprimeNF_7.formFor(1), 20, 28, {{6, 1}, {2, 1}, {1, 1}, {0, 1}, {0, 1}}},
        {"2161_3341",
         &notes::imprimeNF_2161_3341.formFor(1),
         18,
         30,
         {{5, 6}, {1, 6}, {0, 6}, {0, 6}, {0, 6}}},
        {"2161_3381",
         &notes::imprimeNF_2161_3381.formFor(1),
         17,
         29,
         {{5, 6}, {1, 6}, {0, 6}, {0, 6}, {0, 6}}},
        {"2161_3383",
         &notes::imprimeNF_2161_3383.formFor(1),
         18,
         27,
         {{5, 3}, {1, 3}, {0, 3}, {0, 3}, {0, 3}}},
        {"2321",
         &notes::imprimeNF_2321.formFor(1),
         20,
         29,
         {{5, 3}, {1, 3}, {0, 3}, {0, 3}, {0, 3}}},
        {"1581",
         &notes::imprimeNF_1581.formFor(1),
         19,
         28,
         {{5, 3}, {1, 3}, {0, 3}, {0, 3}, {0, 3}}},
        {"2801",
         &notes::imprimeNF_2801.formFor(1),
         18,
         26,
         {{5, 2}, {1, 2}, {0, 2}, {0, 2}, {0, 2}}},
        {"2421 at 3621",
         &notes::imprimeNF_2421.formFor(3621),
         25,
         33,
         {{5, 2}, {1, 2}, {0, 2}, {0, 2}, {0, 2}}},
        {"2421",
         &notes::imprimeNF_2421.formFor(1),
         28,
         35,
         {{5, 1}, {1, 1}, {0, 1}, {0, 1}, {0, 1}}},
    };
    return forms;
}

TEST(FormItems, TheCallsBehindThemBringTheTotalsToTheirLine) {
    const std::size_t counts[] = {1, 5, 6, 7, 8};
    for (const ItemsOf& form : allForms()) {
        NoteText note = withItems(2);
        note.items[0]["QTDE"] = "0";  // the default form prints its sum
        note.items[1] = note.items[0];
        const std::string two = printed(*form.form, note);
        const std::string item = linesOf(two)[form.line - 1] + "\r\n";
        for (std::size_t i = 0; i < std::size(counts); ++i) {
            SCOPED_TRACE(std::string(form.name) + ", " + std::to_string(counts[i]));
            note.items.assign(counts[i], note.items[0]);
            std::string expected;
            for (std::size_t n = 0; n < counts[i]; ++n) {
                expected += item;
            }
            for (const std::size_t ends : form.after[i]) {
                expected += " " + lineEnds(ends);
            }
            const std::string stream = below(printed(*form.form, note), form.line);
            ASSERT_EQ(stream.substr(0, expected.size()), expected);
            EXPECT_EQ(stream.substr(expected.size()), below(two, form.totals));
        }
    }
}

TEST(FormItems, FewFormsPrintServicesAmongTheirProducts) {
    for (const ItemsOf& form : allForms()) {
        SCOPED_TRACE(form.name);
        NoteText note = withItems(3);
        note.items[1]["IC_TP_CAD"] = "S";
        note.items[2].erase("IC_TP_CAD");
        note.form["QT_MAX_IT_NF_SRV"] = "0";
        const std::string name = form.name;
        const bool everyKind = name == "2041" || name == "Padrao" || name == "7";
        EXPECT_EQ(printed(*form.form, note), printed(*form.form, withItems(everyKind ? 3 : 1)));
    }
}

TEST(FormItems, TheItemLinesMustBeANumber) {
    for (const ItemsOf& form : allForms()) {
        for (const std::string count : {"", "seis", "6 itens"}) {
            SCOPED_TRACE(std::string(form.name) + ", " + count);
            NoteText note = withItems(1);
            note.form["QT_MAX_IT"] = count;
            std::optional<RuntimeErrorCode> error;
            const std::vector<Job> jobs = print(*form.form, note.xml(), &error);
            EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
            EXPECT_FALSE(jobs.back().ended);
            EXPECT_EQ(linesOf(jobs.back().bytes()).size(), form.line) << "nothing of the items";
        }
    }
}

struct MarkOf {
    const notes::Form* form;
    std::size_t line;
    std::size_t exit;
    std::size_t entry;
};

TEST(FormHead, TheMarkStandsInTheBoxOfExitOrEntry) {
    const MarkOf marks[] = {
        {&notes::imprimeNF_2041.formFor(1), 5, 121, 131},
        {&notes::imprimeNF_Padrao.formFor(1), 3, 48, 58},
        {&notes::imprimeNF_7.formFor(1), 3, 94, 114},
        {&notes::imprimeNF_2161_3341.formFor(1), 3, 106, 119},
        {&notes::imprimeNF_2161_3381.formFor(1), 2, 90, 103},
        {&notes::imprimeNF_2161_3383.formFor(1), 2, 105, 118},
        {&notes::imprimeNF_2321.formFor(1), 3, 89, 101},
        {&notes::imprimeNF_1581.formFor(1), 3, 96, 109},
        {&notes::imprimeNF_2801.formFor(1), 2, 111, 128},
        {&notes::imprimeNF_2421.formFor(3621), 4, 87, 110},
        {&notes::imprimeNF_2421.formFor(1), 4, 107, 118},
    };
    for (const MarkOf& mark : marks) {
        SCOPED_TRACE(mark.exit);
        NoteText note = fullNote();
        for (const std::string exit : {"S", "e", "", " E"}) {
            note.head["Ent_Sai"] = exit;
            EXPECT_EQ(linesOf(printed(*mark.form, note))[mark.line - 1], line({T(mark.exit, "X")}));
        }
        note.head["Ent_Sai"] = "ENTRADA";
        EXPECT_EQ(linesOf(printed(*mark.form, note))[mark.line - 1], line({T(mark.entry, "X")}));
    }
}

struct NumbersOf {
    const notes::Form* form;
    std::vector<Line> numbers;   // lines that end with the number
    std::vector<Line> labelled;  // lines that begin with it behind its label
};

TEST(FormHead, LongNoteNumbersPrintInFullButBehindALabelWithAWidth) {
    const NumbersOf forms[] = {
        {&notes::imprimeNF_2041.formFor(1),
         {{4, line({T(162, "12345678901")})}, {53, line({T(162, "12345678901")})}},
         {}},
        {&notes::imprimeNF_2161_3381.formFor(1),
         {{1, line({T(120, "12345678901")})}, {48, line({T(122, "12345678901")})}},
         {{38, " FAT: 1234567, N/PED: "}}},
        {&notes::imprimeNF_2321.formFor(1), {}, {{41, " FAT: 1234567890, N/PED: "}}},
    };
    for (const NumbersOf& form : forms) {
        const std::vector<Job> jobs = print(*form.form, fullNote().xml(), nullptr, "12345678901");
        const std::vector<std::string> lines = linesOf(jobs.back().bytes());
        for (const Line& told : form.numbers) {
            EXPECT_EQ(lines[told.number - 1], told.text);
        }
        for (const Line& told : form.labelled) {
            EXPECT_EQ(lines[told.number - 1].substr(0, told.text.size()), told.text);
        }
    }
}

TEST(FormHead, AnOrderNumberOfZeroIsNotPrinted) {
    const std::pair<const notes::Form*, Line> forms[] = {
        {&notes::imprimeNF_2161_3341.formFor(1),
         {39, "     FAT: 004567    , N/PED:              , S/PED: "}},
        {&notes::imprimeNF_2161_3381.formFor(1), {38, " FAT: 004567 , N/PED:         , S/PED: "}},
        {&notes::imprimeNF_2321.formFor(1), {41, " FAT: 004567    , N/PED:              "}},
        {&notes::imprimeNF_2801.formFor(1), {38, " N/PED:              , S/PED: "}},
        {&notes::imprimeNF_2421.formFor(3621), {46, " FAT: 004567    , N/PED:              "}},
    };
    for (const auto& [form, told] : forms) {
        NoteText note = fullNote();
        note.head["ID_VND_DIR"] = "0";
        const std::string zero = linesOf(printed(*form, note))[told.number - 1];
        EXPECT_EQ(zero.substr(0, told.text.size()), told.text);
        note.head.erase("ID_VND_DIR");
        EXPECT_EQ(linesOf(printed(*form, note))[told.number - 1], zero);
    }
}

TEST(Layouts, AreFoundByTheLaddersNames) {
    const std::pair<const char*, const notes::Layout*> layouts[] = {
        {"ImprimeNF_7", &notes::imprimeNF_7},
        {"ImprimeNF_2161_3381", &notes::imprimeNF_2161_3381},
        {"ImprimeNF_2161_3341", &notes::imprimeNF_2161_3341},
        {"ImprimeNF_2161_3383", &notes::imprimeNF_2161_3383},
        {"ImprimeNF_2041", &notes::imprimeNF_2041},
        {"ImprimeNF_2321", &notes::imprimeNF_2321},
        {"ImprimeNF_1581", &notes::imprimeNF_1581},
        {"ImprimeNF_2801", &notes::imprimeNF_2801},
        {"ImprimeNF_2421", &notes::imprimeNF_2421},
        {"ImprimeNF_Padrao", &notes::imprimeNF_Padrao},
    };
    for (const auto& [name, layout] : layouts) {
        EXPECT_EQ(notes::layoutByName(name), layout) << name;
    }
    EXPECT_EQ(notes::layoutByName("ImprimeNF_7 "), nullptr);
}

}  // namespace
}  // namespace tarn::test
