// The form of company 3681, with its tax credit.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/wide_note.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form() {
    return notes::imprimeNF_3681.formFor(1);
}

const std::vector<Line> paper = {
    {1, line({T(142, "004567")})},
    {2, line({T(99, "X")})},
    {7, line({L(2, 40, 'n'), L(49, 7, 'c')})},
    {10, line({L(2, 75, 'r'), L(97, 18, "12.345.678/0001-95"), L(139, 14, 'd')})},
    {12, line({L(2, 60, 'e'), L(64, 18, 'o'), L(84, 28, 'b'), L(120, 12, "01310-100"),
               L(132, 10, "")})},
    {14, line({L(2, 40, 'm'), L(62, 20, 'f'), L(88, 3, 'u'), L(99, 30, 'i'), L(135, 14, "")})},
    {16, line({L(2, 10, "DOC-1"), R(14, 10, "100,50"), L(36, 10, "07/02/2009"), L(57, 10, 'N'),
               R(69, 10, "123456789012345,00"), L(91, 10, 'V'), L(112, 10, "DOC-3"),
               R(124, 10, "1300,25"), L(146, 10, "07/04/2009")})},
    {17, " "},
    {21, line({L(2, 10, 'P'), L(15, 65, 'D'), L(86, 4, "oSSS"), L(93, 6, 'U'),
               R(106, 7, "10000000,000"), R(120, 13, unitPrice), R(137, 19, lineTotal),
               R(158, 2, "18,00")})},
    {22, line({L(2, 10, "P-002"), L(15, 65, "ARRUELA LISA"), L(86, 4, "120"), L(93, 6, "UN"),
               R(106, 7, "400,000"), R(120, 13, "1234,50"), R(137, 19, "493.800,00"),
               R(158, 2, "7,00")})},
    {23, " "},
    {27, " "},
    {28, line({R(134, 21, wide('5'))})},
    {30, line({R(13, 16, "10,00"), R(49, 10, "5,50"), R(72, 20, "0,25"), R(107, 16, "80,04"),
               R(146, 15, "1.696,54")})},
    {32, line({L(2, 60, 't'), L(95, 2, 'q'), L(103, 11, 'p'), L(122, 2, 'v'),
               L(128, 18, " 2.345.678/0001-10")})},
    {34, line({L(2, 60, 'l'), L(77, 35, 'w'), L(121, 2, 's'), L(127, 18, 'k')})},
    {36, line({R(12, 11, "12,000"), L(25, 11, "VOLUME"), L(52, 8, ""), L(74, 24, ""),
               R(121, 16, "123.456.789.012.345,000"), R(151, 9, "1.200,000")})},
    {39, line({T(2, ruler(1, 74))})},
    {40, line({T(2, ruler(75, 74))})},
    {41, line({T(2, ruler(601, 74))})},
    {42, line({T(2, ruler(675, 74))})},
    {44, line({R(52, 16, "27,90")})},
    {45, line({T(33, "1,86")})},
    {49, line({T(147, "004567")})},
};

TEST(ImprimeNF3681, EveryLine) {
    expectPaper(printed(form(), wideNote()), 53, paper);
}

TEST(ImprimeNF3681, TheSetUpHasAJobOfItsOwn) {
    const std::vector<Job> jobs = print(form(), wideNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, Lines{" \x0F\x1BM"});
    EXPECT_EQ(jobs[1].writes[0], line({T(142, "004567")}) + "\r\n");
}

std::string row(std::size_t from, std::size_t to) {
    std::vector<Cell> cells;
    for (std::size_t n = from; n <= to; ++n) {
        const std::size_t start = 2 + 55 * (n - from);
        cells.push_back(L(start, 10, numbered("D", n)));
        cells.push_back(R(start + 12, 10, numbered("", n) + ",50"));
        cells.push_back(L(start + 34, 10, numbered("VENC", n)));
    }
    return line(cells);
}

TEST(ImprimeNF3681, ParcelsNeverMoveTheItems) {
    const auto block = [](int count) {
        const Lines found = rows(printed(form(), wideParcels(count)), 16, 21);
        EXPECT_EQ(found[5].substr(0, 5), " PPPP") << count;
        return Lines(found.begin(), found.begin() + 5);
    };
    EXPECT_EQ(block(0), (Lines{" ", "", "", "", ""}));
    EXPECT_EQ(block(1), (Lines{row(1, 1), "", "", "", ""}));
    EXPECT_EQ(block(2), (Lines{row(1, 2), "", "", "", ""}));
    EXPECT_EQ(block(3), (Lines{row(1, 3), " ", "", "", ""}));
    EXPECT_EQ(block(4), (Lines{row(1, 3), row(4, 4), "", "", ""}));
    EXPECT_EQ(block(6), (Lines{row(1, 3), row(4, 6), " ", "", ""}));
    EXPECT_EQ(block(8), (Lines{row(1, 3), row(4, 6), row(7, 8), "", ""}));
    EXPECT_EQ(block(9), (Lines{row(1, 3), row(4, 6), row(7, 9), " ", ""}));
    EXPECT_EQ(block(10), (Lines{" Numero de Parcelas maior do que 9", "", "", "", ""}));
}

