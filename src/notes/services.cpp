// The service block: one line for each service, and the service tax boxes, which
// the form has beside its fourth and sixth line.
#include "notes/blocks.h"
#include "notes/fields.h"
#include "notes/form_check.h"
#include "notes/form_rows.h"
#include "notes/run.h"

namespace tarn::notes {
namespace {

using enum Source;

constexpr Row serviceLine =
    row(1, left(CD_PRO, 2, 12), left(DESCRICAO, 14, 75), right(VL_LIQ_IT, 89, 15));
constexpr Row emptyLine = row(1, blank(2, 12), blank(14, 75), blank(89, 15));
constexpr Row besideFourth = row(1, right(LastServiceRate, 104, 5), right(ServiceTaxSum, 109, 15));
constexpr Row besideSixth = row(1, right(ServiceSum, 104, 15));
static_assert(check::fields(serviceLine.fields()) == Flaw::None);
static_assert(check::fields(besideFourth.fields(), 104) == Flaw::None);

// Every service counts in the sums, printed or not.
void addUp(Run& run) {
    Services& services = run.services;
    for (const std::size_t position : services.rows) {
        run.document.goToItem(position);
        services.lastRate = run.document.number(AQ_ISS);
        services.taxSum += run.document.number(VL_ISS);
        services.sum += run.document.number(VL_LIQ_IT);
    }
}

}  // namespace

void printServices(int lines, Run& run) {
    addUp(run);
    for (int i = 1; i <= lines; ++i) {
        const auto place = static_cast<std::size_t>(i - 1);
        const bool held = place < run.services.rows.size();
        if (held) {
            run.document.goToItem(run.services.rows[place]);
        }
        const Row& line = held ? serviceLine : emptyLine;
        const int column = appendFields(run.line, firstColumn, line.fields(), run);
        if (i == 4) {
            appendFields(run.line, column, besideFourth.fields(), run);
        } else if (i == 6) {
            appendFields(run.line, column, besideSixth.fields(), run);
        }
        run.send(line.advance);
    }
    const int rest = check::serviceLines - (lines > 0 ? lines : 0);
    if (rest > 0) {
        run.send(rest);
    }
}

}  // namespace tarn::notes
