#include "widgets/grid_count.h"

#include "runtime/mask.h"
#include "widgets/grid_model.h"

namespace tarn {
namespace {

constexpr NumberMask wholeMask{"###,##0"};
constexpr NumberMask amountMask{"###,##0.00"};

std::string none(const RowNoun& rows) {
    return rows.feminine ? "nenhuma" : "nenhum";
}

std::string counted(int number, std::string_view noun) {
    return formatNumber(number, wholeMask).append(" ").append(noun);
}

std::string ticksText(const GridModel& model, const RowNoun& rows) {
    const GridTally& tally = model.tally();
    std::string ticked = rows.feminine ? "marcada" : "marcado";
    if (tally.ticked == 0) {
        return none(rows) + " " + ticked;
    }
    if (tally.ticked > 1) {
        ticked += "s";
    }
    std::string text = counted(tally.ticked, ticked);
    if (model.countsAmounts()) {
        text += ", R$ " + formatNumber(static_cast<double>(tally.cents) / 100, amountMask);
    }
    return text;
}

}  // namespace

std::string countText(const GridModel& model, const RowNoun& rows) {
    const int number = model.rowCount();
    if (number == 0) {
        return std::string(rows.feminine ? "Nenhuma " : "Nenhum ").append(rows.one);
    }
    std::string text = counted(number, number == 1 ? rows.one : rows.many);
    if (model.hasCheckBox()) {
        text += ", " + ticksText(model, rows);
    }
    return text;
}

}  // namespace tarn
