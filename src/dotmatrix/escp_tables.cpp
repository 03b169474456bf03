#include "dotmatrix/escp_tables.h"

#include <algorithm>
#include <array>

namespace tarn::dotmatrix {

namespace {

constexpr CommandShape drawn(char code, std::uint8_t parameters = 0) {
    return {static_cast<std::uint8_t>(code), parameters, Tail::Fixed, true};
}

constexpr CommandShape taken(char code, std::uint8_t parameters = 0, Tail tail = Tail::Fixed) {
    return {static_cast<std::uint8_t>(code), parameters, tail, false};
}

constexpr std::array shapes{
    // Pitch and strike.
    drawn('\x0E'), drawn('\x0F'), drawn('M'), drawn('P'), drawn('g'), drawn('E'), drawn('F'),
    drawn('G'), drawn('H'), drawn('4'), drawn('5'), drawn('W', 1), drawn('-', 1), drawn('!', 1),
    // Feeds and forms.
    drawn('0'), drawn('1'), drawn('2'), drawn('A', 1), drawn('3', 1), drawn('J', 1), drawn('C', 1),
    drawn('@'),
    // Most significant bit control, character tables, paper sensor, typewriter modes.
    taken('#'), taken('='), taken('>'), taken('6'), taken('7'), taken('8'), taken('9'), taken('<'),
    taken('O'), taken('T'), taken('t', 1), taken('R', 1), taken('I', 1), taken('%', 1),
    taken('U', 1), taken('i', 1), taken('s', 1), taken('\x19', 1),
    // Looks.
    taken('S', 1), taken('w', 1), taken('p', 1), taken('x', 1), taken('k', 1), taken('q', 1),
    taken('r', 1), taken('a', 1), taken(' ', 1), taken('X', 3),
    // Margins, tabs, positions.
    taken('l', 1), taken('Q', 1), taken('N', 1), taken('j', 1), taken('/', 1), taken('e', 2),
    taken('f', 2), taken('$', 2), taken('\\', 2), taken('D', 0, Tail::UntilNul),
    taken('B', 0, Tail::UntilNul), taken('b', 1, Tail::UntilNul),
    // Graphics and the extended commands that tell their own length.
    taken('K', 2, Tail::Data), taken('L', 2, Tail::Data), taken('Y', 2, Tail::Data),
    taken('Z', 2, Tail::Data), taken('*', 3, Tail::Data), taken('^', 3, Tail::Data), taken('?', 2),
    taken('(', 3, Tail::Data), taken(':', 3)};

}  // namespace

std::optional<CommandShape> shapeOf(std::uint8_t code) {
    const auto* shape = std::find_if(shapes.begin(), shapes.end(),
                                     [code](const CommandShape& s) { return s.code == code; });
    if (shape == shapes.end()) {
        return std::nullopt;
    }
    return *shape;
}

bool hasUpperControls(CodePage page) {
    return page == CodePage::Page1252;
}

char16_t glyphOf(std::uint8_t byte, CodePage page) {
    const bool control =
        byte < 0x20 || byte == 0x7F || (hasUpperControls(page) && byte >= 0x80 && byte < 0xA0);
    return control ? u' ' : characterOf(byte, page);
}

}  // namespace tarn::dotmatrix
