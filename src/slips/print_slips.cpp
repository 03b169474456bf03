#include "slips/print_slips.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

#include "common/acts.h"
#include "common/boxes.h"
#include "common/raw_channel.h"
#include "gateway/commands.h"
#include "platform/environment.h"
#include "platform/http_loader.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "slips/slip_layouts.h"
#include "slips/slip_number.h"
#include "slips/slip_search.h"

namespace tarn {
namespace {

// The bank with that ID_PES_BAN, if it has a form.
std::optional<std::int32_t> servedBank(std::string_view bank) {
    const auto number = parseComma(bank);
    const auto* served = std::ranges::find_if(
        slipBanks, [&number](std::int32_t code) { return number == static_cast<double>(code); });
    return served == slipBanks.end() ? std::nullopt : std::optional(*served);
}

class SlipJob {
public:
    SlipJob(Environment& environment, const Sessao& session, const Portfolio& portfolio,
            const SlipRun& request)
        : environment_(environment),
          session_(session),
          portfolio_(portfolio),
          includesPortfolio_(request.includesPortfolio),
          running_(portfolio, request.next),
          channel_(environment.spooler, environment.codePage) {}

    void preparePrinter(const GridRow& document);
    // The job for it is open.
    void print(const GridRow& document);
    int printed() const { return printed_; }
    // What of the ticked rows came of it.
    void tellPaper() const;

private:
    std::optional<std::int32_t> bankOf(const GridRow& document) const;
    void announce(const GridRow& document);
    void sendQuery(const std::string& query);
    void save(const GridRow& document, const SlipNumber& number);
    void account();

    Environment& environment_;
    const Sessao& session_;
    const Portfolio& portfolio_;
    bool includesPortfolio_;
    RunningNumber running_;
    RawChannel channel_;
    std::int16_t printed_ = 0;
    std::string first_;  // number as printed
    std::string last_;
};

std::optional<std::int32_t> SlipJob::bankOf(const GridRow& document) const {
    return servedBank(includesPortfolio_ ? portfolio_.ID_PES_BAN : document.text(SlipColumn::Bank));
}

void SlipJob::announce(const GridRow& document) {
    const auto bank = bankOf(document);
    channel_.announce({.document = JobDocument::Slip,
                       .form = bank ? slipFormName(*bank, portfolio_.isWallet57()) : std::string(),
                       .itemLines = {}});
}

void SlipJob::preparePrinter(const GridRow& document) {
    announce(document);
    openSlipJob(channel_);
}

// The answer isn't read and a failure not shown: decision D20.
void SlipJob::sendQuery(const std::string& query) {
    environment_.http.get(environment_.baseUrl + query);
}

void SlipJob::save(const GridRow& document, const SlipNumber& number) {
    const commands::Slip slip{.branch = document.text(SlipColumn::Establishment),
                              .documentKind = document.text(SlipColumn::DocumentKind),
                              .document = document.text(SlipColumn::Number),
                              .controlNumber = document.text(SlipColumn::ControlNumber),
                              .portfolio = portfolio_.ID_CRT_COB,
                              .bankNumber = number.NR_BOL_BANC};
    const bool forCollection = document.text(SlipColumn::Table) == "DOCTO_COBRANCA";
    const bool isWallet57 = portfolio_.isWallet57();
    const auto key = isWallet57 ? commands::ControlKey::ID_NR_CTL : commands::ControlKey::ID_NR_CLT;
    sendQuery(forCollection ? commands::altera_docto_cob(session_, slip)
                            : commands::altera_docto_rec(session_, slip, key));
    if (isWallet57) {
        sendQuery(forCollection ? commands::insere_car_cob(session_, slip)
                                : commands::insere_car_rec(session_, slip));
    }
}

// The document of a bank without a form leaves its job open (decisions D41, D70). The check
// digit is made before anything is recorded (D69).
void SlipJob::print(const GridRow& document) {
    if (!bankOf(document)) {
        return;
    }
    const SlipNumber number = running_.slipNumber();
    save(document, number);
    if (portfolio_.isWallet57()) {
        printWallet57Lines(channel_, document, number);
    } else {
        printSevenDigitLines(channel_, document, number);
    }
    channel_.close();
    last_ = number.digits;
    if (printed_ == 0) {
        first_ = last_;
    }
    account();
}

void SlipJob::account() {
    running_.advance();
    if (printed_ == std::numeric_limits<std::int16_t>::max()) {
        throw RuntimeError(RuntimeErrorCode::Overflow, "boletos impressos de uma vez");
    }
    ++printed_;
}

void SlipJob::tellPaper() const {
    if (printed_ == 0) {
        return tellDone(environment_, "Nenhum boleto impresso");
    }
    const auto count = static_cast<std::size_t>(printed_);
    std::string what = counted(count, {"boleto", "boletos"}) + " (nº " + first_;
    what += count == 1 ? ")" : " a " + last_ + ")";
    tellPrinted(environment_,
                piecesSent(what, count, false, "imprima de novo com os mesmos números"));
}

// Tells how many of the ticked rows are done with.
class Count {
public:
    Count(const Progress& report, std::span<const GridRow> lines)
        : callback_(report),
          total_(static_cast<std::size_t>(std::count_if(
              lines.begin(), lines.end(), [](const GridRow& l) { return l.ticked; }))) {
        say();
    }
    void advance() {
        ++done_;
        say();
    }

private:
    void say() const {
        if (callback_ && total_ > 0) {
            callback_(done_, total_);
        }
    }

    const Progress& callback_;
    std::size_t total_;
    std::size_t done_ = 0;
};

}  // namespace

void printSlips(Environment& environment, const Sessao& session, const Portfolio& portfolio,
                const SlipRun& request, std::span<const GridRow> lines, const SlipRunView& screen) {
    SlipJob slipJob(environment, session, portfolio, request);
    Count count(screen.progress, lines);
    bool ticked = false;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (lines[i].ticked) {
            ticked = true;
            slipJob.preparePrinter(lines[i]);
            screen.untick(i);
            slipJob.print(lines[i]);
            count.advance();
        }
        screen.passed();
    }
    if (ticked) {
        slipJob.tellPaper();
    }
    if (slipJob.printed() == 0) {
        inform(environment, "Selecione um item na Lista!     ");
    }
}

}  // namespace tarn
