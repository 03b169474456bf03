// The blocks of a form that are more than a row. Each sends its own calls.
#pragma once

#include "notes/layout.h"

namespace tarn::notes {

struct Run;

void printParcels(const Parcels& block, Run& run);
void printItems(const Items& block, Run& run);
// The service lines below the products and the empty rest of their six lines;
// `lines` is how many the form has.
void printServices(int lines, Run& run);
void printBand(const Band& band, Run& run);
void printCredit(const Credit& credit, Run& run);

}  // namespace tarn::notes
