// One line of the service block, and the service tax boxes that a form has beside its
// fourth and sixth line.
#pragma once

#include "notes/form_check.h"
#include "notes/form_rows.h"

namespace tarn::notes {

inline constexpr Row serviceLine =
    row(1, left(Source::CD_PRO, 2, 12), left(Source::DESCRICAO, 14, 75),
        right(Source::VL_LIQ_IT, 89, 15));
inline constexpr Row emptyServiceLine = row(1, blank(2, 12), blank(14, 75), blank(89, 15));
inline constexpr Row besideFourth =
    row(1, right(Source::LastServiceRate, 104, 5), right(Source::ServiceTaxSum, 109, 15));
inline constexpr Row besideSixth = row(1, right(Source::ServiceSum, 104, 15));
static_assert(check::fields(serviceLine.fields()) == Flaw::None);
static_assert(check::fields(besideFourth.fields(), 104) == Flaw::None);

}  // namespace tarn::notes
