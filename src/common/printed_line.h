// A line for a dot-matrix printer, built piece by piece. Nothing of it goes out before
// out(). A value's control characters print as blanks.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "common/raw_channel.h"
#include "runtime/mask.h"

namespace tarn {

class PrintedLine {
public:
    explicit PrintedLine(RawChannel& channel) : channel_(channel) {}

    PrintedLine& blanks(std::size_t count);
    PrintedLine& text(std::string_view value);
    // Cut or filled up with blanks to so many characters.
    PrintedLine& field(std::string_view value, int width);
    PrintedLine& rightField(std::string_view value, int width);
    PrintedLine& rightField(double value, const NumberMask& mask, int width);
    // Bytes that the printer obeys.
    PrintedLine& commands(std::string_view bytes);

    // Sends the line from column 1 on and so many line ends; an empty line is the blank of
    // its column alone.
    void out(int lineEnds = 1);

private:
    RawChannel& channel_;
    std::string line_;
};

}  // namespace tarn
