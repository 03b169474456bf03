// The lines of both forms, byte by byte; each is one write.
#include "slips/slip_layouts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/slips/slip_fixture.h"
#include "tests/support/recording_spooler.h"

namespace tarn::test {
namespace {

using Lines = std::vector<std::string>;

const SlipNumber number57{.digits = "0000000001234", .digit = 7, .NR_BOL_BANC = "1234"};
const SlipNumber numberSeven{.digits = "1234567", .digit = 9, .NR_BOL_BANC = "12345679"};

template <typename Layout>
Lines written(Layout layout, const GridRow& row, const SlipNumber& number) {
    RecordingSpooler spooler;
    RawChannel channel(spooler, CodePage::Page1252);
    channel.open();
    layout(channel, row, number);
    EXPECT_EQ(spooler.calls.back(), RecordingSpooler::Call::Write) << "the job stays open";
    return spooler.jobs.at(0).writes;
}
Lines wallet57(const GridRow& row) {
    return written(printWallet57Lines, row, number57);
}
Lines sevenDigits(const GridRow& row) {
    return written(printSevenDigitLines, row, numberSeven);
}
// Lines count from 1.
std::string line57(const GridRow& row, std::size_t line) {
    return wallet57(row).at(line - 1);
}
std::string line7(const GridRow& row, std::size_t line) {
    return sevenDigits(row).at(line - 1);
}
GridRow with(SlipColumn column, const std::string& text) {
    GridRow row = document();
    row.text(column) = text;
    return row;
}
GridRow charges(const std::string& fine, const std::string& interest) {
    GridRow row = document();
    row.text(SlipColumn::Fine) = fine;
    row.text(SlipColumn::DailyInterest) = interest;
    return row;
}

TEST(Wallet57, Lines) {
    EXPECT_EQ(wallet57(document()), wallet57Lines());
}

TEST(SevenDigits, Lines) {
    EXPECT_EQ(sevenDigits(document()), sevenDigitLines());
}

TEST(Wallet57, EmptyCells) {
    EXPECT_EQ(wallet57(emptyDocument()),
              (Lines{"  \r\n", b(101) + b(16) + "\r\n\r\n\r\n", b(1) + b(14 + 3 + 30) + "\r\n",
                     b(112) + b(16) + " \r\n\r\n", "  \r\n", "  \r\n", "  \r\n", "  \r\n",
                     " COBRAR MULTA DE 0,00% + JUROS DE  AO DIA\r\n",
                     " NOSSO NUMERO: 0000000001234/7   CODIGO CLIENTE: \r\n\r\n",
                     b(4) + b(54 + 42 + 49) + "\r\n", b(1) + b(54 + 45) + "I.E. " + b(20) + "\r\n",
                     "  -    " + b(64) + "\r\n", "  \r\n\r\n\r\n\r\n\r\n\r\n\r\n"}));
}

TEST(SevenDigits, EmptyCells) {
    EXPECT_EQ(sevenDigits(emptyDocument()),
              (Lines{" \r\n", " ATE O VENCIMENTO, PREFERENCIALMENTE NO SANTANDER\r\n",
                     " APOS O VENCIMENTO, SOMENTE NO SANTANDER" + b(45 + 16) + "\r\n\r\n\r\n",
                     b(1) + b(14 + 1 + 30) + "\r\n", b(91) + b(16) + " \r\n\r\n", "  \r\n",
                     "  \r\n", "  \r\n", "  \r\n", " COBRAR MULTA DE 0,00% + JUROS DE\r\n",
                     "  AO DIA\r\n\r\n", b(4) + b(60 + 10) + "CNPJ/CPF " + b(49) + "\r\n",
                     b(4) + b(69 + 1) + "I.E. " + b(20) + "\r\n",
                     "     -    " + b(63 - 9) + b(10) + "N.N.  1234567-9\r\n",
                     " \r\n\r\n\r\n\r\n\r\n\r\n"}));
}

TEST(Slip, DatesAreSetInFullOrStayAsTheyAre) {
    EXPECT_EQ(line57(with(SlipColumn::Due, "2012-04-10T00:00:00"), 2),
              b(101) + "10/04/2012" + b(6) + "\r\n\r\n\r\n");
    EXPECT_EQ(line57(with(SlipColumn::Due, "CONTRA APRESENTACAO"), 2),
              b(101) + "CONTRA APRESENTA\r\n\r\n\r\n");
    EXPECT_EQ(line57(with(SlipColumn::Issued, "5/3/12"), 3).substr(0, 18), " 05/03/2012" + b(7));
    EXPECT_EQ(line7(with(SlipColumn::Issued, "31/02/2012"), 4).substr(0, 16), " 31/02/2012" + b(5));
    EXPECT_EQ(line7(with(SlipColumn::Due, "A VISTA"), 3).substr(85),
              "A VISTA  " + b(7) + "\r\n\r\n\r\n");
}

TEST(Slip, AnAmountTooWideLosesItsEnd) {
    EXPECT_EQ(line57(with(SlipColumn::Value, "123.456.789.012.345,67"), 4),
              b(112) + "123.456.789.012. \r\n\r\n");
    EXPECT_EQ(line7(with(SlipColumn::Value, "123.456.789.012.345,67"), 5),
              b(91) + "123.456.789.012. \r\n\r\n");
    EXPECT_EQ(line57(with(SlipColumn::Value, "5"), 4), b(112) + b(12) + "5,00 \r\n\r\n");
}

TEST(Slip, LongFieldsAreCut) {
    GridRow row = document();
    for (const SlipColumn column :
         {SlipColumn::Number, SlipColumn::Customer, SlipColumn::Address, SlipColumn::CpfCnpj,
          SlipColumn::Registration, SlipColumn::Town}) {
        row.text(column) = std::string(80, 'x');
    }
    const auto x = [](std::size_t count) { return std::string(count, 'x'); };
    EXPECT_EQ(line57(row, 3), " 05/03/2012" + b(7) + x(30) + "\r\n");
    EXPECT_EQ(line57(row, 11), b(4) + x(54) + b(42) + x(49) + "\r\n");
    EXPECT_EQ(line57(row, 12), " " + x(54) + b(45) + "I.E. " + x(20) + "\r\n");
    EXPECT_EQ(line57(row, 13), " " + x(70) + "\r\n");
    EXPECT_EQ(line7(row, 4), " 05/03/2012" + b(5) + x(30) + "\r\n");
    EXPECT_EQ(line7(row, 12), b(4) + x(60) + b(10) + "CNPJ/CPF " + x(49) + "\r\n");
    EXPECT_EQ(line7(row, 13), b(4) + x(69) + b(1) + "I.E. " + x(20) + "\r\n");
    EXPECT_EQ(line7(row, 14), b(4) + x(60) + b(10) + "N.N.  1234567-9\r\n");
}

// Widths and cuts count characters; each is one byte.
TEST(Slip, AccentedLettersCountOnce) {
    std::string name;
    for (int i = 0; i < 60; ++i) {
        name += "Ã";
    }
    EXPECT_EQ(line57(with(SlipColumn::Customer, name), 11).substr(4, 55),
              std::string(54, '\xC3') + " ");
    EXPECT_EQ(line57(with(SlipColumn::Instruction, name + name), 5),
              " " + std::string(79, '\xC3') + "\r\n");
    EXPECT_EQ(line57(with(SlipColumn::Instruction, name + name), 6),
              " " + std::string(41, '\xC3') + "\r\n");
}

TEST(Slip, AValueCannotMoveALineOrCommandThePrinter) {
    GridRow row = document();
    row.text(SlipColumn::Instruction) =
        "A\r\nB\x1B"
        "C";
    row.text(SlipColumn::ExternalCode) = "X\x0F\tY";
    row.text(SlipColumn::DailyInterest) = "1\n2";
    row.text(SlipColumn::Fine) = "2,00";
    row.text(SlipColumn::Town) = "S\x12P";
    row.text(SlipColumn::Due) = "10\n04";
    EXPECT_EQ(line7(row, 3).substr(85), "10 04" + b(11) + "\r\n\r\n\r\n");
    EXPECT_EQ(line7(row, 6), " A  B C\r\n");
    EXPECT_EQ(line7(row, 11), " 1 2 AO DIA\r\n\r\n");
    EXPECT_EQ(line7(row, 14).substr(0, 12), b(4) + "S P - SP");
    row.text(SlipColumn::DailyInterest) = "";
    EXPECT_EQ(line57(row, 10), " NOSSO NUMERO: 0000000001234/7   CODIGO CLIENTE: X  Y\r\n\r\n");
}

// Lines 5 to 7 (wallet 57) or 6 to 9 hold 79 characters each.
std::string text(std::size_t length) {
    std::string all;
    for (std::size_t i = 0; i < length; ++i) {
        all += static_cast<char>('A' + i / 79);
    }
    return all;
}

Lines pieces57(std::size_t length) {
    const Lines lines = wallet57(with(SlipColumn::Instruction, text(length)));
    return {lines.begin() + 4, lines.begin() + 8};
}
Lines pieces7(std::size_t length) {
    const Lines lines = sevenDigits(with(SlipColumn::Instruction, text(length)));
    return {lines.begin() + 5, lines.begin() + 9};
}
std::string piece(char letter, std::size_t length) {
    return " " + std::string(length, letter) + "\r\n";
}
const std::string noPiece = "  \r\n";

TEST(Wallet57, TheInstructionIsCutInThree) {
    EXPECT_EQ(pieces57(0), (Lines{noPiece, noPiece, noPiece, noPiece}));
    EXPECT_EQ(pieces57(1), (Lines{piece('A', 1), noPiece, noPiece, noPiece}));
    EXPECT_EQ(pieces57(79), (Lines{piece('A', 79), noPiece, noPiece, noPiece}));
    EXPECT_EQ(pieces57(80), (Lines{piece('A', 79), piece('B', 1), noPiece, noPiece}));
    EXPECT_EQ(pieces57(158), (Lines{piece('A', 79), piece('B', 79), noPiece, noPiece}));
    EXPECT_EQ(pieces57(159), (Lines{piece('A', 79), piece('B', 79), piece('C', 1), noPiece}));
    const Lines full{piece('A', 79), piece('B', 79), piece('C', 79), noPiece};
    EXPECT_EQ(pieces57(237), full);
    EXPECT_EQ(pieces57(238), full);
    EXPECT_EQ(pieces57(400), full);
    EXPECT_EQ(wallet57(with(SlipColumn::Instruction, text(400))).size(), 14U);
}

TEST(SevenDigits, TheInstructionIsCutInFour) {
    EXPECT_EQ(pieces7(0), (Lines{noPiece, noPiece, noPiece, noPiece}));
    EXPECT_EQ(pieces7(79), (Lines{piece('A', 79), noPiece, noPiece, noPiece}));
    EXPECT_EQ(pieces7(80), (Lines{piece('A', 79), piece('B', 1), noPiece, noPiece}));
    EXPECT_EQ(pieces7(158), (Lines{piece('A', 79), piece('B', 79), noPiece, noPiece}));
    EXPECT_EQ(pieces7(159), (Lines{piece('A', 79), piece('B', 79), piece('C', 1), noPiece}));
    EXPECT_EQ(pieces7(237), (Lines{piece('A', 79), piece('B', 79), piece('C', 79), noPiece}));
    EXPECT_EQ(pieces7(238), (Lines{piece('A', 79), piece('B', 79), piece('C', 79), piece('D', 1)}));
    const Lines full{piece('A', 79), piece('B', 79), piece('C', 79), piece('D', 79)};
    EXPECT_EQ(pieces7(316), full);
    EXPECT_EQ(pieces7(317), full);
    EXPECT_EQ(sevenDigits(with(SlipColumn::Instruction, text(400))).size(), 15U);
}

TEST(Slip, ReceivablesTakeTheSameInstruction) {
    GridRow row = receivable("9", "C1");
    row.text(SlipColumn::CollectionReference) = "NAO ESTA";
    row.text(SlipColumn::Instruction) = "ESTA";
    EXPECT_EQ(line57(row, 5), " ESTA\r\n");
    EXPECT_EQ(line7(row, 6), " ESTA\r\n");
}

TEST(Wallet57, Charges) {
    const auto line = [](const std::string& fine, const std::string& interest) {
        return line57(charges(fine, interest), 9);
    };
    EXPECT_EQ(line("0,00", "0,42"), " COBRAR JUROS DE 0,42 AO DIA\r\n");
    EXPECT_EQ(line("2,00", "0,00"), " COBRAR MULTA DE 2,00% AO DIA\r\n");
    EXPECT_EQ(line("2,00", "0,42"), " COBRAR MULTA DE 2,00% + JUROS DE 0,42 AO DIA\r\n");
    EXPECT_EQ(line("0,00", "0,00"), " COBRAR MULTA DE 0,00% + JUROS DE 0,00 AO DIA\r\n");
    // The fine loses its cents, at 0,50 all of it.
    EXPECT_EQ(line("2,50", "0,00"), " COBRAR MULTA DE 2,00% AO DIA\r\n");
    EXPECT_EQ(line("0,50", "0,42"), " COBRAR JUROS DE 0,42 AO DIA\r\n");
    EXPECT_EQ(line("0,50", "0,00"), " COBRAR MULTA DE 0,00% + JUROS DE 0,00 AO DIA\r\n");
    EXPECT_EQ(line("1.500,00", "0,00"), " COBRAR MULTA DE 1,50% AO DIA\r\n");
    // The interest stands as it is.
    EXPECT_EQ(line("0,00", "1.234,56"), " COBRAR JUROS DE 1.234,56 AO DIA\r\n");
    EXPECT_EQ(line("2,00", ""), " COBRAR MULTA DE 2,00% AO DIA\r\n");
    EXPECT_EQ(line("0,00", ""), " COBRAR MULTA DE 0,00% + JUROS DE  AO DIA\r\n");
    EXPECT_EQ(line("", "0,42"), " COBRAR JUROS DE 0,42 AO DIA\r\n");
    EXPECT_EQ(line("-2,00", "0,00"), " COBRAR MULTA DE -2,00% AO DIA\r\n");
}

TEST(SevenDigits, ChargesHaveNoConditions) {
    const auto lines = [](const std::string& fine, const std::string& interest) {
        const Lines all = sevenDigits(charges(fine, interest));
        return all.at(9) + all.at(10);
    };
    EXPECT_EQ(lines("0,00", "0,42"), " COBRAR MULTA DE 0,00% + JUROS DE\r\n 0,42 AO DIA\r\n\r\n");
    EXPECT_EQ(lines("2,50", "0,00"), " COBRAR MULTA DE 2,00% + JUROS DE\r\n 0,00 AO DIA\r\n\r\n");
    EXPECT_EQ(lines("0,00", "0,00"), " COBRAR MULTA DE 0,00% + JUROS DE\r\n 0,00 AO DIA\r\n\r\n");
    EXPECT_EQ(lines("", ""), " COBRAR MULTA DE 0,00% + JUROS DE\r\n  AO DIA\r\n\r\n");
}

// The grid never holds such an interest; should it, the lines before are out.
TEST(Wallet57, InterestThatIsNoNumberStopsAtItsLine) {
    RecordingSpooler spooler;
    RawChannel channel(spooler, CodePage::Page1252);
    channel.open();
    try {
        printWallet57Lines(channel, charges("2,00", "x"), number57);
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::TypeMismatch);
    }
    EXPECT_EQ(spooler.jobs.at(0).writes.size(), 8U);
}

TEST(Wallet57, ALongNumberIsPrintedWhole) {
    const SlipNumber number{
        .digits = "10000000000000", .digit = 4, .NR_BOL_BANC = "10000000000000"};
    EXPECT_EQ(written(printWallet57Lines, document(), number).at(9),
              " NOSSO NUMERO: 10000000000000/4   CODIGO CLIENTE: C-77\r\n\r\n");
}

}  // namespace
}  // namespace tarn::test
