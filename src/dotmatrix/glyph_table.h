// What a printer's character generator draws for a byte.
#pragma once

#include <cstdint>

#include "runtime/code_page.h"

namespace tarn::dotmatrix {

// For bytes 20-7E and A0-FF of every page, and 80-9F of pages 850 and 860, which have
// letters there. Bytes that Page1252 takes for control codes give a blank.
char16_t glyphOf(std::uint8_t byte, CodePage page);

// Bytes 80-9F of this page act as the control codes 00-1F.
bool hasUpperControls(CodePage page);

}  // namespace tarn::dotmatrix
