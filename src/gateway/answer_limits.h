// What an answer may hold, so that none takes the machine's memory or minutes to parse:
// libxml2's time grows with the square of an element's attributes, its memory is thirty
// times the bytes of the smallest elements. An answer of the largest size takes eight
// times its bytes at most.
#pragma once

#include <cstddef>
#include <string_view>

namespace tarn {

inline constexpr std::size_t mostAttributesOfElement = 1'000;
inline constexpr std::size_t mostAttributes = 1'000'000;
inline constexpr std::size_t mostNodes = 200'000;  // elements, comments, CDATA sections ...
inline constexpr std::size_t mostNames = 10'000;   // of elements and attributes, all different
inline constexpr std::size_t mostPrefixes = 100;   // declared

// Whether an element has more attributes than an element may. Sound as far as the answer is
// well-formed and in an encoding that mayBeIn() allows.
bool hasCrowdedElement(std::string_view answer);

// Whether an answer of these bytes may be in the encoding that it declares, "" for none:
// UTF-16, or one whose ASCII letters stand for themselves.
bool mayBeIn(std::string_view encoding, std::string_view answer);

}  // namespace tarn
