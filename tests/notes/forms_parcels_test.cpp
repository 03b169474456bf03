// The parcels of the forms, for every number of them: their rows, the message, and
// the line on which what stands below begins.
#include <gtest/gtest.h>

#include <functional>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

std::string numbered(const char* text, int n) {
    return text + std::to_string(n);
}

std::string amount(int n) {
    return std::to_string(n) + ",50";
}

using Place = std::function<std::vector<Cell>(int)>;

// "NR_DOC", "DT_VNC_DOC", "VL_PRN_DOC" in this order, as most forms have them.
Place documentDateAmount(std::size_t document, std::size_t width, std::size_t date,
                         std::size_t value, std::size_t valueWidth) {
    return [=](int n) {
        return std::vector<Cell>{L(document, width, numbered("D", n)),
                                 L(date, 10, numbered("VENC", n)), R(value, valueWidth, amount(n))};
    };
}

struct ParcelsOf {
    const char* name;
    const notes::Form* form;
    std::size_t line;               // of the block
    std::size_t margin;             // column of the first field
    std::vector<Place> places;      // of a row
    std::vector<std::size_t> next;  // line below the block, by QTDE_PARC; last: too many
    std::string message;
};

const Place number1581[] = {
    [](int n) {
        return std::vector<Cell>{T(3, std::to_string(n) + ")"), L(5, 10, numbered("VENC", n)),
                                 R(15, 9, amount(n))};
    },
    [](int n) {
        return std::vector<Cell>{T(25, std::to_string(n) + ")"), L(27, 10, numbered("VENC", n)),
                                 R(37, 9, amount(n))};
    },
    [](int n) {
        return std::vector<Cell>{T(47, std::to_string(n) + ")"), L(49, 10, numbered("VENC", n)),
                                 R(59, 9, amount(n))};
    }};

Place of2041(std::size_t document, std::size_t value, std::size_t date) {
    return [=](int n) {
        return std::vector<Cell>{L(document, 10, numbered("D", n)), R(value, 12, amount(n)),
                                 L(date, 10, numbered("VENC", n))};
    };
}

Place ofDefault(std::size_t document, std::size_t date, std::size_t value) {
    return [=](int n) {
        return std::vector<Cell>{L(document, 15, numbered("D", n)),
                                 L(date, 10, numbered("VENC", n)), L(value, 12, amount(n))};
    };
}

const std::string nine = "N\xFAmero de Parcelas maior do que 9";

std::vector<ParcelsOf> allForms() {
    const std::vector<Place> wide2161 = {documentDateAmount(6, 10, 19, 32, 15),
                                         documentDateAmount(60, 10, 73, 86, 15),
                                         documentDateAmount(114, 10, 127, 140, 15)};
    const std::vector<Place> numbers(std::begin(number1581), std::end(number1581));
    const auto formOf = [](const notes::Layout& layout) { return &layout.formFor(1); };
    return {
        {"2041",
         formOf(notes::imprimeNF_2041),
         20,
         12,
         {of2041(12, 24, 46), of2041(71, 83, 105), of2041(130, 142, 164)},
         {25, 25, 25, 25, 25, 25, 25, 25, 25, 25, 25},
         nine},
        {"Padrao",
         formOf(notes::imprimeNF_Padrao),
         19,
         3,
         {ofDefault(3, 20, 32), ofDefault(46, 63, 75)},
         {21, 21, 22, 21, 22, 21},
         "N\xFAmero de Parcelas maior do que 4"},
        {"2161_3341",
         formOf(notes::imprimeNF_2161_3341),
         15,
         6,
         wide2161,
         {18, 18, 18, 18, 18, 18, 18, 18, 18, 19, 20},
         nine},
        {"2161_3381",
         formOf(notes::imprimeNF_2161_3381),
         14,
         6,
         {documentDateAmount(6, 10, 18, 31, 10), documentDateAmount(51, 10, 63, 76, 10),
          documentDateAmount(96, 10, 108, 121, 10)},
         {17, 17, 17, 17, 17, 17, 17, 17, 17, 18, 19},
         nine},
        {"2161_3383",
         formOf(notes::imprimeNF_2161_3383),
         15,
         6,
         wide2161,
         {18, 18, 18, 18, 18, 18, 18, 18, 18, 19, 20},
         nine},
        {"2321",
         formOf(notes::imprimeNF_2321),
         16,
         4,
         {documentDateAmount(4, 7, 12, 23, 15), documentDateAmount(44, 7, 52, 63, 15),
          documentDateAmount(84, 7, 92, 103, 15)},
         {20, 20, 20, 20, 20, 20, 20, 20, 20, 21, 22},
         nine},
        // Six parcels have a test of their own.
        {"1581",
         formOf(notes::imprimeNF_1581),
         42,
         3,
         numbers,
         {44, 44, 44, 44, 44, 44, 0, 44},
         "N\xFAmero de Parcelas maior do que 6"},
        {"2801",
         formOf(notes::imprimeNF_2801),
         40,
         3,
         numbers,
         {42, 42, 42, 42, 42, 42, 0, 42},
         "N\xFAmero de Parcelas maior do que 6"},
    };
}

