// An amount in words read back, by a way of its own.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarn::fuzz {

// In cents; nothing for words that are no amount.
std::optional<std::int64_t> readWords(std::string_view words);

}  // namespace tarn::fuzz
