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
    Slip(RawChannel& channel, const GridRow& documento)
        : channel_(channel), documento_(documento) {}

    const std::string& operator[](std::size_t coluna) const { return documento_.coluna(coluna); }

    Slip& blanks(std::size_t count) {
        linha_.append(count, ' ');
        return *this;
    }
    Slip& texto(std::string_view valor) {
        appendBlankingControls(linha_, valor);
        return *this;
    }
    Slip& field(std::string_view valor, int largura) {
        appendField(linha_, valor, largura, false);
        return *this;
    }
    Slip& data(std::size_t coluna, int largura) {
        return field(formatDateText(documento_.coluna(coluna)), largura);
    }
    Slip& valor() {
        appendField(linha_, formatText(documento_.coluna(slip_column::valor), twoPlaces), 16, true);
        return *this;
    }
    // Sends the line; an empty one is the blank of its column alone.
    void out(int linhas) {
        channel_.ImprimeRaw(1, linha_, linhas);
        linha_.clear();
    }

    // Pieces of the instruction, a line each; what the text doesn't reach is one blank.
    void instruction(int pieces) {
        std::size_t start = 1;
        for (int i = 0; i < pieces; ++i) {
            const std::string_view piece =
                midOf(documento_.coluna(slip_column::instruction), start, instructionWidth);
            texto(piece.empty() ? " " : piece).out(1);
            start += instructionWidth;
        }
    }

private:
    RawChannel& channel_;
    const GridRow& documento_;
    std::string linha_;
};

// The point-reading conversion stops at the comma of the grid: 2,50 is 2.
double fineOf(const Slip& slip) {
    return readPoint(slip[slip_column::fine]);
}

std::string formattedFine(const Slip& slip) {
    return formatNumber(fineOf(slip), twoPlaces);
}

std::string formattedInterest(const Slip& slip) {
    return formatText(slip[slip_column::dailyInterest], twoPlaces);
}

std::string charges(const Slip& slip) {
    const std::string& interest = slip[slip_column::dailyInterest];
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
    return slip[slip_column::town] + " - " + slip[slip_column::state] + "   " +
           slip[slip_column::cep];
}

void wallet57Payer(Slip& slip) {
    slip.blanks(3).field(slip[slip_column::customer], 54);
    slip.blanks(42).field(slip[slip_column::cpfCnpj], 49).out(1);
    slip.field(slip[slip_column::address], 54).blanks(45);
    slip.texto("I.E. ").field(slip[slip_column::registration], 20).out(1);
    slip.field(town(slip), 70).out(1);
}

void sevenDigitPayer(Slip& slip, const SlipNumber& number) {
    slip.blanks(3).field(slip[slip_column::customer], 60).blanks(10);
    slip.texto("CNPJ/CPF ").field(slip[slip_column::cpfCnpj], 49).out(1);
    slip.blanks(3).field(slip[slip_column::address], 69).blanks(1);
    slip.texto("I.E. ").field(slip[slip_column::registration], 20).out(1);
    slip.field("   " + town(slip), 63).blanks(10).texto("N.N.  ").texto(number.digits);
    slip.texto("-").texto(std::to_string(number.digit)).out(1);
}

}  // namespace

void printWallet57Lines(RawChannel& channel, const GridRow& documento, const SlipNumber& number) {
    Slip slip(channel, documento);
    slip.blanks(1).out(1);
    slip.blanks(100).data(slip_column::due, 16).out(3);
    slip.data(slip_column::issued, 14).blanks(3);
    slip.field(slip[slip_column::number], 30).out(1);
    slip.blanks(111).valor().blanks(1).out(2);
    slip.instruction(3);
    slip.blanks(1).out(1);
    slip.texto(charges(slip)).out(1);
    slip.texto("NOSSO NUMERO: ").texto(number.digits).texto("/");
    slip.texto(std::to_string(number.digit)).blanks(3);
    slip.texto("CODIGO CLIENTE: ").texto(slip[slip_column::externalCode]).out(2);
    wallet57Payer(slip);
    slip.blanks(1).out(7);
}

void printSevenDigitLines(RawChannel& channel, const GridRow& documento, const SlipNumber& number) {
    Slip slip(channel, documento);
    slip.out(1);
    slip.texto("ATE O VENCIMENTO, PREFERENCIALMENTE NO SANTANDER").out(1);
    slip.texto("APOS O VENCIMENTO, SOMENTE NO SANTANDER").blanks(45);
    slip.data(slip_column::due, 16).out(3);
    slip.data(slip_column::issued, 14).blanks(1);
    slip.field(slip[slip_column::number], 30).out(1);
    slip.blanks(90).valor().blanks(1).out(2);
    slip.instruction(4);
    slip.texto("COBRAR MULTA DE ").texto(formattedFine(slip)).texto("% + JUROS DE").out(1);
    slip.texto(formattedInterest(slip)).texto(" AO DIA").out(2);
    sevenDigitPayer(slip, number);
    slip.out(6);
}

}  // namespace tarn