// The block's lines: full rows, then the rest of the last row, which is at least
// the margin.
std::vector<std::string> rowsOf(const ParcelsOf& form, int count) {
    if (count == 0) {
        return {" "};
    }
    std::vector<std::string> rows;
    std::vector<Cell> cells;
    const int perRow = static_cast<int>(form.places.size());
    for (int n = 1; n <= count; ++n) {
        const std::vector<Cell> parcel = form.places[static_cast<std::size_t>((n - 1) % perRow)](n);
        cells.insert(cells.end(), parcel.begin(), parcel.end());
        if (n % perRow == 0) {
            rows.push_back(line(cells));
            cells.clear();
        }
    }
    rows.push_back(cells.empty() ? line({T(form.margin, "")}) : line(cells));
    return rows;
}

void expectBlock(const ParcelsOf& form, const std::string& stream,
                 const std::vector<std::string>& rows, std::size_t next) {
    const std::vector<std::string> lines = linesOf(stream);
    ASSERT_GT(lines.size(), next);
    for (std::size_t number = form.line; number < next; ++number) {
        const std::size_t row = number - form.line;
        EXPECT_EQ(lines[number - 1], row < rows.size() ? rows[row] : "") << "line " << number;
    }
    EXPECT_LE(form.line + rows.size(), next);
    // All below is the same, wherever it begins.
    const std::string three = printed(*form.form, withParcels(3));
    EXPECT_EQ(below(stream, next), below(three, form.next[3]));
}

TEST(FormParcels, EveryNumberHasItsRowsAndItsHeight) {
    for (const ParcelsOf& form : allForms()) {
        for (int count = 0; count + 1 < static_cast<int>(form.next.size()); ++count) {
            SCOPED_TRACE(std::string(form.name) + ", " + std::to_string(count));
            const std::size_t next = form.next[static_cast<std::size_t>(count)];
            if (next > 0) {
                expectBlock(form, printed(*form.form, withParcels(count)), rowsOf(form, count),
                            next);
            }
        }
    }
}

TEST(FormParcels, TooManyLeaveTheMessage) {
    for (const ParcelsOf& form : allForms()) {
        const int limit = static_cast<int>(form.next.size()) - 2;
        for (const std::string& count :
             {std::to_string(limit + 1), std::string("12"), std::string("40000")}) {
            SCOPED_TRACE(std::string(form.name) + ", " + count);
            NoteText note = withParcels(3);
            note.head["QTDE_PARC"] = count;
            expectBlock(form, printed(*form.form, note), {" " + form.message}, form.next.back());
        }
    }
}

TEST(FormParcels, FractionsAreCutAndNoneIsZero) {
    for (const ParcelsOf& form : allForms()) {
        SCOPED_TRACE(form.name);
        NoteText note = withParcels(5);
        const int limit = static_cast<int>(form.next.size()) - 2;
        note.head["QTDE_PARC"] = std::to_string(limit) + ".9";
        EXPECT_EQ(printed(*form.form, note), printed(*form.form, withParcels(limit)));
        note.head.erase("QTDE_PARC");
        EXPECT_EQ(printed(*form.form, note), printed(*form.form, withParcels(0)));
    }
}

}  // namespace
}  // namespace tarn::test
