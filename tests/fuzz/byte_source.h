// Choices made from a fuzzer's bytes; when they run out, every choice is the
// first one, so that a short input gives a plain document.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace tarn::fuzz {

class ByteSource {
public:
    explicit ByteSource(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    bool empty() const { return bytes_.empty(); }
    std::uint8_t byte() {
        if (bytes_.empty()) {
            return 0;
        }
        const std::uint8_t value = bytes_.front();
        bytes_ = bytes_.subspan(1);
        return value;
    }
    std::size_t below(std::size_t count) { return byte() % count; }
    bool oneIn(std::size_t count) { return byte() % count == count - 1; }
    template <std::size_t size>
    std::string_view of(const std::array<std::string_view, size>& pool) {
        return pool[below(size)];
    }
    std::string_view rest() {
        const std::string_view all(reinterpret_cast<const char*>(bytes_.data()), bytes_.size());
        bytes_ = {};
        return all;
    }

private:
    std::span<const std::uint8_t> bytes_;
};

}  // namespace tarn::fuzz
