// The form of stationery that labels go to as raw text.
#pragma once

#include <string_view>

#include "platform/progress.h"

namespace tarn {
class RawChannel;
struct Environment;
}  // namespace tarn

namespace tarn::labels {

class Labels;

inline constexpr std::string_view labelFormOnPaper = "Etiquetas";

// All labels of an answer in its order, four across on continuous stationery: a job that
// sets the pitch, then one with all labels. Tells how far it is.
void printDotMatrix(Environment& environment, Labels& labels, const Progress& progress);
void printLabelRows(RawChannel& channel, Labels& labels, const Progress& progress);

}  // namespace tarn::labels
