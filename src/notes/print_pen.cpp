#include "notes/print_pen.h"

#include <algorithm>

#include "notes/items.h"
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

// Every service counts in the sums, printed or not (decision N47).
void addUp(Run& run) {
    Services& services = run.services;
    for (const std::size_t position : services.rows) {
        run.document.goToItem(position);
        services.lastRate = run.document.number(Source::AQ_ISS);
        services.taxSum += run.document.number(Source::VL_ISS);
        services.sum += run.document.number(Source::VL_LIQ_IT);
    }
}

void loseServicesFrom(std::size_t first, Run& run) {
    for (std::size_t i = first; i < run.services.rows.size(); ++i) {
        run.document.goToItem(run.services.rows[i]);
        run.losses->add({.kind = Loss::Kind::Item,
                         .item = static_cast<int>(run.services.rows[i] - firstItem + 1),
                         .field = "serviço",
                         .lost = nameOfItem(run.document),
                         .limit = static_cast<int>(first)});
    }
}

}  // namespace

int parcelCount(int limit, Run& run) {
    const double count = run.document.number(Source::QTDE_PARC);
    if (count < limit + 1) {
        return count >= 1 ? static_cast<int>(count) : 0;
    }
    if (run.losses != nullptr) {
        run.losses->add({.kind = Loss::Kind::ParcelsOverflow,
                         .field = "QTDE_PARC",
                         .count = static_cast<int>(std::min<double>(count, 9999)),
                         .limit = limit});
    }
    return limit + 1;
}

void PrintPen::setUp(std::string_view bytes) {
    RawChannel& channel = *run_.channel;
    if (!bytes.empty()) {
        channel.open();
        std::string text(bytes);
        channel.ImprimeRaw(1, text, 0);
        channel.close();
    }
    channel.open();
}

void PrintPen::control(std::string_view bytes) {
    run_.line = bytes;
    run_.send(0);
}

void PrintPen::margin(int column) {
    run_.line.append(static_cast<std::size_t>(column - column_), ' ');
    column_ = column;
}

void PrintPen::tooMany(const Parcels& block) {
    run_.line = block.message;
    run_.send(block.lineEndsAbove);
}

void PrintPen::items(const Items& block) {
    mostItems_ = lineCount(Source::QT_MAX_IT, run_);
    if (block.services && !run_.document.text(Source::QT_MAX_IT_NF_SRV).empty()) {
        serviceLines_ = lineCount(Source::QT_MAX_IT_NF_SRV, run_);
    }
    itemsPrinted_ = printItems(block, mostItems_, run_);
}

// With no line left the call is still made and leaves its blank (decision N26).
int PrintPen::emptyItemLines(const Items& block) const {
    return std::max(0, mostItems_ - itemsPrinted_ + block.constant);
}

int PrintPen::services() {
    addUp(run_);
    if (run_.losses != nullptr) {
        loseServicesFrom(static_cast<std::size_t>(std::max(0, serviceLines_)), run_);
    }
    return serviceLines_;
}

bool PrintPen::service(int line) {
    const auto place = static_cast<std::size_t>(line - 1);
    if (place >= run_.services.rows.size()) {
        return false;
    }
    run_.document.goToItem(run_.services.rows[place]);
    return true;
}

void PrintPen::band(const Band& band) {
    const std::string_view text =
        band.source == Source::LegalText ? legalTextOf(run_) : run_.document.text(band.source);
    const int calls = callsFor(band, static_cast<int>(lengthOf(text)));
    const auto piece = static_cast<std::size_t>(band.piece);
    std::size_t from = 1;
    for (int i = 0; i < calls; ++i, from += piece) {
        margin(band.column);
        appendBlankingControls(run_.line, midOf(text, from, piece));
        if (run_.losses != nullptr && i + 1 == calls) {
            run_.losses->band(band.source, band.column, midOf(text, from + piece, text.size()));
        }
        end(i + 1 < calls ? 1 : band.lines - (calls - 1));
    }
}

}  // namespace tarn::notes
