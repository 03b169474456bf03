// What the user reads when the page printer fails.
#pragma once

namespace tarn {

struct Environment;
struct PrinterFailure;

void mostraFalha(Environment& ambiente, const PrinterFailure& falha);

}  // namespace tarn
