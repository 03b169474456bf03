// The three forms of stationery that labels are drawn on, one routine each: it draws all
// labels of an answer in its order and tells how far it is. The last sheet is left for
// whoever ends the run.
#pragma once

#include "platform/progress.h"

namespace tarn {
class DrawnRun;
}

namespace tarn::labels {

class Labels;
struct Sender;

// Three across and ten down. A full sheet is a document and printed at once.
void printPimaco6280(DrawnRun& run, Labels& labels, const Progress& progress);

// One place on one page: each label falls on the one before.
void printA5(DrawnRun& run, Labels& labels, const Progress& progress);

// A page each, the sender below the addressee.
void printA4WithSender(DrawnRun& run, Labels& labels, const Sender& sender,
                       const Progress& progress);

}  // namespace tarn::labels
