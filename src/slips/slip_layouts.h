// The lines of a slip on its pre-printed form: blanks and line ends are all the form
// knows of positions. The job is open and set up, and stays open.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "common/grid_rows.h"
#include "common/raw_channel.h"
#include "slips/slip_number.h"

namespace tarn {

// ID_PES_BAN of the banks whose forms these are.
inline constexpr std::array<std::int32_t, 3> slipBanks{1016, 1084, 1095};
// What a bank's form is called: "Boleto_1016", "Boleto_1016_57" of wallet 57.
std::string slipFormName(std::int32_t bank, bool wallet57);

// A job that sets the printer up, then the slip's, which is open afterwards.
void openSlipJob(RawChannel& channel);

void printWallet57Lines(RawChannel& channel, const GridRow& document, const SlipNumber& number);
// Every other wallet.
void printSevenDigitLines(RawChannel& channel, const GridRow& document, const SlipNumber& number);

}  // namespace tarn
