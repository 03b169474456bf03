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
    slip.line.blanks(3).field(slip[SlipColumn::Customer], 54);
    slip.line.blanks(42).field(slip[SlipColumn::CpfCnpj], 49).out();
    slip.line.field(slip[SlipColumn::Address], 54).blanks(45);
    slip.line.text("I.E. ").field(slip[SlipColumn::Registration], 20).out();
    slip.line.field(town(slip), 70).out();
}

void sevenDigitPayer(Slip& slip, const SlipNumber& number) {
    slip.line.blanks(3).field(slip[SlipColumn::Customer], 60).blanks(10);
    slip.line.text("CNPJ/CPF ").field(slip[SlipColumn::CpfCnpj], 49).out();
    slip.line.blanks(3).field(slip[SlipColumn::Address], 69).blanks(1);
    slip.line.text("I.E. ").field(slip[SlipColumn::Registration], 20).out();
    slip.line.field("   " + town(slip), 63).blanks(10).text("N.N.  ").text(number.digits);
    slip.line.text("-").text(std::to_string(number.digit)).out();
}

}  // namespace

std::string slipFormName(std::int32_t bank, bool wallet57) {
    return "Boleto_" + std::to_string(bank) + (wallet57 ? "_57" : "");
}

void printWallet57Lines(RawChannel& channel, const GridRow& document, const SlipNumber& number) {
    Slip slip{.line = PrintedLine(channel), .document = document};
    slip.line.blanks(1).out();
    slip.line.blanks(100).field(slip.date(SlipColumn::Due), 16).out(3);
    slip.line.field(slip.date(SlipColumn::Issued), 14).blanks(3);
    slip.line.field(slip[SlipColumn::Number], 30).out();
    slip.line.blanks(111).rightField(slip.amount(), 16).blanks(1).out(2);
    slip.instruction(3);
    slip.line.blanks(1).out();
    slip.line.text(charges(slip)).out();
    slip.line.text("NOSSO NUMERO: ").text(number.digits).text("/");
    slip.line.text(std::to_string(number.digit)).blanks(3);
    slip.line.text("CODIGO CLIENTE: ").text(slip[SlipColumn::ExternalCode]).out(2);
    wallet57Payer(slip);
    slip.line.blanks(1).out(7);
}

void printSevenDigitLines(RawChannel& channel, const GridRow& document, const SlipNumber& number) {
    Slip slip{.line = PrintedLine(channel), .document = document};
    slip.line.out();
    slip.line.text("ATE O VENCIMENTO, PREFERENCIALMENTE NO SANTANDER").out();
    slip.line.text("APOS O VENCIMENTO, SOMENTE NO SANTANDER").blanks(45);
    slip.line.field(slip.date(SlipColumn::Due), 16).out(3);
    slip.line.field(slip.date(SlipColumn::Issued), 14).blanks(1);
    slip.line.field(slip[SlipColumn::Number], 30).out();
    slip.line.blanks(90).rightField(slip.amount(), 16).blanks(1).out(2);
    slip.instruction(4);
    slip.line.text("COBRAR MULTA DE ").text(formattedFine(slip)).text("% + JUROS DE").out();
    slip.line.text(formattedInterest(slip)).text(" AO DIA").out(2);
    sevenDigitPayer(slip, number);
    slip.line.out(6);
}

}  // namespace tarn
