#include <algorithm>

#include "notes/blocks.h"
#include "notes/fields.h"
#include "notes/item_rows.h"
#include "notes/run.h"
#include "notes/service_rows.h"

namespace tarn::notes {
namespace {

using enum Source;

// Every service counts in the sums, printed or not (decision N47).
void addUp(Run& run) {
    Services& services = run.services;
    for (const std::size_t position : services.rows) {
        run.document.goToItem(position);
        services.lastRate = run.document.number(AQ_ISS);
        services.taxSum += run.document.number(VL_ISS);
        services.sum += run.document.number(VL_LIQ_IT);
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

void printServices(int lines, Run& run) {
    addUp(run);
    if (run.losses != nullptr) {
        loseServicesFrom(static_cast<std::size_t>(std::max(0, lines)), run);
    }
    for (int i = 1; i <= lines; ++i) {
        const auto place = static_cast<std::size_t>(i - 1);
        const bool held = place < run.services.rows.size();
        if (held) {
            run.document.goToItem(run.services.rows[place]);
        }
        const Row& line = held ? serviceLine : emptyServiceLine;
        const int column = appendFields(run.line, firstColumn, line.fields(), run);
        if (i == 4) {
            appendFields(run.line, column, besideFourth.fields(), run);
        } else if (i == 6) {
            appendFields(run.line, column, besideSixth.fields(), run);
        }
        run.send(line.advance);
    }
    // Within the form's own six lines: decision N46.
    const int rest = check::serviceLines - (lines > 0 ? lines : 0);
    if (rest > 0) {
        run.send(rest);
    }
}

}  // namespace tarn::notes
