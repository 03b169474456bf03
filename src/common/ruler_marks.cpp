#include "common/ruler_marks.h"

#include <algorithm>

namespace tarn {

std::string boxCorners(int line, int column, int width) {
    if (width == 1) {
        return "|";
    }
    const auto room = static_cast<std::size_t>(width - 2);
    std::string place = std::to_string(line) + "/" + std::to_string(column);
    if (place.size() > room) {
        place = std::to_string(line);
    }
    if (place.size() > room) {
        place.clear();
    }
    place.resize(room, ' ');
    return "[" + place + "]";
}

std::string rulerLine(int line, int reach) {
    std::string text;
    for (int column = 2; column <= reach; ++column) {
        const char tens = static_cast<char>('0' + column / 10 % 10);
        text += column % 10 == 0 ? tens : column % 5 == 0 ? '.' : ' ';
    }
    const std::string number = std::to_string(line);
    return text.replace(0, std::min(number.size(), text.size()), number);
}

}  // namespace tarn
