// The pen that prints: fields become characters on the line, each end of a call a call
// of the channel.
#pragma once

#include <span>
#include <string_view>

#include "notes/fields.h"
#include "notes/run.h"
#include "notes/walk.h"

namespace tarn::notes {

// Number of the note's parcels: 0 and up, `limit` + 1 for more than `limit`, which is
// noted as a loss.
int parcelCount(int limit, Run& run);

class PrintPen {
public:
    explicit PrintPen(Run& run) : run_(run) {}

    void setUp(std::string_view bytes);
    void control(std::string_view bytes);
    void margin(int column);
    void fields(std::span<const Field> fields) {
        column_ = appendFields(run_.line, column_, fields, run_);
    }
    void end(int lineEnds) {
        run_.send(lineEnds);
        column_ = firstColumn;
    }

    int parcels(const Parcels& block) { return parcelCount(block.limit, run_); }
    void tooMany(const Parcels& block);
    void parcel(int number) { run_.parcel = number; }
    int belowParcels(const Parcels& block, int count) const {
        return block.lineEnds[static_cast<std::size_t>(count)];
    }

    void items(const Items& block);
    void controlBelowItems(std::string_view bytes) { control(bytes); }
    int emptyItemLines(const Items& block) const;

    int services();
    bool service(int line);

    bool creditToTake() { return run_.document.number(Source::VL_IMPOSTO_CREDITAR) > 0; }
    void band(const Band& band);

private:
    Run& run_;
    int column_ = firstColumn;  // that the call in hand has reached
    int mostItems_ = 0;
    int itemsPrinted_ = 0;
    int serviceLines_ = 0;
};
static_assert(Pen<PrintPen>);

}  // namespace tarn::notes
