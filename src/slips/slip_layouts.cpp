#include "slips/slip_layouts.h"

#include <string>
#include <string_view>

#include "runtime/dates.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "slips/slip_search.h"

namespace tarn {
namespace {

constexpr NumberMask twoPlaces{"###,##0.00"};
constexpr std::size_t instructionWidth = 79;

// One slip, line by line. A value's control characters print as blanks.
class Slip {
public:
    Slip(RawChannel& channel, const GridRow& document) : channel_(channel), document_(document) {}

    const std::string& operator[](SlipColumn column) const { return document_.text(column); }

    Slip& blanks(std::size_t count) {
        line_.append(count, ' ');
        return *this;
    }
    Slip& text(std::string_view value) {
        appendBlankingControls(line_, value);
        return *this;
    }
    Slip& field(std::string_view value, int width) {
        appendField(line_, value, width, false);
        return *this;
    }
    Slip& data(SlipColumn column, int width) {
        return field(formatDateText(document_.text(column)), width);
    }
    Slip& value() {
        appendField(line_, formatText(document_.text(SlipColumn::Value), twoPlaces), 16, true);
        return *this;
    }
    // Sends the line; an empty one is the blank of its column alone.
    void out(int lines) {
        channel_.ImprimeRaw(1, line_, lines);
        line_.clear();
    }

    // Pieces of the instruction, a line each; what the text doesn't reach is one blank.
    void instruction(int pieces) {
        std::size_t start = 1;
        for (int i = 0; i < pieces; ++i) {
            const std::string_view piece =
                midOf(document_.text(SlipColumn::Instruction), start, instructionWidth);
            text(piece.empty() ? " " : piece).out(1);
            start += instructionWidth;
        }
    }

private:
    RawChannel& channel_;
    const GridRow& document_;
    std::string line_;
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
    slip.blanks(3).field(slip[SlipColumn::Customer], 54);
    slip.blanks(42).field(slip[SlipColumn::CpfCnpj], 49).out(1);
    slip.field(slip[SlipColumn::Address], 54).blanks(45);
    slip.text("I.E. ").field(slip[SlipColumn::Registration], 20).out(1);
    slip.field(town(slip), 70).out(1);
}

void sevenDigitPayer(Slip& slip, const SlipNumber& number) {
    slip.blanks(3).field(slip[SlipColumn::Customer], 60).blanks(10);
    slip.text("CNPJ/CPF ").field(slip[SlipColumn::CpfCnpj], 49).out(1);
    slip.blanks(3).field(slip[SlipColumn::Address], 69).blanks(1);
    slip.text("I.E. ").field(slip[SlipColumn::Registration], 20).out(1);
    slip.field("   " + town(slip), 63).blanks(10).text("N.N.  ").text(number.digits);
    slip.text("-").text(std::to_string(number.digit)).out(1);
}

}  // namespace

void printWallet57Lines(RawChannel& channel, const GridRow& document, const SlipNumber& number) {
    Slip slip(channel, document);
    slip.blanks(1).out(1);
    slip.blanks(100).data(SlipColumn::Due, 16).out(3);
    slip.data(SlipColumn::Issued, 14).blanks(3);
    slip.field(slip[SlipColumn::Number], 30).out(1);
    slip.blanks(111).value().blanks(1).out(2);
    slip.instruction(3);
    slip.blanks(1).out(1);
    slip.text(charges(slip)).out(1);
    slip.text("NOSSO NUMERO: ").text(number.digits).text("/");
    slip.text(std::to_string(number.digit)).blanks(3);
    slip.text("CODIGO CLIENTE: ").text(slip[SlipColumn::ExternalCode]).out(2);
    wallet57Payer(slip);
    slip.blanks(1).out(7);
}

void printSevenDigitLines(RawChannel& channel, const GridRow& document, const SlipNumber& number) {
    Slip slip(channel, document);
    slip.out(1);
    slip.text("ATE O VENCIMENTO, PREFERENCIALMENTE NO SANTANDER").out(1);
    slip.text("APOS O VENCIMENTO, SOMENTE NO SANTANDER").blanks(45);
    slip.data(SlipColumn::Due, 16).out(3);
    slip.data(SlipColumn::Issued, 14).blanks(1);
    slip.field(slip[SlipColumn::Number], 30).out(1);
    slip.blanks(90).value().blanks(1).out(2);
    slip.instruction(4);
    slip.text("COBRAR MULTA DE ").text(formattedFine(slip)).text("% + JUROS DE").out(1);
    slip.text(formattedInterest(slip)).text(" AO DIA").out(2);
    sevenDigitPayer(slip, number);
    slip.out(6);
}

}  // namespace tarn
