#include "common/printed_line.h"

#include "runtime/text.h"

namespace tarn {

PrintedLine& PrintedLine::blanks(std::size_t count) {
    line_.append(count, ' ');
    return *this;
}

PrintedLine& PrintedLine::text(std::string_view value) {
    appendBlankingControls(line_, value);
    return *this;
}

PrintedLine& PrintedLine::field(std::string_view value, int width) {
    appendField(line_, value, width, false);
    return *this;
}

PrintedLine& PrintedLine::rightField(std::string_view value, int width) {
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
    channel_.ImprimeRaw(1, line_, lineEnds);
    line_.clear();
}

}  // namespace tarn
