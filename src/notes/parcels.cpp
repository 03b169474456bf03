#include <algorithm>

#include "notes/blocks.h"
#include "notes/fields.h"
#include "notes/run.h"

namespace tarn::notes {
namespace {

const Place& placeOf(const Parcels& block, int parcel) {
    return block.places[static_cast<std::size_t>((parcel - 1) % block.perRow)];
}

// The blanks ahead of the first parcel are sent also where the rest of a row is empty
// (decisions N18, N20).
int startRow(const Parcels& block, Run& run) {
    const int margin = block.places[0].fields().front().column - firstColumn;
    run.line.append(static_cast<std::size_t>(margin), ' ');
    return firstColumn + margin;
}

void printByRow(const Parcels& block, int count, Run& run) {
    int column = startRow(block, run);
    for (run.parcel = 1; run.parcel <= count; ++run.parcel) {
        column = appendFields(run.line, column, placeOf(block, run.parcel).fields(), run);
        if (run.parcel % block.perRow == 0) {
            run.send(block.rowEnds);
            column = startRow(block, run);
        }
    }
}

void printByParcel(const Parcels& block, int count, Run& run) {
    for (run.parcel = 1; run.parcel <= count; ++run.parcel) {
        appendFields(run.line, firstColumn, placeOf(block, run.parcel).fields(), run);
        run.send(run.parcel % block.perRow == 0 ? block.rowEnds : 0);
    }
}

}  // namespace

void printParcels(const Parcels& block, Run& run) {
    const double count = run.document.number(Source::QTDE_PARC);
    if (count >= block.limit + 1) {
        if (run.losses != nullptr) {
            run.losses->add({.kind = Loss::Kind::ParcelsOverflow,
                             .field = "QTDE_PARC",
                             .count = static_cast<int>(std::min<double>(count, 9999)),
                             .limit = block.limit});
        }
        run.line = block.message;
        return run.send(block.lineEndsAbove);
    }
    const int parcels = count >= 1 ? static_cast<int>(count) : 0;
    if (parcels > 0) {
        block.callPerParcel ? printByParcel(block, parcels, run) : printByRow(block, parcels, run);
    }
    run.send(block.lineEnds[static_cast<std::size_t>(parcels)]);
}

}  // namespace tarn::notes
