// The lines of a slip on its pre-printed form: blanks and line ends are all the form
// knows of positions. The job is open and set up, and stays open.
#pragma once

#include "common/grid_rows.h"
#include "common/raw_channel.h"
#include "slips/slip_number.h"

namespace tarn {

void printWallet57Lines(RawChannel& channel, const GridRow& document, const SlipNumber& number);
// Every other wallet.
void printSevenDigitLines(RawChannel& channel, const GridRow& document, const SlipNumber& number);

}  // namespace tarn
