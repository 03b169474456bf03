// What the views of paper and of loose sheets have in common.
#pragma once

#include <QColor>
#include <chrono>

namespace tarn::dotmatrix {

inline constexpr double screenDots = 96;  // an inch at zoom 1
inline constexpr QRgb deskColour = qRgb(203, 209, 209);
// A reader hears of the place where a view has rested so long.
inline constexpr std::chrono::milliseconds untilReadOut(150);

}  // namespace tarn::dotmatrix
