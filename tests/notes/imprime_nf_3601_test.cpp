// The forms of company 3601 and of establishment 5282: four numbered parcels to a row.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form3601() {
    return notes::imprimeNF_3601.formFor(1);
}
const notes::Form& form5282() {
    return notes::imprimeNF_E5282.formFor(5282);
}

// The totals of the taxes.
const std::string taxes = line({R(3, 25, wide('1')), R(33, 23, wide('2')), R(63, 22, wide('3')),
                                R(101, 22, wide('4')), R(136, 25, wide('5'))});

TEST(ImprimeNF3601, SetUpAndFirstCalls) {
    const std::vector<Job> jobs = print(form3601(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, Lines{" \x0F\x1BM"});
    EXPECT_EQ(jobs[1].writes[0], " \r\n\r\n");
    const std::vector<Job> others = print(form5282(), fullNote().xml());
    ASSERT_EQ(others.size(), 2U);
    EXPECT_EQ(others[0].writes, Lines{" \x0F\x1BM"});
    EXPECT_EQ(others[1].writes[0], line({T(150, "004567")}) + "\r\n\r\n");
}

// Parcels `from` to `to` of one row. The number has no width: behind one of two
// digits all stands a column further right.
std::string row3601(std::size_t from, std::size_t to) {
    std::vector<Cell> cells;
    std::size_t shift = 0;
    for (std::size_t n = from; n <= to; ++n) {
        const std::size_t start = 3 + 39 * (n - from) + shift;
        cells.push_back(T(start, numbered("", n) + ")"));
        shift += n > 9 ? 1 : 0;
        const std::size_t behind = 5 + 39 * (n - from) + shift;
        cells.push_back(L(behind, 10, numbered("D", n)));
        cells.push_back(L(behind + 11, 10, numbered("VENC", n)));
        cells.push_back(R(behind + 22, 12, numbered("", n) + ",50"));
    }
    return line(cells);
}

TEST(ImprimeNF3601, FourNumberedParcelsToARow) {
    const std::pair<const notes::Form*, std::size_t> forms[] = {{&form3601(), 18},
                                                                {&form5282(), 16}};
    for (const auto& [form, at] : forms) {
        const auto block = [form = form, at = at](int count) {
            const Lines found = rows(printed(*form, withParcels(count)), at, at + 8);
            EXPECT_EQ(found[8].substr(0, 5), " PPPP") << count;
            return Lines(found.begin(), found.begin() + 8);
        };
        EXPECT_EQ(block(0), (Lines{" ", "", "", "", "", "", "", ""}));
        EXPECT_EQ(block(1), (Lines{row3601(1, 1), "", "", "", "", "", "", ""}));
        EXPECT_EQ(block(3), (Lines{row3601(1, 3), "", "", "", "", "", "", ""}));
        EXPECT_EQ(block(4), (Lines{row3601(1, 4), "  ", "", "", "", "", "", ""}));
        EXPECT_EQ(block(8), (Lines{row3601(1, 4), row3601(5, 8), "  ", "", "", "", "", ""}));
        EXPECT_EQ(block(11),
                  (Lines{row3601(1, 4), row3601(5, 8), row3601(9, 11), "", "", "", "", ""}));
        EXPECT_EQ(block(12),
                  (Lines{row3601(1, 4), row3601(5, 8), row3601(9, 12), "  ", "", "", "", ""}));
    }
}

TEST(ImprimeNF3601, TheFourthPlaceGoesOnByTheSameStep) {
    const std::string four = linesOf(printed(form3601(), withParcels(4)))[17];
    EXPECT_EQ(four.substr(119),
              line({T(2, "4)"), L(4, 10, "D4"), L(15, 10, "VENC4"), R(26, 12, "4,50")}).substr(1));
    const std::string ninth = linesOf(printed(form3601(), withParcels(12)))[19];
    EXPECT_EQ(ninth.substr(2, 4), "9)D9");
    EXPECT_EQ(ninth.substr(41, 5), "10)D1");
    EXPECT_EQ(ninth.substr(81, 5), "11)D1");
    EXPECT_EQ(ninth.substr(121, 5), "12)D1");
}

TEST(ImprimeNF3601, TooManyParcelsRaiseTheItemsByOneLine) {
    const std::pair<const notes::Form*, std::size_t> forms[] = {{&form3601(), 18},
                                                                {&form5282(), 16}};
    for (const auto& [form, at] : forms) {
        const std::string stream = printed(*form, withParcels(13));
        const Lines found = rows(stream, at, at + 7);
        EXPECT_EQ(found[0], " N\xFAmero de Parcelas maior do que 12");
        EXPECT_EQ(Lines(found.begin() + 1, found.begin() + 7), Lines(6));
        EXPECT_EQ(found[7].substr(0, 5), " PPPP");
        EXPECT_EQ(linesOf(stream).size(), linesOf(printed(*form, withParcels(3))).size() - 1);
    }
}

TEST(ImprimeNF3601, AFullFormKeepsOneBlankLine) {
    // 3601 has one line behind the sixth item, 5282 one more.
    EXPECT_EQ(rows(printed(form3601(), withItems(6)), 32, 33), (Lines{" ", taxes}));
    EXPECT_EQ(rows(printed(form5282(), withItems(6)), 30, 32), (Lines{" ", " ", taxes}));
    EXPECT_EQ(rows(printed(form3601(), withItems(9)), 32, 33), (Lines{" ", taxes}));
}

TEST(ImprimeNF3601, APointInAQuantityGroups) {
    NoteDraft note = withItems(2);
    note.items[0]["QTDE"] = "12.500";
    note.items[0]["VALOR_UN"] = "2";
    note.items[1].erase("QTDE");
    note.items[1]["VALOR_UN"] = "2";
    note.items[1]["ICMS"] = "17.5";
    const auto amounts = [](const std::string& quantity, const std::string& total,
                            const std::string& rate) {
        return line({R(2, 7, quantity), R(14, 13, "2,00"), R(30, 19, total), R(51, 2, rate)})
            .substr(1);
    };
    const Lines lines = rows(printed(form3601(), note), 26, 27);
    EXPECT_EQ(lines[0].substr(109), amounts("12500,000", "25.000,00", "7"));
    EXPECT_EQ(lines[1].substr(109), amounts("5,000", "10,00", "18"));
}

TEST(ImprimeNF3601, TwoLinesForEachText) {
    const auto bands = [](const std::string& legal, const std::string& observation) {
        const NoteDraft note = withTexts(legal, observation);
        const Lines lines = rows(printed(form3601(), note), 42, 46);
        EXPECT_EQ(lines, rows(printed(form5282(), note), 41, 45));
        EXPECT_EQ(lines.back(), line({L(2, 28, 'x'), L(35, 28, 'z')}));
        return Lines(lines.begin(), lines.end() - 1);
    };
    EXPECT_EQ(bands("", ""), (Lines{" ", "", " ", ""}));
    EXPECT_EQ(bands(ruler(1, 88), ruler(9, 88)),
              (Lines{" " + ruler(1, 88), "", " " + ruler(9, 88), ""}));
    EXPECT_EQ(bands(ruler(1, 89), ruler(9, 89)), (Lines{" " + ruler(1, 88), " " + ruler(89, 1),
                                                        " " + ruler(9, 88), " " + ruler(97, 1)}));
    EXPECT_EQ(bands(ruler(1, 177), ""), (Lines{" " + ruler(1, 88), " " + ruler(89, 88), " ", ""}));
}

TEST(ImprimeNF3601, AnOrderNumberOfZeroPrintsNothing) {
    NoteDraft note = fullNote();
    note.head["ID_VND_DIR"] = "0";
    note.head["VENDEDOR"] = "MARIA";
    EXPECT_EQ(linesOf(printed(form3601(), note))[45], line({L(2, 28, ""), L(35, 28, "MARIA")}));
}

}  // namespace
}  // namespace tarn::test
