// The default form and the form of company 7, which set the printer up in the job of
// the note.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/paper.h"

namespace tarn::test {
namespace {

const notes::Form& fallback() {
    return notes::imprimeNF_Padrao.formFor(1);
}

const notes::Form& of7() {
    return notes::imprimeNF_7.formFor(1);
}

const std::string blankSetUp = " \x1B\x0F\x0F \x1B\x17 ";

TEST(ImprimeNFPadrao, OneJobHoldsSetUpAndNote) {
    const std::vector<Job> jobs = print(fallback(), fullNote().xml());
    ASSERT_EQ(jobs.size(), 1U);
    const std::vector<std::string>& writes = jobs[0].writes;
    EXPECT_EQ(writes[0], " \x1B\x0F\x0F");
    EXPECT_EQ(writes[1], " \x1B\x17");
    EXPECT_EQ(writes[2], " \r\n");
    EXPECT_EQ(writes[3], line({T(68, "004567")}) + "\r\n");
}

// A person's number is four characters shorter, and what follows moves with it.
TEST(ImprimeNFPadrao, TheDateMovesLeftBehindAPersonsTaxNumber) {
    NoteDraft note = fullNote();
    note.head["IC_TIP_PES"] = "F";
    note.head["CGC_CPF"] = "12345678901";
    EXPECT_EQ(linesOf(printed(fallback(), note))[11],
              line({L(3, 40, 'r'), T(46, "123.456.789-01"), L(65, 10, 'd')}));
}

TEST(ImprimeNFPadrao, TheOperationCodePrintsAsItStands) {
    for (const notes::Form* form : {&fallback(), &of7()}) {
        NoteDraft note = fullNote();
        note.head["CFOP"] = "5102";
        const std::string printedLine = linesOf(printed(*form, note))[8];
        EXPECT_EQ(printedLine.substr(printedLine.size() - 7), "5102   ");
    }
}

TEST(ImprimeNFPadrao, RatesAreTextsAndQuantitiesDropTheirZeros) {
    NoteDraft note = fullNote();
    note.items = {note.items[1]};
    note.items[0]["ICMS"] = "isento";
    note.items[0].erase("IPI");
    note.items[0]["QTDE"] = "12.500";
    note.items[0]["VALOR_UN"] = "2";
    const std::vector<std::string> lines = linesOf(printed(fallback(), note));
    EXPECT_EQ(lines[26], line({R(3, 6, "P-002"), L(11, 22, "ARRUELA LISA"), L(35, 4, "20"),
                               L(41, 4, "UN"), R(47, 4, "12,5"), R(53, 9, "2,00"),
                               R(64, 10, "25,00"), L(76, 4, "isen"), R(80, 4, "0")}));
    EXPECT_EQ(lines[37], line({R(3, 8, "12,5"), L(15, 10, "VOLUME"), R(28, 10, "25,000"),
                               R(39, 10, "25,000")}));
}

TEST(ImprimeNFPadrao, AnEmptyTotalIsOnlyBlank) {
    NoteDraft note = fullNote();
    note.totals["VALOR_TOTAL"] = "";
    note.totals["VALOR_TOTAL_DESC"] = "is not read";
    EXPECT_EQ(linesOf(printed(fallback(), note))[29],
              line({R(3, 12, wide('1')), R(17, 12, wide('2')), R(31, 12, wide('4')),
                    R(45, 12, wide('4')), R(59, 12, "")}));
}

TEST(ImprimeNFPadrao, NeitherObservationNorLegalTextPrints) {
    NoteDraft note = fullNote();
    note.head["DC_OBS"] = "FRAGIL";
    EXPECT_EQ(printed(fallback(), note), printed(fallback(), fullNote()));
}

TEST(ImprimeNFPadrao, WithoutTheNodeTheNumberIsOut) {
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs =
        print(fallback(), "<?xml version=\"1.0\"?><OUTRO A=\"1\" B=\"OK\"/>", &error);
    EXPECT_EQ(error, RuntimeErrorCode::ObjectVariable);
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_FALSE(jobs[0].ended);
    EXPECT_EQ(jobs[0].bytes(), blankSetUp + "\r\n" + line({T(68, "004567")}) + "\r\n");
}

TEST(ImprimeNF7, ParcelsAreNotLookedAt) {
    NoteDraft note = fullNote();
    note.head["QTDE_PARC"] = "muitas";
    EXPECT_EQ(printed(of7(), note), printed(of7(), fullNote()));
}

TEST(ImprimeNF7, ARateThatIsNoNumberStopsTheNote) {
    NoteDraft note = fullNote();
    note.items[1]["ICMS"] = "isento";
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(of7(), note.xml(), &error);
    EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].writes.size(), 10U) << "three for the set-up, six of the head, one item";
}

}  // namespace
}  // namespace tarn::test
