// What a clerk couldn't see, or not whole, of an open window.
#pragma once

#include <string>
#include <vector>

class QWidget;

namespace tarn::test {

// A line for each fault, with the names of the widgets: a text that its widget has no room
// for, a widget smaller than it must be or outside of what it stands in, two in one place,
// a grid with hardly a row. Where a whole text stands in the tool tip, it may be cut.
std::vector<std::string> faultsOf(const QWidget& window);

// Texts that are hard to tell from what they stand on: by the widgets' colours, and as drawn.
std::vector<std::string> faultsOfColours(const QWidget& window);

// The same of the window's place, with the frame and title that a window manager adds.
std::vector<std::string> faultsOfPlace(const QWidget& window);

// Room for such a frame.
inline constexpr int frameSide = 4;
inline constexpr int frameTop = 30;

}  // namespace tarn::test
