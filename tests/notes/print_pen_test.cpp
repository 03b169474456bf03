// The blocks of the forms as they print, each on a small form of its own.
#include "notes/print_pen.h"

#include <gtest/gtest.h>

#include "tests/notes/small_form.h"

namespace tarn::test {
namespace {

using namespace notes;
using enum notes::Source;

NoteDraft withParcels(int count) {
    NoteDraft note = sampleNote();
    note.head["QTDE_PARC"] = std::to_string(count);
    for (std::size_t n = 1; n <= 12; ++n) {
        note.head[numbered("NR_DOC", n)] = numbered("D", n);
        note.head[numbered("VL_PRN_DOC", n)] = numbered("", n);
        note.head[numbered("DT_VNC_DOC", n)] = numbered("V", n);
    }
    return note;
}

// Rows and control bytes ---------------------------------------------------------

TEST(PrintPen, ControlBytesGoAloneAndTheirLineEndsFollowInASecondCall) {
    constexpr Step steps[] = {Control{"\x1B\x0F\x0F"}, Control{"\x1B\x17", 1},
                              row(1, bare(NoteNumber, 4))};
    EXPECT_EQ(streamOf(steps, sampleNote()), " \x1B\x0F\x0F \x1B\x17 \r\n   004567\r\n");
}

TEST(PrintPen, AnAdvanceOfZeroGoesOnInTheSameLineWithItsOwnBlank) {
    constexpr Step steps[] = {Control{"\x12"}, row(0, left(UF, 2, 3), left(CEP, 7, 10)),
                              Control{"\x0F\x1BM"}, row(2, left(DT_EMS_NF, 2, 11))};
    EXPECT_EQ(streamOf(steps, sampleNote()), " \x12 SP   01310-100  \x0F\x1BM 07/01/2009 \r\n\r\n");
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

TEST(PrintPen, NumberedParcelsMoveRightBehindTwoDigits) {
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(1)))[0], "  1)D1     1,00");
    const std::vector<std::string> lines = linesOf(streamOf(numberedParcels, withParcels(11)));
    EXPECT_EQ(lines[0], "  1)D1     1,00  2)D2     2,00  3)D3     3,00  4)D4     4,00");
    EXPECT_EQ(lines[2], "  9)D9     9,00  10)D10   10,00  11)D11   11,00");
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(12))).size(), 9U);
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(12)))[3], "  ");
}

TEST(PrintPen, WithoutParcelsOrWithTooManyThereIsNoMargin) {
    EXPECT_EQ(streamOf(numberedParcels, withParcels(0)).substr(0, 3), " \r\n");
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(13)))[0],
              " N\xFAmero de Parcelas maior do que 12");
    EXPECT_EQ(linesOf(streamOf(numberedParcels, withParcels(13))).size(), 8U);
}

TEST(PrintPen, TheRestOfAFullBlockMayHaveNoLineEnd) {
    constexpr Step steps[] = {
        Parcels{.limit = 2,
                .perRow = 1,
                .places = {place(bare(ParcelNumber, 3), left(DT_VNC_DOC, 5, 4))},
                .lineEnds = {2, 1, 0},
                .lineEndsAbove = 2},
        row(1, text("ABAIXO", 2))};
    EXPECT_EQ(streamOf(steps, withParcels(2)), "  1)V1  \r\n  2)V2  \r\n   ABAIXO\r\n");
}

TEST(PrintPen, EachParcelMayBeACallOfItsOwn) {
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

// Services -----------------------------------------------------------------------

constexpr Step withServices[] = {Items{.line = row(1, left(CD_PRO, 2, 5)), .services = true},
                                 row(1, text("ABAIXO", 2))};

NoteDraft servicesNote(int services, const std::string& lines) {
    NoteDraft note = withKinds({"P"});
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
    NoteDraft absent = servicesNote(1, "");
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
    NoteDraft note = servicesNote(3, "2");
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

std::string bandOf(const std::string& legal, const std::string& observation) {
    constexpr Step steps[] = {plainItems, Band{.piece = 4, .most = 3, .lines = 3},
                              Band{.source = DC_OBS, .piece = 4, .most = 2, .lines = 5},
                              row(1, text("ABAIXO", 2))};
    NoteDraft note = withKinds({"P"});
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
        NoteDraft note = withKinds({"P"});
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
    NoteDraft note = sampleNote();
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

}  // namespace
}  // namespace tarn::test
