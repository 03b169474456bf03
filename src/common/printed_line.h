// A line for a dot-matrix printer, built piece by piece. Nothing of it goes out before
// out(). A value's control characters print as blanks.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "common/raw_channel.h"
#include "runtime/mask.h"

namespace tarn {

class PrintedLine {
public:
    explicit PrintedLine(RawChannel& channel) : channel_(channel) {}

    // What the form calls the piece that comes next, and how much room it has there where the
    // piece has no width of its own. An empty name: it goes on with the one above.
    PrintedLine& as(std::string_view label, int room = 0);

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
    // Keeps where the piece in hand begins, if anyone watches.
    void place(int width);

    struct Name {
        std::string_view label;
        int room = 0;
    };

    RawChannel& channel_;
    std::string line_;
    std::optional<Name> name_;  // of the piece that comes next
    std::vector<PlacedField> placed_;
};

}  // namespace tarn
