#include "dotmatrix/dialect.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::uint16_t pica = unitsPerInch / 10;
constexpr std::uint16_t eliteWidth = unitsPerInch / 12;
constexpr std::uint16_t micronWidth = unitsPerInch / 15;
constexpr std::uint16_t condensedPica = pica * 7 / 12;  // 120 characters in 7 inches
constexpr std::uint16_t condensedElite = unitsPerInch / 20;

}  // namespace

std::uint16_t PrintMode::cellWidth() const {
    std::uint16_t width = pica;
    if (micron) {
        width = micronWidth;
    } else if (elite) {
        width = condensed && !eliteOverridesCondensed ? condensedElite : eliteWidth;
    } else if (condensed) {
        width = condensedPica;
    }
    return wide || wideLine ? static_cast<std::uint16_t>(width * 2) : width;
}

void PrintMode::setStyle(Style bit, bool on) {
    style = static_cast<Style>(on ? style | bit : style & ~bit);
}

void PrintMode::select(std::uint8_t bits) {
    elite = (bits & 1U) != 0;
    micron = false;
    condensed = (bits & 4U) != 0;
    setStyle(emphasised, (bits & 8U) != 0);
    setStyle(doubleStrike, (bits & 16U) != 0);
    wide = (bits & 32U) != 0;
    wideLine = false;
    setStyle(italicShear, (bits & 64U) != 0);
    setStyle(underlined, (bits & 128U) != 0);
}

}  // namespace tarn::dotmatrix
