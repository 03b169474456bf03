// Which commands the printers of the family know, and how many bytes follow them. A
// command that is not drawn must still take its parameters, or they would print.
#pragma once

#include <cstdint>
#include <optional>

namespace tarn::dotmatrix {

enum class Tail : std::uint8_t {
    Fixed,     // `parameters` bytes
    UntilNul,  // `parameters` bytes, then a list closed by a zero byte
    Data,      // `parameters` bytes, the last two of which tell (low, high) what follows
};

struct CommandShape {
    std::uint8_t code = 0;  // the byte after ESC
    std::uint8_t parameters = 0;
    Tail tail = Tail::Fixed;
    bool drawn = false;  // false: taken and noted, without effect on the paper
};

std::optional<CommandShape> shapeOf(std::uint8_t code);

}  // namespace tarn::dotmatrix
