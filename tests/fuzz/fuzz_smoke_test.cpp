// The fuzzers' entries over a fixed number of seeded inputs, for builds without
// libFuzzer. A violation aborts.

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "tests/fuzz/fuzz_entries.h"

namespace tarn::fuzz {

namespace {

std::vector<std::uint8_t> seededBytes(std::mt19937_64& random, std::size_t length) {
    std::vector<std::uint8_t> bytes(length);
    for (std::uint8_t& byte : bytes) {
        byte = static_cast<std::uint8_t>(random() & 0xFFU);
    }
    return bytes;
}

TEST(FuzzSmoke, Notes) {
    std::mt19937_64 random(20090107);
    for (int i = 0; i < TARN_SMOKE_NOTES; ++i) {
        printNotes(seededBytes(random, static_cast<std::size_t>(i) % 900));
    }
}

TEST(FuzzSmoke, Answers) {
    std::mt19937_64 random(20120315);
    for (int i = 0; i < TARN_SMOKE_ANSWERS; ++i) {
        readAnswer(seededBytes(random, static_cast<std::size_t>(i) % 60));
    }
}

}  // namespace

}  // namespace tarn::fuzz
