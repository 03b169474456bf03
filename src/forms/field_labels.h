// The words that a form prints beside a field's box.
#pragma once

#include <string_view>

#include "notes/source.h"

namespace tarn::dotmatrix {

// UTF-8; empty for a field whose box needs no words.
std::string_view labelOf(notes::Source source);

}  // namespace tarn::dotmatrix
