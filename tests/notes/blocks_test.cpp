// The blocks of the forms, each on a small form of its own.
#include <gtest/gtest.h>

#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "tests/notes/note_fixture.h"

namespace tarn::test {
namespace {

using namespace notes;
using enum notes::Source;

constexpr Items plainItems{.line = row(1, left(CD_PRO, 2, 5)), .lineEnds = 1};

// Prints a form of the steps in one job; the note is the sample.
template <std::size_t N>
std::string streamOf(const Step (&steps)[N], const NoteText& note,
                     Joined observation = Joined::Labelled) {
    const Form form{.length = 0, .observation = observation, .steps = steps};
    const std::vector<Job> jobs = print(form, note.xml());
    EXPECT_EQ(jobs.size(), 1U);
    EXPECT_TRUE(jobs.back().ended);
    return jobs.back().bytes();
}

NoteText withItems(const std::vector<std::string>& kinds) {
    NoteText note = sampleNote();
    note.items.clear();
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        note.items.push_back({{"CD_PRO", numbered("C", i + 1)},
                              {"IC_TP_CAD", kinds[i]},
                              {"QTDE", "2"},
                              {"VALOR_UN", "3.5"},
                              {"DC_TXT_LEG_NF", numbered("L", i + 1)}});
    }
    return note;
}

NoteText withParcels(int count) {
    NoteText note = sampleNote();
    note.head["QTDE_PARC"] = std::to_string(count);
    for (std::size_t n = 1; n <= 12; ++n) {
        note.head[numbered("NR_DOC", n)] = numbered("D", n);
        note.head[numbered("VL_PRN_DOC", n)] = numbered("", n);
        note.head[numbered("DT_VNC_DOC", n)] = numbered("V", n);
    }
    return note;
}

// Rows and control bytes ---------------------------------------------------------

TEST(Blocks, ControlBytesGoAloneAndTheirLineEndsFollowInASecondCall) {
    constexpr Step steps[] = {Control{"\x1B\x0F\x0F"}, Control{"\x1B\x17", 1},
                              row(1, bare(NoteNumber, 4))};
    EXPECT_EQ(streamOf(steps, sampleNote()), " \x1B\x0F\x0F \x1B\x17 \r\n   004567\r\n");
}

TEST(Blocks, AnAdvanceOfZeroGoesOnInTheSameLineWithItsOwnBlank) {
    constexpr Step steps[] = {Control{"\x12"}, row(0, left(UF, 2, 3), left(CEP, 7, 10)),
                              Control{"\x0F\x1BM"}, row(2, left(DT_EMS_NF, 2, 11))};
    EXPECT_EQ(streamOf(steps, sampleNote()), " \x12 SP   01310-100  \x0F\x1BM 07/01/2009 \r\n\r\n");
}

TEST(Blocks, UnpaddedFieldsKeepTheBlanksBehindThem) {
    constexpr Step steps[] = {row(1, left(UF, 3, 4), bare(CGC_CPF, 9), left(DT_EMS_NF, 29, 10)),
                              row(1, bare(CEP_COB, 2), left(UF_COB, 14, 2)),
                              row(1, text("ENDEREÇO: ", 2), left(UF, 13, 2), text("-", 16))};
    NoteText note = sampleNote();
    EXPECT_EQ(streamOf(steps, note),
              "  SP    12.345.678/0001-95  07/01/2009\r\n 00000-000     \r\n"
              " ENDERE\xC7O:  SP -\r\n");
    note.head["IC_TIP_PES"] = "F";
    EXPECT_EQ(linesOf(streamOf(steps, note))[0], "  SP    456.780.001-95  07/01/2009");
}

TEST(Blocks, TheFormsOwnTextMayHoldALineEnd) {
    constexpr Step steps[] = {row(1, labelled("N/PED: ", ID_VND_DIR, 6, 14), text("\r\n", 20),
                                  labelled("S/PED: ", NR_PED_CLI, 26, 14))};
    EXPECT_EQ(streamOf(steps, sampleNote()), "     N/PED: 98765  \r\n    S/PED: PC-77  \r\n");
}

TEST(Blocks, LayoutsMayPrintAFieldAsItStands) {
    constexpr Step steps[] = {row(1, as(Rule::AsText, left(CFOP, 2, 7)), left(CFOP, 10, 7))};
    EXPECT_EQ(streamOf(steps, sampleNote()), " 5102    5.102  \r\n");
}

TEST(Blocks, AnAmountInWordsTakesItsOwnRoom) {
    constexpr Step steps[] = {row(1, bare(AmountInWords, 5))};
    NoteText note = sampleNote();
    note.totals["VALOR_TOT_NF"] = "21.5";
    EXPECT_EQ(streamOf(steps, note), "    VINTE E UM REAIS E CINQUENTA CENTAVOS\r\n");
    note.totals["VALOR_TOT_NF"] = "0";
    EXPECT_EQ(streamOf(steps, note), "    \r\n");
}

// Parcels ------------------------------------------------------------------------

constexpr Step numberedParcels[] = {Parcels{
    .limit = 12,
    .message = "Número de Parcelas maior do que 12",
    .perRow = 4,
    .places = {place(bare(ParcelNumber, 3), left(NR_DOC, 5, 4), right(VL_PRN_DOC, 10, 6)),
               place(bare(ParcelNumber, 18), left(NR_DOC, 20, 4), right(VL_PRN_DOC, 25, 6)),
               place(bare(ParcelNumber, 33), left(NR_DOC, 35, 4), right(VL_PRN_DOC, 40, 6)),
               place(bare(ParcelNumber, 48), left(NR_DOC, 50, 4), right(VL_PRN_DOC, 55, 6))},
    .lineEnds = {8, 8, 8, 8, 7, 7, 7, 7, 6, 6, 6, 6, 5},
    .lineEndsAbove = 7}};

TEST(Blocks, NumberedParcelsMoveRightBehindTwoDigits) {
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(1)))[0], "  1)D1     1,00");
    const std::vector<std::string> lines = linesOf(streamOf(numberedParcels, withParcels(11)));
    EXPECT_EQ(lines[0], "  1)D1     1,00  2)D2     2,00  3)D3     3,00  4)D4     4,00");
    EXPECT_EQ(lines[2], "  9)D9     9,00  10)D10   10,00  11)D11   11,00");
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(12))).size(), 9U);
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(12)))[3], "  ");
}