// The form has no boxes for them.
TEST(ImprimeNF3681, TaxTotalsAreNotLookedAt) {
    NoteText note = wideNote();
    for (const char* name :
         {"VALOR_BASE_ICMS", "VALOR_ICMS", "VALOR_BAS_ICMS_RTD", "VALOR_ICMS_RTD"}) {
        note.totals[name] = "nada";
    }
    expectPaper(printed(form(), note), 53, paper);
}

TEST(ImprimeNF3681, TheProductTotalIsLessItsDiscount) {
    NoteText note = wideNote();
    note.totals["VALOR_TOTAL"] = "1650.75";
    note.totals["VALOR_TOTAL_DESC"] = "50.25";
    EXPECT_EQ(linesOf(printed(form(), note))[27], line({R(134, 21, "1.600,50")}));
}

TEST(ImprimeNF3681, TheCreditDependsOnTheCompany) {
    const auto credit = [](const std::string& base, const std::string& company) {
        NoteText note = wideNote();
        note.totals["VL_IMPOSTO_CREDITAR"] = base;
        note.head["ID_EMP_TARN"] = company;
        return rows(printed(form(), note), 44, 49);
    };
    const std::string foot = line({T(147, "004567")});
    const auto two = [&](const std::string& amount, const std::string& rate) {
        return Lines{line({R(52, 16, amount)}), line({T(33, rate)}), "", "", "", foot};
    };
    EXPECT_EQ(credit("1500", "541"), two("27,90", "1,86"));
    EXPECT_EQ(credit("1500", " 3681 "), two("27,90", "1,86"));
    EXPECT_EQ(credit("1500.25", "3681"), two("27,90", "1,86"));
    EXPECT_EQ(credit("1000000", "541"), two("18.600,00", "1,86"));
    EXPECT_EQ(credit("1500", "9"), two("0,00", ""));
    EXPECT_EQ(credit("1500", ""), two("0,00", ""));
    const Lines none = {" ", "", "", "", "", foot};
    EXPECT_EQ(credit("0", "541"), none);
    EXPECT_EQ(credit("-3", "541"), none);
    NoteText note = wideNote();
    note.totals.erase("VL_IMPOSTO_CREDITAR");
    EXPECT_EQ(rows(printed(form(), note), 44, 49), none);
    note.totals["VL_IMPOSTO_CREDITAR"] = "";
    EXPECT_EQ(linesOf(untilTypeError(form(), note)).size(), 44U);
}

TEST(ImprimeNF3681, TheObservationTakesTwoLinesFrom45CharactersOn) {
    const auto bands = [](const std::string& legal, const std::string& observation) {
        const Lines lines = rows(printed(form(), wideTexts(legal, observation)), 39, 44);
        EXPECT_EQ(lines.back(), line({R(52, 16, "27,90")}));
        return Lines(lines.begin(), lines.end() - 1);
    };
    EXPECT_EQ(bands("", ""), (Lines{" ", "", " ", "", ""}));
    EXPECT_EQ(bands(ruler(1, 74), ruler(1, 44)),
              (Lines{" " + ruler(1, 74), "", " " + ruler(1, 44), "", ""}));
    EXPECT_EQ(bands(ruler(1, 75), ruler(1, 45)),
              (Lines{" " + ruler(1, 74), " " + ruler(75, 1), " " + ruler(1, 45), " ", ""}));
    EXPECT_EQ(bands("", ruler(1, 75)),
              (Lines{" ", "", " " + ruler(1, 74), " " + ruler(75, 1), ""}));
}

TEST(ImprimeNF3681, APointInAQuantityGroups) {
    NoteText note = wideItems(1);
    note.items[0]["QTDE"] = "12.500";
    note.items[0]["VALOR_UN"] = "2";
    EXPECT_EQ(
        linesOf(printed(form(), note))[20].substr(105),
        line({R(2, 7, "12500,000"), R(16, 13, "2,00"), R(33, 19, "25.000,00"), R(54, 2, "7,00")})
            .substr(1));
}

}  // namespace
}  // namespace tarn::test
