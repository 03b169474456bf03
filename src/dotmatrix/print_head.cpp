#include "dotmatrix/print_head.h"

#include <algorithm>
#include <utility>

namespace tarn::dotmatrix {

namespace {

constexpr int tabColumns = 8;
// Backspaces of another pitch can bring the head back without giving back the columns.
constexpr PaperUnits maxColumn = 4096;

}  // namespace

void PrintHead::print(char16_t character) {
    const std::uint16_t width = state_.mode.cellWidth();
    if (state_.x + width > dialect_.carriageWidth) {
        note(NoticeKind::PastRightMargin, {});
        newLine();
        // The end of the line may have ended double width, so the cell is measured anew.
        print(character);
        return;
    }
    const bool isBlank = character == u' ' || character == u'\u00A0';
    if (!isBlank || (state_.mode.style & underlined) != 0) {
        Cell cell;
        cell.x = static_cast<std::int32_t>(state_.x);
        cell.width = width;
        cell.column = state_.column;
        cell.character = isBlank ? u' ' : character;
        cell.style = state_.mode.style;
        paper_.print(cell, state_.columnsBefore);
    }
    state_.x += width;
    passColumns(1);
}

void PrintHead::passColumns(PaperUnits count) {
    state_.column =
        static_cast<std::uint16_t>(std::min<PaperUnits>(state_.column + count, maxColumn));
}

void PrintHead::newLine() {
    paper_.feedRow(state_.lineSpacing);
    carriageReturn();
    state_.mode.wideLine = false;
}

void PrintHead::carriageReturn() {
    state_.x = 0;
    state_.column = 1;
    state_.columnsBefore = 0;
}

void PrintHead::horizontalTab() {
    const PaperUnits width = state_.mode.cellWidth();
    const PaperUnits stride = tabColumns * width;
    const PaperUnits stop = (state_.x / stride + 1) * stride;
    if (stop > dialect_.carriageWidth) {
        return;  // no stop is left in this line
    }
    passColumns((stop - state_.x + width - 1) / width);
    state_.x = stop;
}

void PrintHead::backspace() {
    if (state_.column == 1) {
        return;
    }
    state_.x = std::max<PaperUnits>(state_.x - state_.mode.cellWidth(), 0);
    --state_.column;
}

void PrintHead::note(NoticeKind kind, std::string bytes) {
    notices_.add({kind, paper_.currentJob(), paper_.jobLine(),
                  static_cast<std::size_t>(state_.column - state_.columnsBefore),
                  std::move(bytes)});
}

}  // namespace tarn::dotmatrix
