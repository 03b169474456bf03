// Which form a note goes on: the company and the establishment of the logon decide.
#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "notes/layout.h"

namespace tarn {

// The two screens run ladders that differ in two rungs.
enum class Ladder { Issuing, Reprint };

struct Rung {
    std::optional<Ladder> only{};  // of that screen's ladder; else of both
    std::optional<std::int32_t> company{};
    std::optional<std::int32_t> establishment{};
    const notes::Layout* layout = nullptr;  // null: nothing is printed, and nothing is said
};

// From top to bottom; the first one that fits decides, the last one fits all.
std::span<const Rung> rungs();

// The layout, or null where nothing is printed.
const notes::Layout* layoutFor(Ladder ladder, std::int32_t company, std::int32_t establishment);

}  // namespace tarn