TEST(Blocks, WithoutParcelsOrWithTooManyThereIsNoMargin) {
    EXPECT_EQ(streamOf(numberedParcels, withParcels(0)).substr(0, 3), " \r\n");
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(13)))[0],
              " N\xFAmero de Parcelas maior do que 12");
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(13))).size(), 8U);
}

TEST(Blocks, TheRestOfAFullBlockMayHaveNoLineEnd) {
    constexpr Step steps[] = {
        Parcels{.limit = 2,
                .perRow = 1,
                .places = {place(bare(ParcelNumber, 3), left(DT_VNC_DOC, 5, 4))},
                .lineEnds = {2, 1, 0},
                .lineEndsAbove = 2},
        row(1, text("ABAIXO", 2))};
    EXPECT_EQ(streamOf(steps, withParcels(2)), "  1)V1  \r\n  2)V2  \r\n   ABAIXO\r\n");
}

TEST(Blocks, EachParcelMayBeACallOfItsOwn) {
    constexpr Step steps[] = {
        Parcels{.limit = 6,
                .perRow = 3,
                .places = {place(blank(2, 3), left(DT_VNC_DOC, 6, 3)),
                           place(left(DT_VNC_DOC, 2, 3)), place(left(DT_VNC_DOC, 2, 3))},
                .lineEnds = {4, 4, 4, 3, 3, 3, 3},
                .lineEndsAbove = 4,
                .callPerParcel = true,
                .rowEnds = 2}};
    EXPECT_EQ(streamOf(steps, withParcels(2)), "     V1  V2  \r\n\r\n\r\n\r\n");
    EXPECT_EQ(streamOf(steps, withParcels(4)), "     V1  V2  V3 \r\n\r\n     V4  \r\n\r\n\r\n");
    EXPECT_EQ(streamOf(steps, withParcels(0)), " \r\n\r\n\r\n\r\n");
}

