// One program for each entry.
#include <cstddef>
#include <cstdint>

#include "tests/fuzz/fuzz_entries.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::fuzz::TARN_FUZZ_ENTRY({data, size});
    return 0;
}
