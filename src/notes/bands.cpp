#include <algorithm>

#include "notes/blocks.h"
#include "notes/fields.h"
#include "notes/run.h"
#include "runtime/text.h"

namespace tarn::notes {
namespace {

int callsFor(const Band& band, int length) {
    if (length == 0) {
        return 1;
    }
    if (band.oneLineUpTo > 0) {
        return length <= band.oneLineUpTo ? 1 : 2;
    }
    return std::min(band.most, (length + band.piece - 1) / band.piece);
}

}  // namespace

void printBand(const Band& band, Run& run) {
    const std::string_view text =
        band.source == Source::LegalText ? legalTextOf(run) : run.document.text(band.source);
    const int calls = callsFor(band, static_cast<int>(lengthOf(text)));
    const auto piece = static_cast<std::size_t>(band.piece);
    std::size_t from = 1;
    for (int i = 0; i < calls; ++i, from += piece) {
        run.line.append(static_cast<std::size_t>(band.column - firstColumn), ' ');
        appendBlankingControls(run.line, midOf(text, from, piece));
        if (run.losses != nullptr && i + 1 == calls) {
            run.losses->band(band.source, band.column, midOf(text, from + piece, text.size()));
        }
        run.send(i + 1 < calls ? 1 : band.lines - (calls - 1));
    }
}

void printCredit(const Credit& credit, Run& run) {
    if (run.document.number(Source::VL_IMPOSTO_CREDITAR) > 0) {
        printRow(credit.amount, run);
        printRow(credit.rate, run);
    } else {
        run.send(credit.amount.advance + credit.rate.advance);
    }
}

}  // namespace tarn::notes
