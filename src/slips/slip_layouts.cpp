#include "slips/slip_layouts.h"

#include <string>
#include <string_view>

#include "common/printed_line.h"
#include "runtime/dates.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "slips/slip_search.h"

namespace tarn {
namespace {

constexpr NumberMask twoPlaces{"###,##0.00"};
constexpr std::size_t instructionWidth = 79;
constexpr int instructionRoom = static_cast<int>(instructionWidth);
// Room of what is printed with its name, name and value together.
constexpr int taxNumberRoom = 58;
constexpr int registrationRoom = 25;
constexpr int numberRoom = 20;

// ESC/P.
constexpr std::string_view twelve = "\x0F\x1BM";  // condensed, 12 characters an inch
constexpr std::string_view sixPerInch =
    "\x1B"
    "2";                                                // lines
constexpr std::string_view doubleStrike = "\x0F\x1BG";  // condensed, double strike

// One slip: its line, and the row that it is printed from.
struct Slip {
    PrintedLine line;
    const GridRow& document;

    const std::string& operator[](SlipColumn column) const { return document.text(column); }
    std::string date(SlipColumn column) const { return formatDateText(document.text(column)); }
    std::string amount() const { return formatText(document.text(SlipColumn::Value), twoPlaces); }

    // Pieces of the instruction, a line each; what the text doesn't reach is one blank.
    void instruction(int pieces) {
        std::size_t start = 1;
        for (int i = 0; i < pieces; ++i) {
            const std::string_view piece =
                midOf(document.text(SlipColumn::Instruction), start, instructionWidth);
            line.as(i == 0 ? "Instruções" : "", instructionRoom);
            line.text(piece.empty() ? " " : piece).out();
            start += instructionWidth;
        }
    }
};

// The point-reading conversion stops at the comma of the grid: 2,50 is 2, on purpose
// (decision D71).
double fineOf(const Slip& slip) {
    return readPoint(slip[SlipColumn::Fine]);
}

std::string formattedFine(const Slip& slip) {
    return formatNumber(fineOf(slip), twoPlaces);
}

std::string formattedInterest(const Slip& slip) {
    return formatText(slip[SlipColumn::DailyInterest], twoPlaces);
}

std::string charges(const Slip& slip) {
    const std::string& interest = slip[SlipColumn::DailyInterest];
    const bool hasInterest = !interest.empty() && readComma(interest) != 0;
    const bool hasFine = fineOf(slip) != 0;
    if (hasInterest && !hasFine) {
        return "COBRAR JUROS DE " + formattedInterest(slip) + " AO DIA";
    }
    if (!hasInterest && hasFine) {
        return "COBRAR MULTA DE " + formattedFine(slip) + "% AO DIA";
    }
    return "COBRAR MULTA DE " + formattedFine(slip) + "% + JUROS DE " + formattedInterest(slip) +
           " AO DIA";
}

std::string town(const Slip& slip) {
    return slip[SlipColumn::Town] + " - " + slip[SlipColumn::State] + "   " +
           slip[SlipColumn::PostalCode];
}

void wallet57Payer(Slip& slip) {
    slip.line.blanks(3).as("Sacado").field(slip[SlipColumn::Customer], 54).blanks(42);
    slip.line.as("CNPJ / CPF").field(slip[SlipColumn::CpfCnpj], 49).out();
    slip.line.as("").field(slip[SlipColumn::Address], 54).blanks(45);
    slip.line.as("", registrationRoom).text("I.E. ");
    slip.line.field(slip[SlipColumn::Registration], 20).out();
    slip.line.as("").field(town(slip), 70).out();
}

void sevenDigitPayer(Slip& slip, const SlipNumber& number) {
    slip.line.blanks(3).as("Sacado").field(slip[SlipColumn::Customer], 60).blanks(10);
    slip.line.as("", taxNumberRoom).text("CNPJ/CPF ").field(slip[SlipColumn::CpfCnpj], 49).out();
    slip.line.blanks(3).as("").field(slip[SlipColumn::Address], 69).blanks(1);
    slip.line.as("", registrationRoom).text("I.E. ");
    slip.line.field(slip[SlipColumn::Registration], 20).out();
    slip.line.as("").field("   " + town(slip), 63).blanks(10);
    slip.line.as("Nosso número", numberRoom).text("N.N.  ").text(number.digits);
    slip.line.text("-").text(std::to_string(number.digit)).out();
}

void send(RawChannel& channel, std::string_view sequence) {
    std::string text(sequence);
    channel.ImprimeRaw(1, text, 0);
}

}  // namespace

std::string slipFormName(std::int32_t bank, bool wallet57) {
    return "Boleto_" + std::to_string(bank) + (wallet57 ? "_57" : "");
}

void openSlipJob(RawChannel& channel) {
    channel.open();
    send(channel, twelve);
    channel.close();
    channel.open();
    send(channel, sixPerInch);
    send(channel, doubleStrike);
}

void printWallet57Lines(RawChannel& channel, const GridRow& document, const SlipNumber& number) {
    Slip slip{.line = PrintedLine(channel), .document = document};
    slip.line.blanks(1).out();
    slip.line.blanks(100).as("Vencimento").field(slip.date(SlipColumn::Due), 16).out(3);
    slip.line.as("Data do documento").field(slip.date(SlipColumn::Issued), 14).blanks(3);
    slip.line.as("Número do documento").field(slip[SlipColumn::Number], 30).out();
    slip.line.blanks(111).as("(=) Valor do documento").rightField(slip.amount(), 16);
    slip.line.blanks(1).out(2);
    slip.instruction(3);
    slip.line.as("", instructionRoom).text(" ").out();
    slip.line.as("", instructionRoom).text(charges(slip)).out();
    slip.line.as("", instructionRoom).text("NOSSO NUMERO: ").text(number.digits).text("/");
    slip.line.text(std::to_string(number.digit)).blanks(3);
    slip.line.text("CODIGO CLIENTE: ").text(slip[SlipColumn::ExternalCode]).out(2);
    wallet57Payer(slip);
    slip.line.blanks(1).out(7);
}

void printSevenDigitLines(RawChannel& channel, const GridRow& document, const SlipNumber& number) {
    Slip slip{.line = PrintedLine(channel), .document = document};
    slip.line.out();
    slip.line.as("Local de pagamento", instructionRoom);
    slip.line.text("ATE O VENCIMENTO, PREFERENCIALMENTE NO SANTANDER").out();
    slip.line.as("", instructionRoom).text("APOS O VENCIMENTO, SOMENTE NO SANTANDER").blanks(45);
    slip.line.as("Vencimento").field(slip.date(SlipColumn::Due), 16).out(3);
    slip.line.as("Data do documento").field(slip.date(SlipColumn::Issued), 14).blanks(1);
    slip.line.as("Número do documento").field(slip[SlipColumn::Number], 30).out();
    slip.line.blanks(90).as("(=) Valor do documento").rightField(slip.amount(), 16);
    slip.line.blanks(1).out(2);
    slip.instruction(4);
    slip.line.as("", instructionRoom);
    slip.line.text("COBRAR MULTA DE ").text(formattedFine(slip)).text("% + JUROS DE").out();
    slip.line.as("", instructionRoom).text(formattedInterest(slip)).text(" AO DIA").out(2);
    sevenDigitPayer(slip, number);
    slip.line.out(6);
}

}  // namespace tarn