// Items --------------------------------------------------------------------------

TEST(Blocks, OnlyProductsAreTaken) {
    constexpr Step steps[] = {plainItems, row(1, piece(LegalText, 2, 1, 60))};
    NoteText note = withItems({"P", "S", "p", "P"});
    note.head.erase("DC_OBS");
    EXPECT_EQ(streamOf(steps, note), " C1   \r\n C4   \r\n \r\n\r\n\r\n\r\n \r\n L1 \\\\ L4\r\n");
    note.items[0].erase("IC_TP_CAD");
    EXPECT_EQ(linesOf(streamOf(steps, note))[0], " C4   ");
}

TEST(Blocks, CuttingFormsDropWhatGoesBeyondTheirLines) {
    constexpr Step steps[] = {Items{.line = row(1, left(CD_PRO, 2, 5)),
                                    .overflow = Overflow::Cutting,
                                    .constant = 1,
                                    .lineEnds = 1},
                              row(1, piece(LegalText, 2, 1, 60))};
    NoteText note = withItems({"P", "S", "P", "P", "P"});
    note.head.erase("DC_OBS");
    note.form["QT_MAX_IT"] = "3";
    note.items[3]["QTDE"] = "is never read";
    // The service takes the place of a product; the blank lines count what printed.
    EXPECT_EQ(streamOf(steps, note), " C1   \r\n C3   \r\n \r\n\r\n \r\n L1 \\\\ L3\r\n");
}

TEST(Blocks, AFormWithoutBlankLinesHasOnlyItsFixedLineEnds) {
    constexpr Step steps[] = {Items{.line = row(1, left(CD_PRO, 2, 5)),
                                    .productsOnly = false,
                                    .fillsForm = false,
                                    .lineEnds = 1},
                              row(1, text("ABAIXO", 2))};
    EXPECT_EQ(streamOf(steps, withItems({"P"})), " C1   \r\n \r\n ABAIXO\r\n");
}

TEST(Blocks, AFormWithoutFixedLineEndsHasNoSecondCall) {
    constexpr Step steps[] = {
        Items{.line = row(1, left(CD_PRO, 2, 5)), .productsOnly = false, .constant = -1},
        row(1, text("ABAIXO", 2))};
    NoteText note = withItems({"P"});
    note.form["QT_MAX_IT"] = "3";
    EXPECT_EQ(streamOf(steps, note), " C1   \r\n \r\n ABAIXO\r\n");
    note.form["QT_MAX_IT"] = "2";
    EXPECT_EQ(streamOf(steps, note), " C1   \r\n  ABAIXO\r\n");
}

constexpr Step codeAhead[] = {Items{.line = row(1, left(UNIDADE, 4, 3), right(LineTotal, 8, 6)),
                                    .code = row(0, left(CD_PRO, 3, 4)),
                                    .quantity = Quantity::AmountOrFive,
                                    .productsOnly = false,
                                    .controlAfter = "\x0F\x1BM"}};

TEST(Blocks, TheCodeMayGoAheadInItsOwnCallAndControlBytesBehindTheItems) {
    NoteText note = withItems({"P"});
    note.form["QT_MAX_IT"] = "3";
    EXPECT_EQ(streamOf(codeAhead, note), "  C1           7,00\r\n \x0F\x1BM \r\n\r\n");
}

TEST(Blocks, ABadAmountKeepsTheCodeOffThePaperToo) {
    NoteText note = withItems({"P", "P"});
    note.items[1]["VALOR_UN"] = "x";
    const Form form{.steps = codeAhead};
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(form, note.xml(), &error);
    EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(jobs.back().bytes(), "  C1           7,00\r\n");
    EXPECT_FALSE(jobs.back().ended);
}

template <Quantity kind, Rule rule = Rule::Masked>
std::string quantityOf(const std::optional<std::string>& quantity, std::string_view mask) {
    const Step steps[] = {
        Items{.line = row(1, as(rule, under(mask, left(QTDE, 2, 10))), right(LineTotal, 13, 12)),
              .quantity = kind}};
    NoteText note = withItems({"P"});
    note.items[0]["VALOR_UN"] = "2";
    if (quantity) {
        note.items[0]["QTDE"] = *quantity;
    } else {
        note.items[0].erase("QTDE");
    }
    return linesOf(streamOf(steps, note))[0];
}

