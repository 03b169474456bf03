// What the user reads when the page printer fails.
#pragma once

namespace tarn {

struct Environment;
struct PrinterFailure;

void showFailure(Environment& environment, const PrinterFailure& failure);

}  // namespace tarn
