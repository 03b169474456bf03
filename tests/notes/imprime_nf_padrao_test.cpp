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

const std::string setUp = " \x1B\x0F\x0F \x1B\x17 ";

TEST(ImprimeNFPadrao, EveryLine) {
    const std::string bottom = "CONFIGURADOS VIA PROGRAMA\xC7\xC3O DE CADA CLIENTE TARN";
    expectPaper(printed(fallback(), fullNote()), 56,
                {{1, setUp},
                 {2, line({T(68, "004567")})},
                 {3, line({T(48, "X")})},
                 {9, line({L(3, 25, 'n'), L(31, 7, 'c')})},
                 {12, line({L(3, 40, 'r'), T(46, "12.345.678/0001-95"), L(69, 10, 'd')})},
                 {14, line({L(3, 40, 'e'), L(45, 15, 'b'), T(66, "01310-100")})},
                 {16, line({L(3, 30, 'm'), L(36, 15, 'f'), L(54, 5, 'u'), L(62, 15, 'i')})},
                 {19, line({L(3, 15, "DOC-1"), L(20, 10, "07/02/2009"), L(32, 12, "100,50"),
                            L(46, 15, 'N'), L(63, 10, 'V'), L(75, 12, "123456789012345,00")})},
                 {20, line({L(3, 15, "DOC-3"), L(20, 10, "07/04/2009"), L(32, 12, "1300,25")})},
                 {21, line({L(4, 20, 'E'), L(26, 20, 'B'), T(48, "04002-000"), L(67, 20, 'M'),
                            L(89, 12, 'H')})},
                 {23, line({L(4, 20, 'F'), L(26, 20, 'G'), T(48, "00000-000"), L(67, 20, 'J'),
                            L(89, 12, 'K')})},
                 {27, line({L(3, 6, 'P'), L(11, 22, 'D'), L(35, 4, 'S'), L(41, 4, 'U'),
                            R(47, 4, "10000000"), R(53, 9, unitPrice), R(64, 10, lineTotal),
                            R(76, 4, "18,00"), R(80, 4, "13,50")})},
                 {28, line({R(3, 6, "P-002"), L(11, 22, "ARRUELA LISA"), L(35, 4, "20"),
                            L(41, 4, "UN"), R(47, 4, "400"), R(53, 9, "1234,50"),
                            R(64, 10, "493.800,00"), R(76, 4, "7"), R(80, 4, "6")})},
                 {29, " "},
                 {30, line({R(3, 12, wide('1')), R(17, 12, wide('2')), R(31, 12, wide('4')),
                            R(45, 12, wide('4')), R(59, 12, wide('5'))})},
                 {32, line({R(3, 12, "10,00"), R(17, 12, "5,50"), R(31, 12, "0,25"),
                            R(45, 12, "80,04"), R(59, 12, "1.696,54")})},
                 {35, line({L(3, 30, 't'), L(60, 10, 'p'), T(78, " 2.345.678/0001-10")})},
                 {37, line({L(3, 30, 'l'), L(37, 20, 'w'), L(60, 3, 's'), L(66, 15, 'k')})},
                 // 10000000 and 400; 5000000 and 800
                 {39, line({R(3, 8, "10000400"), L(15, 10, "VOLUME"), R(28, 10, "5.000.800,000"),
                            R(39, 10, "5.000.800,000")})},
                 {42, line({T(2, "TEXTOS LEGAIS GRAVADOS NA TRIBUTA\xC7\xC3O")})},
                 {43, line({T(2, bottom)})},
                 {53, line({T(59, "004567")})}});
}

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
    NoteText note = fullNote();
    note.head["IC_TIP_PES"] = "F";
    note.head["CGC_CPF"] = "12345678901";
    EXPECT_EQ(linesOf(printed(fallback(), note))[11],
              line({L(3, 40, 'r'), T(46, "123.456.789-01"), L(65, 10, 'd')}));
}

