// The note document: head, totals, form and item rows, with the fields of every
// layout.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "practice/commands/answer.h"
#include "practice/database/database.h"

namespace tarn::practice {

struct NoteKey {
    std::int64_t establishment = 0;
    std::string series;
    std::int64_t number = 0;
};

// Nothing for a note that doesn't exist or is cancelled.
std::optional<Element> noteDocument(Database& database, const NoteKey& key);

}  // namespace tarn::practice
