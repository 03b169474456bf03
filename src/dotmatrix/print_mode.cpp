#include "dotmatrix/print_mode.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::uint16_t kPica = kUnitsPerInch / 10;
constexpr std::uint16_t kElite = kUnitsPerInch / 12;
constexpr std::uint16_t kMicron = kUnitsPerInch / 15;
constexpr std::uint16_t kCondensedPica = kPica * 7 / 12;  // 120 characters in 7 inches
constexpr std::uint16_t kCondensedElite = kUnitsPerInch / 20;

}  // namespace

std::uint16_t PrintMode::cellWidth() const {
    std::uint16_t width = kPica;
    if (micron) {
        width = kMicron;
    } else if (elite) {
        width = condensed && !eliteOverridesCondensed ? kCondensedElite : kElite;
    } else if (condensed) {
        width = kCondensedPica;
    }
    return wide || wideLine ? static_cast<std::uint16_t>(width * 2) : width;
}

void PrintMode::setStyle(Style bit, bool on) {
    style = static_cast<std::uint8_t>(on ? style | bit : style & ~bit);
}

void PrintMode::select(std::uint8_t bits) {
    elite = (bits & 1U) != 0;
    micron = false;
    condensed = (bits & 4U) != 0;
    setStyle(kEmphasised, (bits & 8U) != 0);
    setStyle(kDoubleStrike, (bits & 16U) != 0);
    wide = (bits & 32U) != 0;
    wideLine = false;
    setStyle(kItalic, (bits & 64U) != 0);
    setStyle(kUnderlined, (bits & 128U) != 0);
}

}  // namespace tarn::dotmatrix