TEST(ImprimeNFPadrao, TheOperationCodePrintsAsItStands) {
    for (const notes::Form* form : {&fallback(), &of7()}) {
        NoteText note = fullNote();
        note.head["CFOP"] = "5102";
        const std::string printedLine = linesOf(printed(*form, note))[8];
        EXPECT_EQ(printedLine.substr(printedLine.size() - 7), "5102   ");
    }
}

TEST(ImprimeNFPadrao, RatesAreTextsAndQuantitiesDropTheirZeros) {
    NoteText note = fullNote();
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
    NoteText note = fullNote();
    note.totals["VALOR_TOTAL"] = "";
    note.totals["VALOR_TOTAL_DESC"] = "is not read";
    EXPECT_EQ(linesOf(printed(fallback(), note))[29],
              line({R(3, 12, wide('1')), R(17, 12, wide('2')), R(31, 12, wide('4')),
                    R(45, 12, wide('4')), R(59, 12, "")}));
}

TEST(ImprimeNFPadrao, NeitherObservationNorLegalTextPrints) {
    NoteText note = fullNote();
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
    EXPECT_EQ(jobs[0].bytes(), setUp + "\r\n" + line({T(68, "004567")}) + "\r\n");
}

TEST(ImprimeNF7, EveryLine) {
    expectPaper(
        printed(of7(), fullNote()), 52,
        {{1, setUp},
         {2, line({T(132, "004567")})},
         {3, line({T(94, "X")})},
         {9, line({L(2, 41, 'n'), L(46, 7, 'c')})},
         {12, line({L(2, 83, 'r'), L(88, 30, "12.345.678/0001-95"), L(126, 10, 'd')})},
         {14, line({L(2, 66, 'e'), L(71, 29, 'b'), L(103, 15, "01310-100"), L(126, 10, 'd')})},
         {16, line({L(2, 33, 'm'), L(38, 42, 'f'), L(83, 2, 'u'), L(88, 30, 'i')})},
         {20, line({L(2, 7, 'P'), L(10, 66, 'D'), L(77, 2, 'C'), L(80, 2, 'S'), L(84, 4, 'U'),
                    R(89, 5, "10000000"), R(95, 15, unitPrice), R(114, 16, lineTotal),
                    L(134, 4, "18,00")})},
         {21, line({L(2, 7, "P-002"), L(10, 66, "ARRUELA LISA"), L(77, 2, "84"), L(80, 2, "20"),
                    L(84, 4, "UN"), R(89, 5, "400"), R(95, 15, "1234,50"), R(114, 16, "493.800,00"),
                    L(134, 4, "7,00")})},
         {22, " "},
         {27, " "},
         {28, line({R(2, 27, wide('1')), R(32, 21, wide('2')), R(55, 27, wide('4')),
                    R(85, 20, wide('4')), R(107, 30, wide('5'))})},
         {30, line({R(2, 27, "10,00"), R(32, 21, "5,50"), R(55, 27, "0,25"), R(85, 20, "80,04"),
                    R(107, 30, "1.696,54")})},
         {43, line({T(2, "ESTE DOCUMENTO N\xC3O TRANSFERE CREDITO DE ICMS")})},
         {44, line({T(2, "ARQUIVO 10 - ANEXO XX DO RICMS/2000")})},
         {49, line({T(127, "004567")})}});
}

TEST(ImprimeNF7, ParcelsAreNotLookedAt) {
    NoteText note = fullNote();
    note.head["QTDE_PARC"] = "muitas";
    EXPECT_EQ(printed(of7(), note), printed(of7(), fullNote()));
}

TEST(ImprimeNF7, ARateThatIsNoNumberStopsTheNote) {
    NoteText note = fullNote();
    note.items[1]["ICMS"] = "isento";
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(of7(), note.xml(), &error);
    EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
    ASSERT_EQ(jobs.size(), 1U);
    EXPECT_EQ(jobs[0].writes.size(), 10U) << "three for the set-up, six of the head, one item";
}

}  // namespace
}  // namespace tarn::test
