// The tables of the printers' family: which commands it knows, and what its character
// generator draws for a byte.
#pragma once

#include <cstdint>
#include <optional>

#include "runtime/code_page.h"

namespace tarn::dotmatrix {

enum class Tail : std::uint8_t {
    Fixed,     // `parameters` bytes
    UntilNul,  // `parameters` bytes, then a list closed by a zero byte
    Data,      // `parameters` bytes, the last two of which tell (low, high) what follows
};

// A command that is not drawn must still take its parameters, or they would print.
struct CommandShape {
    std::uint8_t code = 0;  // the byte after ESC
    std::uint8_t parameters = 0;
    Tail tail = Tail::Fixed;
    bool drawn = false;  // false: taken and noted, without effect on the paper
};

std::optional<CommandShape> shapeOf(std::uint8_t code);

// For bytes 20-7E and A0-FF of every page, and 80-9F of pages 850 and 860, which have
// letters there. Bytes that Page1252 takes for control codes give a blank.
char16_t glyphOf(std::uint8_t byte, CodePage page);

// Bytes 80-9F of this page act as the control codes 00-1F.
bool hasUpperControls(CodePage page);

}  // namespace tarn::dotmatrix
