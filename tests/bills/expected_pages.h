// What a page must draw, written down point by point as the layout gives them.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace tarn::test {

using Operations = std::vector<std::string>;

inline std::string point(double x, double y) {
    char text[64];
    std::snprintf(text, sizeof text, "%.3f\t%.3f", x, y);
    return text;
}
// A text lands half a centimetre left of and above the layout's point.
inline std::string letters(double x, double y, const char* font, int size, bool bold,
                           const std::string& text) {
    return "text\t" + point(x - 0.5, y - 0.5) + "\t" + font + "\t" + std::to_string(size) +
           (bold ? "\t1\t" : "\t0\t") + text;
}
inline std::string arial(double x, double y, int size, const std::string& text) {
    return letters(x, y, "Arial", size, true, text);
}
inline std::string thin(double x, double y, int size, const std::string& text) {
    return letters(x, y, "Arial", size, false, text);
}
inline std::string courier(double x, double y, int size, const std::string& text) {
    return letters(x, y, "Courier New", size, true, text);
}
inline std::string ruledLine(double x1, double y1, double x2, double y2, int width) {
    return "line\t" + point(x1, y1) + "\t" + point(x2, y2) + "\t" + std::to_string(width);
}
inline std::string picture(double x, double y, const std::string& name) {
    return "picture\t" + point(x, y) + "\t" + name;
}

}  // namespace tarn::test
