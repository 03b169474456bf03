// A document of each kind that is no note, as its own routine prints it: who draws its form, or
// prints a ruler on it, watches where its fields fall.
#pragma once

#include <cstdint>
#include <string_view>

namespace tarn {
class RawChannel;
}

namespace tarn::dotmatrix {

void printSampleOfWallet57(RawChannel& channel);
void printSampleOfOtherWallets(RawChannel& channel);
// The longest of its kind: the amount in words takes both of its lines.
void printSampleCheque(RawChannel& channel, std::int16_t bank);
// Of one item.
void printSamplePriceSheet(RawChannel& channel);
// Two rows of labels.
void printSampleLabels(RawChannel& channel);

}  // namespace tarn::dotmatrix
