#include <cstddef>
#include <cstdint>

#include "tests/fuzz/fuzz_entries.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tarn::fuzz::readAnswer({data, size});
    return 0;
}
