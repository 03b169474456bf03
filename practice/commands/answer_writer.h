// An answer written out as an XML document.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "practice/commands/answer.h"

namespace tarn::practice {

enum class Encoding { Windows1252, Iso8859, Utf8 };

std::optional<Encoding> encodingByName(std::string_view name);  // in small letters
std::string_view encodingName(Encoding encoding);

// The declaration, then the element, in the encoding declared. A character that
// the encoding lacks goes as a character reference, line ends and tabs within
// values too; other control characters, which no document can hold, as a blank.
std::string writeAnswer(const Element& root, Encoding encoding);

}  // namespace tarn::practice
