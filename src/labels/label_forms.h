// The four forms of stationery that labels are printed on, one routine each: it prints
// all labels of an answer in its order and tells how far it is.
#pragma once

#include "platform/progress.h"

namespace tarn {
struct Environment;
}

namespace tarn::labels {

class Labels;
struct Sender;

// Drawn, three across and ten down. A full page is printed at once; the last, partly
// filled one is left for the end of the run.
void printPimaco6280(Environment& environment, Labels& labels, const Progress& progress);

// Raw text, four across on continuous stationery: a job that sets the pitch, then one
// with all labels.
void printDotMatrix(Environment& environment, Labels& labels, const Progress& progress);

// Drawn, one place on one page: each label falls on the one before.
void printA5(Environment& environment, Labels& labels, const Progress& progress);

// Drawn, a page each, the sender below the addressee.
void printA4WithSender(Environment& environment, Labels& labels, const Sender& sender,
                       const Progress& progress);

}  // namespace tarn::labels