TEST(Blocks, QuantitiesAreReadAsTheFormDoes) {
    EXPECT_EQ((quantityOf<Quantity::Amount>("12.500", "##0.000")), " 12,500            25,00");
    EXPECT_EQ((quantityOf<Quantity::Amount>(std::nullopt, "##0.000")), " 0,000              0,00");
    EXPECT_EQ((quantityOf<Quantity::PointsGroup>("12.500", "##0.000")), " 12500,000     25.000,00");
    EXPECT_EQ((quantityOf<Quantity::PointsGroup>("12", "##0.000")), " 12,000            24,00");
    EXPECT_EQ((quantityOf<Quantity::PointsGroup>(std::nullopt, "##0.000")),
              " 5,000             10,00");
    EXPECT_EQ((quantityOf<Quantity::AmountOrFive>("1212.5", "##,##0.000")),
              " 1.212,500      2.425,00");
    EXPECT_EQ((quantityOf<Quantity::AmountOrFive>(std::nullopt, "##,##0.000")),
              " 5,000             10,00");
    EXPECT_EQ((quantityOf<Quantity::Amount, Rule::General>("12.500", "")),
              " 12,5              25,00");
    EXPECT_EQ((quantityOf<Quantity::Amount, Rule::AsAmount>("12.500", "")),
              " 12,500            25,00");
    EXPECT_EQ((quantityOf<Quantity::Amount, Rule::AsAmount>(std::nullopt, "")),
              " 0                  0,00");
}

TEST(Blocks, RatesMayPrintWithoutMask) {
    constexpr Step steps[] = {Items{
        .line =
            row(1, as(Rule::AsAmount, right(ICMS, 2, 4)), as(Rule::AsAmount, right(IPI, 7, 4)),
                under("####0", right(AQ_IPI, 12, 2)), left(CFOP_ITEM, 16, 4), left(VL_IPI, 22, 5)),
        .productsOnly = false}};
    NoteText note = withItems({"P", "P"});
    note.items[0]["ICMS"] = "18.00";
    note.items[0]["IPI"] = "isento";
    note.items[0]["AQ_IPI"] = "17.5";
    note.items[0]["CFOP_ITEM"] = "0";
    note.items[0]["VL_IPI"] = "1.255";
    note.items[1]["CFOP_ITEM"] = "51020";
    const std::vector<std::string> lines = linesOf(streamOf(steps, note));
    EXPECT_EQ(lines[0], " 18,0 isen 18  0000  1,26 ");
    EXPECT_EQ(lines[1], "    0    0  0  5102  0,00 ");
}

TEST(Blocks, QuantitiesAndWeightsAddUp) {
    constexpr Step steps[] = {Items{.line = row(1, left(CD_PRO, 2, 3)),
                                    .productsOnly = false,
                                    .legalTexts = false,
                                    .sums = true,
                                    .lineEnds = 1},
                              row(1, right(QuantitySum, 3, 8), text("VOLUME", 15, 10),
                                  right(WeightSum, 28, 10), right(WeightSum, 39, 10))};
    NoteText note = withItems({"P", "S"});
    note.items[0]["PESO"] = "0.25";
    note.items[1]["QTDE"] = "1000.5";
    note.items[1]["PESO"] = "2";
    EXPECT_EQ(linesOf(streamOf(steps, note))[7],
              "    1002,5    VOLUME        2.001,500  2.001,500");
}

