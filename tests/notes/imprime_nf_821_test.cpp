// The forms of companies 821 and 3301, which list the fiscal classes of their items.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const notes::Form& form821() {
    return notes::imprimeNF_821.formFor(1);
}
const notes::Form& form3301() {
    return notes::imprimeNF_3301.formFor(1);
}

TEST(ImprimeNF821, TheNoteBeginsWithTheLineEndsBehindTheSetUp) {
    const std::vector<Job> jobs = print(form821(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, Lines{" \x0F\x1BM"});
    EXPECT_EQ(jobs[1].writes[0], " \r\n\r\n");
    EXPECT_EQ(print(form3301(), fullNote().xml())[0].writes, Lines{" \x0F\x1B\x1BG"});
}

TEST(ImprimeNF821, AnEntryMovesTheMarkAndNotTheNumber) {
    NoteDraft note = fullNote();
    note.head["Ent_Sai"] = "E";
    EXPECT_EQ(rows(printed(form821(), note), 3, 3), Lines{line({T(122, "X"), T(151, "004567")})});
    EXPECT_EQ(rows(printed(form3301(), note), 3, 3), Lines{line({T(107, "X"), T(129, "004567")})});
}

std::vector<Cell> left821(std::size_t n) {
    return {L(26, 10, numbered("D", n)), L(51, 10, numbered("VENC", n)),
            R(71, 10, numbered("", n) + ",50")};
}
std::string row821(std::size_t n) {
    std::vector<Cell> cells = left821(n);
    const std::vector<Cell> beside = {L(101, 10, numbered("D", n + 1)),
                                      L(126, 10, numbered("VENC", n + 1)),
                                      R(146, 10, numbered("", n + 1) + ",50")};
    cells.insert(cells.end(), beside.begin(), beside.end());
    return line(cells);
}

TEST(ImprimeNF821, FourParcelsStandOneLineHigher) {
    const std::string margin(25, ' ');
    const auto block = [](int count, std::size_t to) {
        return rows(printed(form821(), withParcels(count)), 17, to);
    };
    EXPECT_EQ(block(0, 21), (Lines{" ", "", "", "", ""}));
    EXPECT_EQ(block(1, 21), (Lines{line(left821(1)), "", "", "", ""}));
    EXPECT_EQ(block(2, 21), (Lines{row821(1), margin, "", "", ""}));
    EXPECT_EQ(block(3, 21), (Lines{row821(1), line(left821(3)), "", "", ""}));
    EXPECT_EQ(block(4, 20), (Lines{row821(1), row821(3), margin, ""}));
    EXPECT_EQ(block(5, 21), (Lines{" Numero de Parcelas maior do que 4", "", "", "", ""}));
    for (const int count : {0, 1, 2, 3, 4, 5, 12}) {
        const std::size_t first = count == 4 ? 21 : 22;
        EXPECT_EQ(block(count, first).back().substr(0, 5), " PPPP") << count;
    }
}

TEST(ImprimeNF3301, ParcelsAreNotLookedAt) {
    NoteDraft note = fullNote();
    note.head["QTDE_PARC"] = "muitas";
    note.head["VL_PRN_DOC1"] = "nada";
    EXPECT_EQ(printed(form3301(), note), printed(form3301(), fullNote()));
}

TEST(ImprimeNF821, DiscountsAreNotLookedAt) {
    NoteDraft note = fullNote();
    note.items[0]["VL_DSC"] = "nada";
    EXPECT_EQ(printed(form821(), note), printed(form821(), fullNote()));
    EXPECT_EQ(printed(form3301(), note), printed(form3301(), fullNote()));
}

TEST(ImprimeNF821, TheClassLineKeepsTheOrderOfTheItems) {
    NoteDraft note = withItems(4);
    note.items[0]["GF_AGRUP"] = "9";
    note.items[1]["GF_AGRUP"] = "";
    note.items[2].erase("ID_CLA_FIS");
    note.items[3]["GF_AGRUP"] = "9";
    const std::string expected = " CL. FISCAL -  9) 84811  2)   9) 84811 ";
    EXPECT_EQ(linesOf(printed(form821(), note))[28], expected);
    EXPECT_EQ(linesOf(printed(form3301(), note))[25], expected);
    for (Attributes& item : note.items) {
        item.erase("GF_AGRUP");
    }
    EXPECT_EQ(linesOf(printed(form821(), note))[28], " CL. FISCAL - ");
}

TEST(ImprimeNF821, DroppedRowsAndServicesHaveNoClass) {
    NoteDraft note = withItems(7);
    for (std::size_t i = 0; i < 7; ++i) {
        note.items[i]["GF_AGRUP"] = numbered("", i + 1);
    }
    note.items[1]["IC_TP_CAD"] = "S";
    const Lines lines = linesOf(printed(form821(), note));
    EXPECT_EQ(lines[28], " CL. FISCAL -  1) 84811  3) 84811  4) 84811  5) 84811  6) 84811 ");
}

TEST(ImprimeNF821, TheItemsOperationCodeHoldsFourCharacters) {
    const std::pair<std::string, std::string> codes[] = {
        {"0", "0000"}, {"5102", "5102"}, {"51021", "5102"}, {"", "    "}, {"00", "00  "}};
    for (const auto& [code, shown] : codes) {
        NoteDraft note = withItems(1);
        note.items[0]["CFOP_ITEM"] = code;
        EXPECT_EQ(linesOf(printed(form821(), note))[21].substr(77, 8), shown + "    ") << code;
    }
    NoteDraft note = withItems(1);
    note.items[0].erase("CFOP_ITEM");
    EXPECT_EQ(linesOf(printed(form821(), note))[21].substr(77, 8), "        ");
}

// The point of a quantity groups, in its own field and in the total.
TEST(ImprimeNF821, TwelveAndAHalfIsTwelveThousandFiveHundred) {
    NoteDraft note = withItems(2);
    note.items[0]["QTDE"] = "12.500";
    note.items[0]["VALOR_UN"] = "2";
    note.items[1].erase("QTDE");
    note.items[1]["VALOR_UN"] = "2";
    const auto amounts = [](const std::string& quantity, const std::string& total) {
        return line({L(2, 7, quantity), R(10, 13, "2,00"), R(23, 19, total)}).substr(1);
    };
    const Lines lines = linesOf(printed(form821(), note));
    EXPECT_EQ(lines[21].substr(101, 40), amounts("12500,000", "25.000,00"));
    EXPECT_EQ(lines[22].substr(101, 40), amounts("5,000", "10,00"));
    EXPECT_EQ(linesOf(printed(form3301(), note))[18].substr(88, 5), "12500");
}

TEST(ImprimeNF821, TheLegalTextAndTheObservationHaveALineEach) {
    EXPECT_EQ(rows(printed(form821(), withTexts("", "")), 43, 46),
              (Lines{"   ", std::string(86, ' '), "", ""}));
    EXPECT_EQ(rows(printed(form821(), withTexts("REDUZIDA", "URGENTE")), 43, 44),
              (Lines{"   REDUZIDA", line({L(2, 85, "URGENTE")})}));
    EXPECT_EQ(rows(printed(form3301(), withTexts("", "")), 41, 43),
              (Lines{"   ", std::string(59, ' '), ""}));
}

TEST(ImprimeNF821, OrderReferencesHaveNoLabels) {
    NoteDraft note = fullNote();
    note.head["ID_VND_DIR"] = "0";
    note.head["VENDEDOR"] = "MARIA";
    note.head["NR_PED_CLI"] = "PC-77";
    EXPECT_EQ(linesOf(printed(form821(), note))[46],
              line({L(2, 28, ""), L(35, 28, "MARIA"), L(68, 28, "PC-77")}));
}

}  // namespace
}  // namespace tarn::test
