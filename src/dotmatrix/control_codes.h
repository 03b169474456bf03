// The bytes below the blank, and above the letters, that command the printer.
#pragma once

#include <cstdint>

namespace tarn::dotmatrix {

inline constexpr std::uint8_t nul = 0x00;
inline constexpr std::uint8_t bell = 0x07;
inline constexpr std::uint8_t backspaceByte = 0x08;
inline constexpr std::uint8_t tab = 0x09;
inline constexpr std::uint8_t lineFeed = 0x0A;
inline constexpr std::uint8_t verticalTab = 0x0B;
inline constexpr std::uint8_t formFeed = 0x0C;
inline constexpr std::uint8_t carriageReturnByte = 0x0D;
inline constexpr std::uint8_t shiftOut = 0x0E;
inline constexpr std::uint8_t shiftIn = 0x0F;
inline constexpr std::uint8_t deviceControl2 = 0x12;
inline constexpr std::uint8_t deviceControl4 = 0x14;
inline constexpr std::uint8_t escape = 0x1B;
inline constexpr std::uint8_t deleteByte = 0x7F;

}  // namespace tarn::dotmatrix
