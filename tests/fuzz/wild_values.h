// Values that a server shouldn't send, put where it sends others while a row is written.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tests/fuzz/byte_source.h"
#include "tests/notes/plain_note.h"

namespace tarn::fuzz {

std::string_view wildNumber(ByteSource& source);
std::string wildText(ByteSource& source);

// An attribute, and what it is in XML: a run writes hundreds, nearly all of them unchanged.
struct Field {
    std::string name;
    std::string value;
    std::string written;  // with a blank before it

    Field(std::string_view called, std::string_view holding);
};
using Row = std::vector<Field>;

Row rowOf(const test::Attributes& attributes);

// One attribute in `rarity` loses its value, its name's case or itself; most stay, so that
// most documents reach their foot.
void appendChanged(std::string& xml, const Field& field, ByteSource& source, std::size_t rarity);
// <name .../> of such attributes.
void appendChanged(std::string& xml, std::string_view name, const Row& row, ByteSource& source,
                   std::size_t rarity);

}  // namespace tarn::fuzz
