// Values that a server shouldn't send, put where it sends others.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "tests/fuzz/byte_source.h"
#include "tests/notes/plain_note.h"

namespace tarn::fuzz {

std::string_view wildNumber(ByteSource& source);
std::string wildText(ByteSource& source);

// One attribute in `rarity` loses its value, its name's case or itself; most stay, so that
// most documents reach their foot.
void mutate(test::Attributes& row, ByteSource& source, std::size_t rarity);

}  // namespace tarn::fuzz
