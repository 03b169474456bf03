// Numbers drawn by seed, the same on every machine.
#pragma once

#include <cstdint>
#include <random>
#include <span>

namespace tarn::practice {

class Dice {
public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    int below(int count) { return static_cast<int>(engine_() % static_cast<std::uint64_t>(count)); }
    int between(int first, int last) { return first + below(last - first + 1); }

    template <class T>
    const T& oneOf(std::span<const T> rows) {
        return rows[static_cast<std::size_t>(below(static_cast<int>(rows.size())))];
    }

private:
    std::mt19937_64 engine_;
};

}  // namespace tarn::practice