TEST(Blocks, TheClassLineHasAnEntryForEachItemWithAGroup) {
    constexpr Step steps[] = {Items{.line = row(1, left(CD_PRO, 2, 3)), .classes = true},
                              row(3, labelled("CL. FISCAL - ", ClassLine, 2, 0))};
    NoteText note = withItems({"P", "P", "P", "P", "S"});
    note.items[0]["GF_AGRUP"] = "1";
    note.items[0]["ID_CLA_FIS"] = "84811";
    note.items[1]["GF_AGRUP"] = "2";
    note.items[1]["ID_CLA_FIS"] = "84812";
    note.items[2]["GF_AGRUP"] = "1";
    note.items[3]["ID_CLA_FIS"] = "99999";
    note.items[4]["GF_AGRUP"] = "9";
    const std::vector<std::string> lines = linesOf(streamOf(steps, note));
    EXPECT_EQ(lines[6], " CL. FISCAL -  1) 84811  2) 84812  1)  ");
    EXPECT_EQ(linesOf(streamOf(steps, withItems({"P"})))[6], " CL. FISCAL - ");
}

// Services -----------------------------------------------------------------------

constexpr Step withServices[] = {Items{.line = row(1, left(CD_PRO, 2, 5)), .services = true},
                                 row(1, text("ABAIXO", 2))};

NoteText servicesNote(int services, const std::string& lines) {
    NoteText note = withItems({"P"});
    note.form["QT_MAX_IT"] = "2";
    note.form["QT_MAX_IT_NF_SRV"] = lines;
    for (int i = 1; i <= services; ++i) {
        note.items.push_back({{"CD_PRO", numbered("S", static_cast<std::size_t>(i))},
                              {"IC_TP_CAD", "S"},
                              {"DESCRICAO", "SERVI\xC3\x87O"},
                              {"VL_LIQ_IT", "1000.5"},
                              {"AQ_ISS", std::to_string(i)},
                              {"VL_ISS", "600"}});
    }
    return note;
}

std::string serviceLine(const std::string& code, const std::string& beside = "") {
    return lineOf(103, {{2, code}, {14, "SERVI\xC7O"}, {96, " 1000,50"}}) + beside;
}

TEST(Services, StandBelowTheProductsWithTheirSumsBeside) {
    const std::vector<std::string> lines = linesOf(streamOf(withServices, servicesNote(2, "6")));
    ASSERT_EQ(lines.size(), 10U);
    EXPECT_EQ(lines[0], " C1   ");
    EXPECT_EQ(lines[1], " ");
    EXPECT_EQ(lines[2], serviceLine("S1"));
    EXPECT_EQ(lines[3], serviceLine("S2"));
    EXPECT_EQ(lines[4], std::string(103, ' '));
    EXPECT_EQ(lines[5], std::string(103, ' ') + " 2,00" + "       1.200,00");
    EXPECT_EQ(lines[6], std::string(103, ' '));
    EXPECT_EQ(lines[7], std::string(103, ' ') + "       2.001,00");
    EXPECT_EQ(lines[8], " ABAIXO");
}

TEST(Services, BeyondTheirLinesCountInTheSumsOnly) {
    const std::vector<std::string> lines = linesOf(streamOf(withServices, servicesNote(9, "7")));
    ASSERT_EQ(lines.size(), 11U);
    EXPECT_EQ(lines[5], serviceLine("S4", " 9,00       5.400,00"));
    EXPECT_EQ(lines[7], serviceLine("S6", "       9.004,50"));
    EXPECT_EQ(lines[8], serviceLine("S7"));
    EXPECT_EQ(lines[9], " ABAIXO");
}

TEST(Services, FewLinesPrintNoSumsAndKeepTheHeight) {
    for (const std::string count : {"0", "3"}) {
        const std::vector<std::string> lines =
            linesOf(streamOf(withServices, servicesNote(1, count)));
        EXPECT_EQ(lines[8], " ABAIXO");
        EXPECT_EQ(lines[5], count == "0" ? "" : " ");
    }
    NoteText absent = servicesNote(1, "");
    absent.form.erase("QT_MAX_IT_NF_SRV");
    EXPECT_EQ(linesOf(streamOf(withServices, absent))[2], " ");
    EXPECT_EQ(linesOf(streamOf(withServices, absent))[8], " ABAIXO");
}

TEST(Services, NoneAtAllPrintZeros) {
    const std::vector<std::string> lines = linesOf(streamOf(withServices, servicesNote(0, "6")));
    EXPECT_EQ(lines[5], std::string(103, ' ') + " 0,00           0,00");
    EXPECT_EQ(lines[7], std::string(103, ' ') + "           0,00");
}

