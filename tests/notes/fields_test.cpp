#include "notes/fields.h"

#include <gtest/gtest.h>

#include "tests/notes/small_form.h"

namespace tarn::test {
namespace {

using namespace notes;
using enum notes::Source;

TEST(Fields, UnpaddedFieldsKeepTheBlanksBehindThem) {
    constexpr Step steps[] = {row(1, left(UF, 3, 4), bare(CGC_CPF, 9), left(DT_EMS_NF, 29, 10)),
                              row(1, bare(CEP_COB, 2), left(UF_COB, 14, 2)),
                              row(1, text("ENDEREÇO: ", 2), left(UF, 13, 2), text("-", 16))};
    NoteDraft note = sampleNote();
    EXPECT_EQ(streamOf(steps, note),
              "  SP    12.345.678/0001-95  07/01/2009\r\n 00000-000     \r\n"
              " ENDERE\xC7O:  SP -\r\n");
    note.head["IC_TIP_PES"] = "F";
    EXPECT_EQ(linesOf(streamOf(steps, note))[0], "  SP    456.780.001-95  07/01/2009");
}

TEST(Fields, TheFormsOwnTextMayHoldALineEnd) {
    constexpr Step steps[] = {row(1, labelled("N/PED: ", ID_VND_DIR, 6, 14), text("\r\n", 20),
                                  labelled("S/PED: ", NR_PED_CLI, 26, 14))};
    EXPECT_EQ(streamOf(steps, sampleNote()), "     N/PED: 98765  \r\n    S/PED: PC-77  \r\n");
}

TEST(Fields, LayoutsMayPrintAFieldAsItStands) {
    constexpr Step steps[] = {row(1, as(Rule::AsText, left(CFOP, 2, 7)), left(CFOP, 10, 7))};
    EXPECT_EQ(streamOf(steps, sampleNote()), " 5102    5.102  \r\n");
}

TEST(Fields, AnAmountInWordsTakesItsOwnRoom) {
    constexpr Step steps[] = {row(1, bare(AmountInWords, 5))};
    NoteDraft note = sampleNote();
    note.totals["VALOR_TOT_NF"] = "21.5";
    EXPECT_EQ(streamOf(steps, note), "    VINTE E UM REAIS E CINQUENTA CENTAVOS\r\n");
    note.totals["VALOR_TOT_NF"] = "0";
    EXPECT_EQ(streamOf(steps, note), "    \r\n");
}

TEST(Fields, RatesMayPrintWithoutMask) {
    constexpr Step steps[] = {Items{
        .line =
            row(1, as(Rule::AsAmount, right(ICMS, 2, 4)), as(Rule::AsAmount, right(IPI, 7, 4)),
                under("####0", right(AQ_IPI, 12, 2)), left(CFOP_ITEM, 16, 4), left(VL_IPI, 22, 5)),
        .productsOnly = false}};
    NoteDraft note = withKinds({"P", "P"});
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

// Legal text ---------------------------------------------------------------------

std::string joinedWith(Joined joined, const std::string& legal, const std::string& observation) {
    constexpr Step steps[] = {plainItems, row(1, piece(LegalText, 6, 1, 80))};
    NoteDraft note = withKinds({"P"});
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
    NoteDraft note = withKinds({"P"});
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

// Without a width a number takes the room it needs; behind a label it loses its tail.
TEST(Fields, LongNoteNumbersPrintInFullButBehindALabelWithAWidth) {
    constexpr Step steps[] = {row(1, bare(NoteNumber, 4)),
                              row(1, labelled("FAT: ", NoteNumber, 2, 12), text(", ", 14),
                                  labelled("N/PED: ", ID_VND_DIR, 16, 14)),
                              plainItems};
    const Form form{.steps = steps};
    const std::string bytes =
        print(form, sampleNote().xml(), nullptr, "12345678901").back().bytes();
    EXPECT_EQ(linesOf(bytes)[0], "   12345678901");
    EXPECT_EQ(linesOf(bytes)[1], " FAT: 1234567, N/PED: 98765  ");
}

// No table that the compiler has checked has such a field.
TEST(Fields, AFieldOutsideItsBlockStopsTheNoteAndReadsNothing) {
    for (const Field& field : {left(DESCRICAO, 2, 10), as(Rule::AsText, left(NR_DOC, 2, 10))}) {
        const Step steps[] = {row(1, bare(NoteNumber, 4)), row(1, field)};
        std::optional<RuntimeErrorCode> error;
        const std::vector<Job> jobs = print(Form{.steps = steps}, sampleNote().xml(), &error);
        EXPECT_EQ(error, RuntimeErrorCode::ObjectVariable);
        EXPECT_EQ(jobs.back().bytes(), "   004567\r\n");
    }
}

}  // namespace
}  // namespace tarn::test
