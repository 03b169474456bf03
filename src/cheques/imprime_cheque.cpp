#include "cheques/imprime_cheque.h"

#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "cheques/quebra_texto.h"
#include "common/printed_line.h"
#include "common/valor_extenso.h"
#include "platform/environment.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t payeeWidth = 70;
constexpr int payeeRoom = static_cast<int>(payeeWidth);
constexpr int townWidth = 19;
constexpr int dayWidth = 2;
constexpr int monthWidth = 17;
// ESC/P: condensed print, then double strike behind a doubled escape.
constexpr std::string_view condensedDouble = "\x0F\x1B\x1BG";
constexpr std::string_view spacing6Over72 = "\x1B\x41\x06";  // ESC "A": line spacing in 1/72 inch

constexpr std::array<std::string_view, 12> months{"JANEIRO",  "FEVEREIRO", "MARCO",    "ABRIL",
                                                  "MAIO",     "JUNHO",     "JULHO",    "AGOSTO",
                                                  "SETEMBRO", "OUTUBRO",   "NOVEMBRO", "DEZEMBRO"};

std::string_view monthName(std::string_view number) {
    const double month = readPoint(number);
    if (month < 1 || month > static_cast<double>(months.size()) || month != std::floor(month)) {
        return {};
    }
    return months[static_cast<std::size_t>(month) - 1];
}

struct Data {
    std::string_view day;
    std::string_view month;  // name
    std::string_view year;
};

Data dataDe(std::string_view text) {
    const std::vector<std::string_view> pieces = split(text, '/');
    if (pieces.size() < 3) {
        throw RuntimeError(RuntimeErrorCode::OutOfRange, "\"" + std::string(text) + "\"");
    }
    return {pieces[0], monthName(pieces[1]), pieces[2]};
}

void printGeneral(PrintedLine& paper, const ChequeData& cheque, const std::string& inWords,
                  const Data& data) {
    constexpr std::size_t wordsWidth = 64;
    constexpr int wordsRoom = static_cast<int>(wordsWidth);
    constexpr int restRoom = 76;
    constexpr int yearRoom = 4;
    constexpr int amountWidth = 14;
    paper.commands(condensedDouble).out(0);
    paper.blanks(64).as("Valor").rightField(cheque.sValor, amountWidth).out(2);
    paper.blanks(14).as("Pague por este cheque a quantia de", wordsRoom);
    paper.text(leftOf(inWords, wordsWidth)).out(1);
    if (inWords.size() > wordsWidth) {
        paper.blanks(2).as("", restRoom).text(inWords.substr(wordsWidth));
    }
    paper.out(2);
    paper.blanks(4).as("A", payeeRoom).text(leftOf(cheque.sFavorecido, payeeWidth)).out(2);
    paper.blanks(29).as("Local").field(cheque.sNmMun, townWidth);
    paper.blanks(2).as("Dia").rightField(data.day, dayWidth);
    paper.blanks(3).as("Mês").field(data.month, monthWidth);
    paper.blanks(2).as("Ano", yearRoom).text(data.year).out(2);
    paper.out(9);
}

// The lines under the first one: a third joins the second, a fourth has no room.
std::string secondLine(const std::vector<std::string_view>& lines) {
    std::string text;
    if (lines.size() > 1) {
        text = lines[1];
    }
    if (lines.size() > 2) {
        text.append(" ").append(lines[2]);
    }
    return text;
}

void printBank33(PrintedLine& paper, const ChequeData& cheque, const std::string& inWords,
                 const Data& data) {
    constexpr std::size_t indent = 26;
    constexpr std::size_t wordsWidth = 90;
    constexpr int wordsRoom = static_cast<int>(wordsWidth);
    constexpr int restRoom = 106;
    constexpr int yearRoom = 2;
    constexpr int amountWidth = 25;
    const std::string broken = QuebraTexto(std::string(indent, ' ') + inWords, wordsWidth);
    const std::vector<std::string_view> lines = split(broken, '\r');
    paper.commands(spacing6Over72).out(0);
    paper.commands(condensedDouble).out(0);
    paper.out(2);
    paper.blanks(93).as("Valor");
    paper.rightField("#" + std::string(cheque.sValor) + "#", amountWidth).out(4);
    paper.blanks(indent).as("Pague por este cheque a quantia de", wordsRoom);
    paper.text(lines.front()).out(2);
    if (lines.size() > 1) {
        paper.blanks(10).as("", restRoom).text(secondLine(lines));
    }
    paper.out(2);
    paper.blanks(12).as("A", payeeRoom).text(leftOf(cheque.sFavorecido, payeeWidth)).out(4);
    paper.blanks(61).as("Local").rightField(cheque.sNmMun, townWidth);
    paper.blanks(2).as("Dia").rightField(data.day, dayWidth);
    paper.blanks(6).as("Mês").field(data.month, monthWidth);
    paper.blanks(9).as("Ano", yearRoom).text(rightOf(data.year, 2)).out(2);
    paper.out(20);
}

}  // namespace

std::int16_t bankCode(std::string_view nrOfiBan) {
    return readInt16(trimBlanks(nrOfiBan));
}

std::string_view chequeFormName(std::int16_t bank) {
    return bank == chequeBank33 ? "Cheque_33" : "Cheque";
}

void printCheque(RawChannel& channel, const ChequeData& cheque) {
    const std::string inWords = ValorExtenso(readComma(cheque.sValor), "REAIS", "REAL");
    const Data data = dataDe(cheque.sDataDeposito);
    channel.announce({.document = JobDocument::Cheque,
                      .form = std::string(chequeFormName(cheque.nNr_Ofi_Ban)),
                      .itemLines = {}});
    channel.open({.docName = "Impressao de Cheque", .outputFile = "", .dataType = "", .kind = {}});
    PrintedLine paper(channel);
    if (cheque.nNr_Ofi_Ban == chequeBank33) {
        printBank33(paper, cheque, inWords, data);
    } else {
        printGeneral(paper, cheque, inWords, data);
    }
    channel.close();
}

void ImprimeCheque(Environment& environment, const ChequeData& cheque) {
    RawChannel channel(environment.spooler, environment.codePage);
    printCheque(channel, cheque);
}

}  // namespace tarn