TEST(Services, ABadAmountStopsBeforeTheFirstServiceLine) {
    NoteText note = servicesNote(3, "2");
    note.items.back()["VL_ISS"] = "";
    const Form form{.steps = withServices};
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(form, note.xml(), &error);
    EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(jobs.back().bytes(), " C1   \r\n \r\n");
}

TEST(Services, ACountThatIsNoNumberStopsBeforeTheItems) {
    const Form form{.steps = withServices};
    std::optional<RuntimeErrorCode> error;
    const std::vector<Job> jobs = print(form, servicesNote(1, "x").xml(), &error);
    EXPECT_EQ(error, RuntimeErrorCode::TypeMismatch);
    EXPECT_EQ(jobs.back().bytes(), "");
}

// Legal text ---------------------------------------------------------------------

std::string joinedWith(Joined joined, const std::string& legal, const std::string& observation) {
    constexpr Step steps[] = {plainItems, row(1, piece(LegalText, 6, 1, 80))};
    NoteText note = withItems({"P"});
    note.items[0]["DC_TXT_LEG_NF"] = legal;
    note.head["DC_OBS"] = observation;
    return linesOf(streamOf(steps, note, joined))[7];
}

TEST(LegalText, TheObservationJoinsAsTheFormHasIt) {
    EXPECT_EQ(joinedWith(Joined::Labelled, "L", "O"), "     L OBS.: O");
    EXPECT_EQ(joinedWith(Joined::Labelled, "L", ""), "     L");
    EXPECT_EQ(joinedWith(Joined::Labelled, "", "O"), "      OBS.: O");
    EXPECT_EQ(joinedWith(Joined::Bare, "L", "O"), "     LO");
    EXPECT_EQ(joinedWith(Joined::SeparatedLabelled, "L", "O"), "     L \\\\  OBS.: O");
    EXPECT_EQ(joinedWith(Joined::SeparatedLabelled, "", "O"), "      \\\\  OBS.: O");
    EXPECT_EQ(joinedWith(Joined::SeparatedLabelled, "L", ""), "     L");
    EXPECT_EQ(joinedWith(Joined::Nothing, "L", "O"), "     L");
}

TEST(LegalText, PiecesStandBesideOtherFieldsAndMayOverlap) {
    constexpr Step steps[] = {plainItems,
                              row(1, piece(LegalText, 10, 1, 4)),
                              row(1, left(NR_PED_CLI, 2, 6), piece(LegalText, 10, 4, 3)),
                              row(2, left(UF, 2, 6), piece(LegalText, 10, 100, 3)),
                              row(1, piece(Observation, 6, 1, 12)),
                              row(1, left(DC_OBS, 2, 6))};
    NoteText note = withItems({"P"});
    note.items[0]["DC_TXT_LEG_NF"] = "ÇBCDEFGH";
    const std::vector<std::string> lines = linesOf(streamOf(steps, note, Joined::Nothing));
    EXPECT_EQ(lines[7],
              "         \xC7"
              "BCD");
    EXPECT_EQ(lines[8], " PC-77   DEF");
    EXPECT_EQ(lines[9], " SP      ");
    EXPECT_EQ(lines[11], "      OBS.: ENTRE");
    EXPECT_EQ(lines[12], " ENTREG");
    note.head["DC_OBS"] = "";
    EXPECT_EQ(linesOf(streamOf(steps, note, Joined::Nothing))[11], "     ");
}

std::string bandOf(const std::string& legal, const std::string& observation) {
    constexpr Step steps[] = {plainItems, Band{.piece = 4, .most = 3, .lines = 3},
                              Band{.source = DC_OBS, .piece = 4, .most = 2, .lines = 5},
                              row(1, text("ABAIXO", 2))};
    NoteText note = withItems({"P"});
    note.items[0]["DC_TXT_LEG_NF"] = legal;
    note.head["DC_OBS"] = observation;
    const std::string stream = streamOf(steps, note, Joined::Nothing);
    return stream.substr(stream.find("\r\n \r\n") + 5);
}

