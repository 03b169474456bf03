// The form of company 1361, line by line: columns, widths and line ends as they
// stand on the paper.
#include <gtest/gtest.h>

#include "notes/layouts/layouts.h"
#include "tests/notes/note_files.h"
#include "tests/notes/note_fixture.h"

namespace tarn::test {
namespace {

const notes::Form& form1361() {
    return notes::imprimeNF_1361.formFor(1);
}

using Values = std::vector<std::pair<std::size_t, std::string>>;

// One printed line: its place on the form, its length, what stands where.
struct Line {
    std::size_t number;
    std::size_t length;
    Values values;
};

void expectLine(const std::vector<std::string>& lines, const Line& expected) {
    ASSERT_LE(expected.number, lines.size());
    EXPECT_EQ(lines[expected.number - 1], lineOf(expected.length, expected.values))
        << "line " << expected.number;
}

TEST(ImprimeNF1361, TheGoldenFile) {
    const std::string golden = noteFile("note_1361.prn");
    ASSERT_GT(golden.size(), 2000U);
    EXPECT_EQ(printed(form1361(), sampleNote()), golden);
}

TEST(ImprimeNF1361, TheSetUpGoesInAJobOfItsOwn) {
    const std::vector<Job> jobs = print(form1361(), sampleNote().xml());
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_EQ(jobs[0].writes, std::vector<std::string>{" \x0F"});
    EXPECT_TRUE(jobs[0].ended);
    EXPECT_TRUE(jobs[1].ended);
}

// One write a call: the parcels take two, the items one each and two below, the
// legal text three.
TEST(ImprimeNF1361, OneWriteForEachPrintedRow) {
    const std::vector<Job> jobs = print(form1361(), sampleNote().xml());
    const std::vector<std::string>& writes = jobs[1].writes;
    ASSERT_EQ(writes.size(), 24U);
    EXPECT_EQ(writes[0], lineOf(130, {{90, "X"}, {125, "004567"}}) + "\r\n\r\n\r\n\r\n\r\n\r\n");
    EXPECT_EQ(writes[6], std::string(22, ' ') + "\r\n\r\n\r\n\r\n");
    EXPECT_EQ(writes[9], " \r\n\r\n\r\n\r\n");
    EXPECT_EQ(writes[10], " \r\n\r\n");
    EXPECT_EQ(writes[22], " \r\n\r\n\r\n\r\n");
    EXPECT_EQ(writes[23].substr(122), "004567\r\n\r\n\r\n\r\n\r\n\r\n\r\n\r\n");
}

TEST(ImprimeNF1361, AnEntryNoteHasItsMarkFurtherRight) {
    for (const std::string kind : {"E", "ENTRADA"}) {
        NoteDraft note = sampleNote();
        note.head["Ent_Sai"] = kind;
        expectLine(linesOf(printed(form1361(), note)), {1, 130, {{104, "X"}, {125, "004567"}}});
    }
}

TEST(ImprimeNF1361, AnythingButACapitalEIsAnExit) {
    for (const std::string kind : {"e", " E", "", "S", "ÉE"}) {
        NoteDraft note = sampleNote();
        note.head["Ent_Sai"] = kind;
        expectLine(linesOf(printed(form1361(), note)), {1, 130, {{90, "X"}, {125, "004567"}}});
    }
    NoteDraft without = sampleNote();
    without.head.erase("Ent_Sai");
    expectLine(linesOf(printed(form1361(), without)), {1, 130, {{90, "X"}, {125, "004567"}}});
}

// Parcels ----------------------------------------------------------------------

NoteDraft noteOfParcels(int count) {
    NoteDraft note = sampleNote();
    note.head["QTDE_PARC"] = std::to_string(count);
    for (std::size_t n = 1; n <= 12; ++n) {
        note.head[numbered("VL_PRN_DOC", n)] = numbered("", n) + ".5";
        note.head[numbered("DT_VNC_DOC", n)] = numbered("VENC", n);
    }
    return note;
}

// Amounts "1,50" to "9,50" end in columns 39, 79 and 122.
const Values ofPlace[] = {
    {{36, "1,50"}, {45, "VENC1"}}, {{76, "2,50"}, {86, "VENC2"}}, {{119, "3,50"}, {127, "VENC3"}},
    {{36, "4,50"}, {45, "VENC4"}}, {{76, "5,50"}, {86, "VENC5"}}, {{119, "6,50"}, {127, "VENC6"}},
    {{36, "7,50"}, {45, "VENC7"}}, {{76, "8,50"}, {86, "VENC8"}}, {{119, "9,50"}, {127, "VENC9"}}};
// A row ends behind its last parcel's due date.
constexpr std::size_t rowLength[] = {22, 54, 95, 136};

TEST(ImprimeNF1361, RowsOfParcelsByTheirNumber) {
    for (int count = 1; count <= 9; ++count) {
        SCOPED_TRACE(count);
        const std::vector<std::string> lines = linesOf(printed(form1361(), noteOfParcels(count)));
        for (int row = 0; row <= count / 3; ++row) {
            Values values;
            const int held = std::min(3, count - 3 * row);
            for (int place = 0; place < held; ++place) {
                const Values& parcel = ofPlace[3 * row + place];
                values.insert(values.end(), parcel.begin(), parcel.end());
            }
            expectLine(lines, {17U + static_cast<std::size_t>(row), rowLength[held], values});
        }
        for (std::size_t line = 18U + static_cast<std::size_t>(count / 3); line < 22; ++line) {
            expectLine(lines, {line, 0, {}});
        }
        EXPECT_EQ(lines[21].substr(0, 6), " P-001");
        EXPECT_EQ(lines.size(), 60U);
    }
}

TEST(ImprimeNF1361, NoParcelsLeaveTheFormOneLineLower) {
    for (const std::string count : {"0", "0.9", "0,5"}) {
        NoteDraft note = sampleNote();
        note.head["QTDE_PARC"] = count;
        const std::vector<std::string> lines = linesOf(printed(form1361(), note));
        expectLine(lines, {17, 1, {}});
        EXPECT_EQ(lines[22].substr(0, 6), " P-001");
        EXPECT_EQ(lines.size(), 61U);
    }
    NoteDraft absent = sampleNote();
    absent.head.erase("QTDE_PARC");
    EXPECT_EQ(linesOf(printed(form1361(), absent)).size(), 61U);
}

TEST(ImprimeNF1361, TooManyParcelsLeaveTheMessage) {
    for (const std::string count : {"10", "12", "9999999", "999999999999999999999"}) {
        NoteDraft note = noteOfParcels(10);
        note.head["QTDE_PARC"] = count;
        const std::vector<std::string> lines = linesOf(printed(form1361(), note));
        expectLine(lines, {17, 34, {{2, "N\xFAmero de Parcelas maior do que 9"}}});
        for (std::size_t line = 18; line < 23; ++line) {
            expectLine(lines, {line, 0, {}});
        }
        EXPECT_EQ(lines[22].substr(0, 6), " P-001");
        EXPECT_EQ(lines.size(), 61U);
    }
}

TEST(ImprimeNF1361, AFractionOfAParcelIsCut) {
    NoteDraft note = noteOfParcels(9);
    note.head["QTDE_PARC"] = "9.9";
    const std::vector<std::string> lines = linesOf(printed(form1361(), note));
    EXPECT_EQ(lines[18].substr(118, 4), "9,50");
    EXPECT_EQ(lines.size(), 60U);
}

TEST(ImprimeNF1361, AnAbsentParcelPrintsZeroAndAnEmptyOneBlanks) {
    NoteDraft note = sampleNote();
    note.head.erase("VL_PRN_DOC1");
    note.head.erase("DT_VNC_DOC1");
    note.head["VL_PRN_DOC2"] = "";
    expectLine(
        linesOf(printed(form1361(), note)),
        {17, 136, {{36, "0,00"}, {86, "07/03/2009"}, {116, "1300,25"}, {127, "07/04/2009"}}});
}

// Items ------------------------------------------------------------------------

NoteDraft noteOfItems(std::size_t count) {
    NoteDraft note = sampleNote();
    const Attributes item = note.items[0];
    note.items.assign(count, item);
    return note;
}

TEST(ImprimeNF1361, TheTotalsKeepTheirLineUpToQtMaxIt) {
    for (std::size_t count = 1; count <= 6; ++count) {
        SCOPED_TRACE(count);
        const std::vector<std::string> lines = linesOf(printed(form1361(), noteOfItems(count)));
        EXPECT_EQ(lines.size(), 60U);
        for (std::size_t i = 0; i < count; ++i) {
            EXPECT_EQ(lines[21 + i].substr(0, 6), " P-001");
        }
        EXPECT_EQ(lines[29].substr(17, 8), "1.600,75");
    }
}

// A full form: the call of the blank lines still sends its blank, ahead of the
// next one's.
TEST(ImprimeNF1361, AFullFormHasNoBlankLines) {
    const std::vector<std::string> lines = linesOf(printed(form1361(), noteOfItems(6)));
    expectLine(lines, {28, 2, {}});
    expectLine(lines, {29, 0, {}});
}

TEST(ImprimeNF1361, MoreItemsPushTheFormDown) {
    const std::vector<std::string> seven = linesOf(printed(form1361(), noteOfItems(7)));
    EXPECT_EQ(seven.size(), 61U);
    EXPECT_EQ(seven[27].substr(0, 6), " P-001");
    expectLine(seven, {29, 2, {}});
    EXPECT_EQ(seven[30].substr(17, 8), "1.600,75");
    EXPECT_EQ(linesOf(printed(form1361(), noteOfItems(9))).size(), 63U);
}

TEST(ImprimeNF1361, EveryKindOfItemIsPrinted) {
    NoteDraft note = sampleNote();
    note.items[0]["IC_TP_CAD"] = "S";
    note.items[1].erase("IC_TP_CAD");
    const std::vector<std::string> lines = linesOf(printed(form1361(), note));
    EXPECT_EQ(lines[21].substr(0, 6), " P-001");
    EXPECT_EQ(lines[22].substr(0, 6), " P-002");
}

TEST(ImprimeNF1361, AnotherElementEndsTheItemsButTheFirstIsReadWhateverItsName) {
    std::string xml = noteOfItems(3).xml();
    const std::size_t first = xml.find("<ITEM");
    const std::size_t second = xml.find("<ITEM", first + 1);
    const std::size_t third = xml.find("<ITEM", second + 1);
    std::string renamed = xml;
    renamed.replace(third, 5, "<ITEN");
    renamed.replace(first, 5, "<PROD");
    EXPECT_EQ(linesOf(print(form1361(), renamed).back().bytes())[23], " ") << "two items";
    std::string prefixed = xml;
    prefixed.replace(second, 5, "<x:ITEM xmlns:x=\"urn:x\"");
    EXPECT_EQ(linesOf(print(form1361(), prefixed).back().bytes())[24], " ") << "three items";
}

TEST(ImprimeNF1361, AQuantityOfZeroHasNoDiscount) {
    NoteDraft note = sampleNote();
    note.items[0]["QTDE"] = "0";
    note.items[0]["VL_DSC"] = "no number, and not looked at";
    note.items[1].erase("QTDE");
    const std::vector<std::string> lines = linesOf(printed(form1361(), note));
    EXPECT_EQ(lines[21].substr(77, 47),
              lineOf(47, {{3, "0,000"}, {15, "100,06"}, {37, "0,00"}, {44, "0,00"}}));
    EXPECT_EQ(lines[22].substr(77, 7), "  0,000");
}

TEST(ImprimeNF1361, AmountsAreCutFromTheRight) {
    NoteDraft note = sampleNote();
    note.items[0]["QTDE"] = "123456.789";
    note.items[0]["VALOR_UN"] = "12345678.9";
    note.items[0]["ICMS"] = "-0.001";
    const std::string item = linesOf(printed(form1361(), note))[21];
    EXPECT_EQ(item.substr(77, 7), "123456,");
    EXPECT_EQ(item.substr(88, 9), "12345678,");
    EXPECT_EQ(item.substr(124, 5), "0,00 ");
    // 123456.789 * 12345678.9 is 1524157875019.05 to 15 digits.
    EXPECT_EQ(item.substr(100, 17), "1.524.157.875.019");
}

// Values -----------------------------------------------------------------------

TEST(ImprimeNF1361, NaturalPersonsHaveTheirOwnTaxNumber) {
    NoteDraft note = sampleNote();
    note.head["IC_TIP_PES"] = "F";
    note.head["CGC_CPF"] = "12345678901";
    EXPECT_EQ(linesOf(printed(form1361(), note))[9].substr(88, 28), "123.456.789-01              ");
    note.head["CGC_CPF"] = "1";
    EXPECT_EQ(linesOf(printed(form1361(), note))[9].substr(88, 14), "000.000.000-01");
    note.head["IC_TIP_PES"] = "f";
    note.head.erase("CGC_CPF");
    EXPECT_EQ(linesOf(printed(form1361(), note))[9].substr(88, 18), "00.000.000/0000-00");
}

TEST(ImprimeNF1361, TheOperationCodeGetsItsPoint) {
    const std::pair<std::string, std::string> codes[] = {
        {"5102", "5.102   "}, {"5", "05      "},         {"5.102", "5.102   "},
        {"", "        "},     {"5102/6102", "5102/610"}, {"0", "00      "}};
    for (const auto& [code, shown] : codes) {
        NoteDraft note = sampleNote();
        note.head["CFOP"] = code;
        EXPECT_EQ(linesOf(printed(form1361(), note))[6].substr(43, 8), shown) << code;
    }
}

TEST(ImprimeNF1361, PostalCodesHaveEightDigits) {
    const std::pair<std::string, std::string> codes[] = {
        {"1310100", "01310-100   "}, {"01310-100", "1310--100   "}, {"", "00000-000   "}};
    for (const auto& [code, shown] : codes) {
        NoteDraft note = sampleNote();
        note.head["CEP"] = code;
        EXPECT_EQ(linesOf(printed(form1361(), note))[11].substr(104, 12), shown) << code;
    }
}

TEST(ImprimeNF1361, TheCarriersTaxNumberLosesItsLeadingZeros) {
    const std::pair<std::string, std::string> numbers[] = {
        {"12345678000195", "12.345.678/0001-95"},
        {"02345678000110", " 2.345.678/0001-10"},
        {"", "  .   .   /    -  "},
        {"0", "  .   .   /    -  "},
        {"ISENTO", "  .   .   /ISEN-TO"},
        {"112345678000195", "112.345.678/0001-95"}};
    for (const auto& [number, shown] : numbers) {
        NoteDraft note = sampleNote();
        note.head["NR_CGC_CPL_TRP"] = number;
        EXPECT_EQ(linesOf(printed(form1361(), note))[34].substr(109, shown.size()), shown)
            << number;
    }
}

TEST(ImprimeNF1361, AnOrderNumberOfZeroPrintsTheLabelAlone) {
    NoteDraft note = sampleNote();
    note.head["ID_VND_DIR"] = "0";
    expectLine(linesOf(printed(form1361(), note)), {43, 63, {{16, "N/PEDIDO: "}}});
    note.head["ID_VND_DIR"] = "00";
    expectLine(linesOf(printed(form1361(), note)), {43, 63, {{16, "N/PEDIDO: 00"}}});
    note.head.erase("ID_VND_DIR");
    expectLine(linesOf(printed(form1361(), note)), {43, 63, {{16, "N/PEDIDO: "}}});
}

TEST(ImprimeNF1361, LongTextsLoseTheirTails) {
    NoteDraft note = sampleNote();
    note.head["NatOper"] = std::string(37, 'N') + "ÇÃO";
    note.head["VENDEDOR"] = std::string(50, 'V');
    const std::vector<std::string> lines = linesOf(printed(form1361(), note));
    expectLine(lines, {7, 51, {{2, std::string(37, 'N') + "\xC7"}, {44, "5.102"}}});
    expectLine(lines, {45, 63, {{16, "VENDEDOR: " + std::string(38, 'V')}}});
}

TEST(ImprimeNF1361, LongNoteNumbersPrintInFull) {
    const std::vector<Job> jobs = print(form1361(), sampleNote().xml(), nullptr, "12345678");
    const std::vector<std::string> lines = linesOf(jobs[1].bytes());
    expectLine(lines, {1, 132, {{90, "X"}, {125, "12345678"}}});
    expectLine(lines, {42, 63, {{16, "FATURA..: 12345678"}}});
    expectLine(lines, {52, 130, {{123, "12345678"}}});
}

// Legal text -------------------------------------------------------------------

std::vector<std::string> legalLines(const NoteDraft& note) {
    const std::vector<std::string> lines = linesOf(printed(form1361(), note));
    return {lines[45], lines[46], lines[47], lines[48]};
}

TEST(ImprimeNF1361, DistinctLegalTextsAreParted) {
    NoteDraft note = sampleNote();
    note.head.erase("DC_OBS");
    note.items[1]["DC_TXT_LEG_NF"] = "ISENTO";
    note.items.push_back(note.items[0]);
    EXPECT_EQ(legalLines(note)[0], " BASE DE CALCULO REDUZIDA \\\\ ISENTO");
}

TEST(ImprimeNF1361, EmptyLegalTextsCountAsTexts) {
    NoteDraft note = sampleNote();
    note.head.erase("DC_OBS");
    note.items[0]["DC_TXT_LEG_NF"] = "A";
    note.items[1].erase("DC_TXT_LEG_NF");
    EXPECT_EQ(legalLines(note)[0], " A \\\\ ");
    note.items[0]["DC_TXT_LEG_NF"] = "";
    note.items[1]["DC_TXT_LEG_NF"] = "A";
    EXPECT_EQ(legalLines(note)[0], " A");
}

TEST(ImprimeNF1361, TheLegalTextIsCutInThreePieces) {
    NoteDraft note = sampleNote();
    note.items[0]["DC_TXT_LEG_NF"] =
        std::string(61, 'a') + "Ç" + std::string(62, 'b') + std::string(62, 'c') + "dddddddddddddd";
    note.items[1]["DC_TXT_LEG_NF"] = note.items[0]["DC_TXT_LEG_NF"];
    const std::vector<std::string> lines = legalLines(note);
    EXPECT_EQ(lines[0], " " + std::string(61, 'a') + "\xC7");
    EXPECT_EQ(lines[1], " " + std::string(62, 'b'));
    EXPECT_EQ(lines[2], " " + std::string(62, 'c'));
    EXPECT_EQ(lines[3], "");
}

TEST(ImprimeNF1361, TheObservationAloneHasItsLabel) {
    NoteDraft note = sampleNote();
    note.items[0]["DC_TXT_LEG_NF"] = "";
    note.items[1]["DC_TXT_LEG_NF"] = "";
    EXPECT_EQ(legalLines(note)[0], "  OBS.: ENTREGAR PELA MANH\xC3");
}

// Bytes ------------------------------------------------------------------------

TEST(ImprimeNF1361, NoValueMovesALineOrCommandsThePrinter) {
    NoteDraft note = sampleNote();
    note.head["RAZAO"] =
        "A\r\nB\tC\x7F"
        "D";
    note.head["VENDEDOR"] = "X\nY";
    note.head["DC_OBS"] = "LINHA 1\r\nLINHA 2";
    note.items[0]["DESCRICAO"] = "CAIXA\nGRANDE";
    const std::vector<std::string> lines = linesOf(printed(form1361(), note));
    EXPECT_EQ(lines.size(), 60U);
    EXPECT_EQ(lines[9].substr(1, 9), "A  B C D ");
    EXPECT_EQ(lines[21].substr(11, 13), "CAIXA GRANDE ");
    expectLine(lines, {45, 63, {{16, "VENDEDOR: X Y"}}});
    EXPECT_EQ(lines[45], " BASE DE CALCULO REDUZIDA OBS.: LINHA 1  LINHA 2");
}

TEST(ImprimeNF1361, CharactersOutsideThePageTakeOneColumnEach) {
    NoteDraft note = sampleNote();
    note.head["NatOper"] = "“A” – ’B€ 漢 ½";
    EXPECT_EQ(linesOf(printed(form1361(), note))[6],
              lineOf(51, {{2, "\"A\" - 'BE ? \xBD"}, {44, "5.102"}}));
}

// Errors: everything before the failing row is out, nothing of it, and the job is
// open.

struct Failure {
    std::size_t writes;
    RuntimeErrorCode number;
};

void expectFailure(const std::string& xml, const Failure& expected) {
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(form1361(), xml, &error);
    ASSERT_EQ(jobs.size(), 2U);
    EXPECT_TRUE(jobs[0].ended);
    EXPECT_EQ(jobs[0].bytes(), " \x0F");
    EXPECT_FALSE(jobs[1].ended);
    EXPECT_EQ(jobs[1].writes.size(), expected.writes);
    EXPECT_EQ(error, expected.number);
}

TEST(ImprimeNF1361Errors, AmountsThatAreNoNumbersStopBeforeTheirRow) {
    using Change = void (*)(NoteDraft&);
    const std::pair<Change, std::size_t> changes[] = {
        {[](NoteDraft& n) { n.head["QTDE_PARC"] = "x"; }, 5},
        {[](NoteDraft& n) { n.head["QTDE_PARC"] = ""; }, 5},
        {[](NoteDraft& n) { n.head["VL_PRN_DOC1"] = "1.234.5"; }, 5},
        {[](NoteDraft& n) { n.form.erase("QT_MAX_IT"); }, 7},
        {[](NoteDraft& n) { n.form["QT_MAX_IT"] = ""; }, 7},
        {[](NoteDraft& n) { n.form["QT_MAX_IT"] = "seis"; }, 7},
        {[](NoteDraft& n) { n.items[0]["QTDE"] = ""; }, 7},
        {[](NoteDraft& n) { n.items[1]["VALOR_UN"] = ""; }, 8},
        {[](NoteDraft& n) { n.items[1]["VL_DSC"] = ""; }, 8},
        {[](NoteDraft& n) { n.items[1]["ICMS"] = "1e3"; }, 8},
        {[](NoteDraft& n) { n.items[1]["AQ_IPI"] = "R$ 1"; }, 8},
        {[](NoteDraft& n) { n.totals["VALOR_TOTAL"] = ""; }, 11},
        {[](NoteDraft& n) { n.totals["VALOR_TOTAL_DESC"] = "-"; }, 11},
        {[](NoteDraft& n) { n.totals["VALOR_FRETE"] = "S/N"; }, 12},
        {[](NoteDraft& n) { n.head["PESO_LIQ"] = "1 kg"; }, 15},
    };
    for (const auto& [change, writes] : changes) {
        NoteDraft note = sampleNote();
        change(note);
        SCOPED_TRACE(writes);
        expectFailure(note.xml(), {writes, RuntimeErrorCode::TypeMismatch});
    }
}

TEST(ImprimeNF1361Errors, AQtMaxItBeyond16BitsOverflows) {
    NoteDraft note = sampleNote();
    note.form["QT_MAX_IT"] = "32768";
    expectFailure(note.xml(), {7, RuntimeErrorCode::Overflow});
}

TEST(ImprimeNF1361Errors, EmptyAmountsThatAreOnlyMaskedPrintBlank) {
    NoteDraft note = sampleNote();
    note.totals["VALOR_FRETE"] = "";
    note.totals.erase("VALOR_SEGURO");
    note.items[0]["ICMS"] = "";
    const std::vector<std::string> lines = linesOf(printed(form1361(), note));
    expectLine(lines, {32, 136, {{50, "0,00"}, {77, "0,25"}, {103, "80,04"}, {129, "1.696,54"}}});
    EXPECT_EQ(lines[21].substr(124, 10), "     5,00 ");
}

TEST(ImprimeNF1361Errors, MissingRowsAreObjectErrors) {
    NoteDraft noItems = sampleNote();
    noItems.items.clear();
    expectFailure(noItems.xml(), {7, RuntimeErrorCode::ObjectVariable});
    expectFailure("<?xml version=\"1.0\"?><OUTRO A=\"1\" B=\"OK\"/>",
                  {0, RuntimeErrorCode::ObjectVariable});
    expectFailure("<?xml version=\"1.0\"?><PRINCIPAL A=\"1\" B=\"OK\"/>",
                  {0, RuntimeErrorCode::ObjectVariable});
    expectFailure(
        "<?xml version=\"1.0\"?><PRINCIPAL A=\"1\" B=\"OK\"><N QTDE_PARC=\"0\"/></PRINCIPAL>",
        {6, RuntimeErrorCode::ObjectVariable});
}

TEST(ImprimeNF1361Errors, AFieldInAnotherCaseOfLettersIsAnObjectError) {
    const std::pair<std::string, std::size_t> spelled[] = {
        {"ENT_SAI", 0}, {"natoper", 1}, {"qtde_parc", 5}, {"dc_obs", 20}};
    for (const auto& [name, writes] : spelled) {
        NoteDraft note = sampleNote();
        for (const char* given : {"Ent_Sai", "NatOper", "QTDE_PARC", "DC_OBS"}) {
            std::string lower = given;
            std::string wanted = name;
            for (std::string* s : {&lower, &wanted}) {
                for (char& c : *s) {
                    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
                }
            }
            if (lower == wanted) {
                note.head[name] = note.head[given];
                note.head.erase(given);
            }
        }
        SCOPED_TRACE(name);
        expectFailure(note.xml(), {writes, RuntimeErrorCode::ObjectVariable});
    }
}

TEST(ImprimeNF1361Errors, AFieldSpelledTwiceIsTakenAsSpelledHere) {
    NoteDraft note = sampleNote();
    note.head["CFoP"] = "1111";
    expectLine(linesOf(printed(form1361(), note)),
               {7, 51, {{2, "VENDA DE MERCADORIA"}, {44, "5.102"}}});
}

TEST(ImprimeNF1361, CommentsAndTextBetweenRowsDontCount) {
    std::string xml = sampleNote().xml();
    xml.insert(xml.find("<TOTAIS"), "<!-- totais --> texto ");
    xml.insert(xml.rfind("<ITEM"), "<!-- item -->");
    EXPECT_EQ(print(form1361(), xml).back().bytes(), printed(form1361(), sampleNote()));
}

}  // namespace
}  // namespace tarn::test
