// The fuzzers' entries over a fixed number of inputs, for builds without libFuzzer: seeds
// with some bytes changed, and bytes of no sense. A violation aborts.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

#include "tests/fuzz/fuzz_entries.h"
#include "tests/support/files.h"

namespace tarn::fuzz {

namespace {

using Bytes = std::vector<std::uint8_t>;
using Random = std::mt19937_64;

std::vector<Bytes> seedsOf(const std::string& name) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(TARN_FUZZ_SEEDS) + "/" + name)) {
        paths.push_back(entry.path());
    }
    std::sort(paths.begin(), paths.end());
    std::vector<Bytes> seeds;
    for (const auto& path : paths) {
        const std::string bytes = test::contentOf(path);
        seeds.emplace_back(bytes.begin(), bytes.end());
    }
    return seeds;
}

std::size_t below(Random& random, std::size_t count) {
    return static_cast<std::size_t>(random() % count);
}

Bytes randomBytes(Random& random, std::size_t length) {
    Bytes bytes(length);
    std::generate(bytes.begin(), bytes.end(),
                  [&random] { return static_cast<std::uint8_t>(random() & 0xFFU); });
    return bytes;
}

// A few bytes put in, taken out or changed.
Bytes changed(Random& random, Bytes bytes) {
    for (std::size_t count = 1 + below(random, 4); count > 0; --count) {
        const auto at =
            bytes.begin() + static_cast<std::ptrdiff_t>(below(random, bytes.size() + 1));
        const auto value = static_cast<std::uint8_t>(random() & 0xFFU);
        if (at == bytes.end() || below(random, 3) == 0) {
            bytes.insert(at, value);
        } else if (below(random, 2) == 0) {
            bytes.erase(at);
        } else {
            *at = value;
        }
    }
    return bytes;
}

struct Target {
    const char* name;
    void (*run)(std::span<const std::uint8_t>);
    int inputs;
    std::size_t longest;
};

void PrintTo(const Target& target, std::ostream* out) {
    *out << target.name;
}

class FuzzSmoke : public testing::TestWithParam<Target> {};

TEST_P(FuzzSmoke, TakesSeedsWithBytesChangedAndAnyBytes) {
    const Target& target = GetParam();
    const std::vector<Bytes> seeds = seedsOf(target.name);
    ASSERT_FALSE(seeds.empty());
    Random random(20090107);
    for (int i = 0; i < target.inputs; ++i) {
        target.run(changed(random, seeds[static_cast<std::size_t>(i) % seeds.size()]));
        target.run(randomBytes(random, static_cast<std::size_t>(i) % target.longest));
    }
}

INSTANTIATE_TEST_SUITE_P(All, FuzzSmoke,
                         testing::Values(Target{"answer", readAnswer, 10000, 60},
                                         Target{"note", printNotes, 2000, 900},
                                         Target{"document", printDocuments, 4000, 300},
                                         Target{"rule", checkRules, 20000, 40},
                                         Target{"paper", printPaper, 4000, 300}),
                         [](const auto& target) { return std::string(target.param.name); });

}  // namespace

}  // namespace tarn::fuzz