TEST(LegalText, BandsKeepTheirHeight) {
    const std::string below = " ABAIXO\r\n";
    const std::string items = "\r\n\r\n\r\n\r\n \r\n";
    const auto stream = [&](const std::string& legal, const std::string& observation) {
        return bandOf(legal, observation).substr(items.size());
    };
    EXPECT_EQ(stream("", ""), " \r\n\r\n\r\n \r\n\r\n\r\n\r\n\r\n" + below);
    EXPECT_EQ(stream("abcd", "x"), " abcd\r\n\r\n\r\n x\r\n\r\n\r\n\r\n\r\n" + below);
    EXPECT_EQ(stream("abcde", "12345"), " abcd\r\n e\r\n\r\n 1234\r\n 5\r\n\r\n\r\n\r\n" + below);
    EXPECT_EQ(stream("abcdefghijklmnop", "123456789"),
              " abcd\r\n efgh\r\n ijkl\r\n 1234\r\n 5678\r\n\r\n\r\n\r\n" + below);
    EXPECT_EQ(stream("a\nb", ""), " a b\r\n\r\n\r\n \r\n\r\n\r\n\r\n\r\n" + below);
}

TEST(LegalText, ABandMayTestForOneLineByAnotherLength) {
    constexpr Step steps[] = {
        plainItems, Band{.source = DC_OBS, .piece = 6, .most = 2, .lines = 3, .oneLineUpTo = 4}};
    const auto lines = [&](const std::string& observation) {
        NoteText note = withItems({"P"});
        note.head["DC_OBS"] = observation;
        const std::vector<std::string> all = linesOf(streamOf(steps, note));
        return std::vector<std::string>(all.begin() + 7, all.end());
    };
    EXPECT_EQ(lines("1234"), (std::vector<std::string>{" 1234", "", "", ""}));
    EXPECT_EQ(lines("12345"), (std::vector<std::string>{" 12345", " ", "", ""}));
    EXPECT_EQ(lines("1234567"), (std::vector<std::string>{" 123456", " 7", "", ""}));
    EXPECT_EQ(lines("1234567890123"), (std::vector<std::string>{" 123456", " 789012", "", ""}));
}

// Tax credit ---------------------------------------------------------------------

std::string creditOf(const std::string& base, const std::string& company) {
    constexpr Step steps[] = {Credit{.amount = row(1, right(TaxCredit, 52, 16)),
                                     .rate = row(4, bare(TaxCreditRate, 33))}};
    NoteText note = sampleNote();
    note.totals["VL_IMPOSTO_CREDITAR"] = base;
    note.head["ID_EMP_TARN"] = company;
    return streamOf(steps, note);
}

TEST(TaxCreditBlock, PrintsCreditAndRate) {
    const std::string fifty(51, ' ');
    const std::string thirty(32, ' ');
    EXPECT_EQ(creditOf("1500", " 541 "),
              fifty + "           27,90\r\n" + thirty + "1,86\r\n\r\n\r\n\r\n");
    EXPECT_EQ(creditOf("100000", "3681"),
              fifty + "        1.860,00\r\n" + thirty + "1,86\r\n\r\n\r\n\r\n");
    EXPECT_EQ(creditOf("1500", "9"), fifty + "            0,00\r\n" + thirty + "\r\n\r\n\r\n\r\n");
}

TEST(TaxCreditBlock, WithoutABaseItOnlyMovesOn) {
    for (const std::string base : {"0", "-1", "0.00"}) {
        EXPECT_EQ(creditOf(base, "3681"), " \r\n\r\n\r\n\r\n\r\n");
    }
}

// Two forms ----------------------------------------------------------------------

TEST(Layouts, AnEstablishmentMayHaveAFormOfItsOwn) {
    static constexpr Form first;
    static constexpr Form second;
    constexpr Layout layout{"X", &first, 3621, &second};
    EXPECT_EQ(&layout.formFor(3621), &first);
    EXPECT_EQ(&layout.formFor(3622), &second);
    constexpr Layout plain{.name = "Y", .form = &first};
    EXPECT_EQ(&plain.formFor(3621), &first);
}

}  // namespace
}  // namespace tarn::test
