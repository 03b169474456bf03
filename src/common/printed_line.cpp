#include "common/printed_line.h"

#include "runtime/text.h"

namespace tarn {

PrintedLine& PrintedLine::blanks(std::size_t count) {
    line_.append(count, ' ');
    return *this;
}

PrintedLine& PrintedLine::as(std::string_view label, int room) {
    if (channel_.watcher() != nullptr) {
        name_ = {.label = label, .room = room};
    }
    return *this;
}

void PrintedLine::place(int width) {
    if (name_) {
        const int room = name_->room > 0 ? name_->room : width;
        placed_.push_back({.column = static_cast<int>(lengthOf(line_)) + 1,
                           .width = room,
                           .label = name_->label});
        name_.reset();
    }
}

PrintedLine& PrintedLine::text(std::string_view value) {
    place(static_cast<int>(lengthOf(value)));
    appendBlankingControls(line_, value);
    return *this;
}

PrintedLine& PrintedLine::field(std::string_view value, int width) {
    place(width);
    appendField(line_, value, width, false);
    return *this;
}

PrintedLine& PrintedLine::rightField(std::string_view value, int width) {
    place(width);
    appendField(line_, value, width, true);
    return *this;
}

PrintedLine& PrintedLine::rightField(double value, const NumberMask& mask, int width) {
    return rightField(formatNumber(value, mask), width);
}

PrintedLine& PrintedLine::commands(std::string_view bytes) {
    line_ += bytes;
    return *this;
}

void PrintedLine::out(int lineEnds) {
    if (!placed_.empty()) {
        channel_.watcher()->placed(placed_);
        placed_.clear();
    }
    channel_.ImprimeRaw(1, line_, lineEnds);
    line_.clear();
}

}  // namespace tarn
