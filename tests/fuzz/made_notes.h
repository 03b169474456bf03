// Notes made from a fuzzer's bytes.
#pragma once

#include <string>

#include "tests/fuzz/byte_source.h"

namespace tarn::fuzz {

// The plain note with some of it changed, as the server would send it.
std::string madeNote(ByteSource& source);

}  // namespace tarn::fuzz
