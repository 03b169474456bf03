// The form of company 3681, with its tax credit.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form3681() {
    return notes::imprimeNF_3681.formFor(1);
}

TEST(ImprimeNF3681, TheSetUpHasAJobOfItsOwn) {
    const std::vector<Job> jobs = print(form3681(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, Lines{" \x0F\x1BM"});
    EXPECT_EQ(jobs[1].writes[0], line({T(142, "004567")}) + "\r\n");
}

std::string row3681(std::size_t from, std::size_t to) {
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
        const Lines found = rows(printed(form3681(), withParcels(count)), 16, 21);
        EXPECT_EQ(found[5].substr(0, 5), " PPPP") << count;
        return Lines(found.begin(), found.begin() + 5);
    };
    EXPECT_EQ(block(0), (Lines{" ", "", "", "", ""}));
    EXPECT_EQ(block(1), (Lines{row3681(1, 1), "", "", "", ""}));
    EXPECT_EQ(block(2), (Lines{row3681(1, 2), "", "", "", ""}));
    EXPECT_EQ(block(3), (Lines{row3681(1, 3), " ", "", "", ""}));
    EXPECT_EQ(block(4), (Lines{row3681(1, 3), row3681(4, 4), "", "", ""}));
    EXPECT_EQ(block(6), (Lines{row3681(1, 3), row3681(4, 6), " ", "", ""}));
    EXPECT_EQ(block(8), (Lines{row3681(1, 3), row3681(4, 6), row3681(7, 8), "", ""}));
    EXPECT_EQ(block(9), (Lines{row3681(1, 3), row3681(4, 6), row3681(7, 9), " ", ""}));
    EXPECT_EQ(block(10), (Lines{" Numero de Parcelas maior do que 9", "", "", "", ""}));
}

// The form has no boxes for them.
TEST(ImprimeNF3681, TaxTotalsAreNotLookedAt) {
    NoteDraft note = fullNote();
    for (const char* name :
         {"VALOR_BASE_ICMS", "VALOR_ICMS", "VALOR_BAS_ICMS_RTD", "VALOR_ICMS_RTD"}) {
        note.totals[name] = "nada";
    }
    EXPECT_EQ(printed(form3681(), note), printed(form3681(), fullNote()));
}

TEST(ImprimeNF3681, TheProductTotalIsLessItsDiscount) {
    NoteDraft note = fullNote();
    note.totals["VALOR_TOTAL"] = "1650.75";
    note.totals["VALOR_TOTAL_DESC"] = "50.25";
    EXPECT_EQ(linesOf(printed(form3681(), note))[27], line({R(134, 21, "1.600,50")}));
}

TEST(ImprimeNF3681, TheCreditDependsOnTheCompany) {
    const auto credit = [](const std::string& base, const std::string& company) {
        NoteDraft note = fullNote();
        note.totals["VL_IMPOSTO_CREDITAR"] = base;
        note.head["ID_EMP_TARN"] = company;
        return rows(printed(form3681(), note), 44, 49);
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
    NoteDraft note = fullNote();
    note.totals.erase("VL_IMPOSTO_CREDITAR");
    EXPECT_EQ(rows(printed(form3681(), note), 44, 49), none);
    note.totals["VL_IMPOSTO_CREDITAR"] = "";
    EXPECT_EQ(linesOf(untilTypeError(form3681(), note)).size(), 44U);
}

TEST(ImprimeNF3681, TheObservationTakesTwoLinesFrom45CharactersOn) {
    const auto bands = [](const std::string& legal, const std::string& observation) {
        const Lines lines = rows(printed(form3681(), withTexts(legal, observation)), 39, 44);
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
    NoteDraft note = withItems(1);
    note.items[0]["QTDE"] = "12.500";
    note.items[0]["VALOR_UN"] = "2";
    EXPECT_EQ(
        linesOf(printed(form3681(), note))[20].substr(105),
        line({R(2, 7, "12500,000"), R(16, 13, "2,00"), R(33, 19, "25.000,00"), R(54, 2, "7,00")})
            .substr(1));
}

}  // namespace
}  // namespace tarn::test
