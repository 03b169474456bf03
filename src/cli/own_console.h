// The console of a program that may open a window instead.
#pragma once

namespace tarn::cli {

// A program of the command line that Windows started by itself, from the menu or by a double
// click, has got a console made for it alone, which would stand empty beside its window: it
// is closed. One that others use too stays. Nothing elsewhere.
void closeOwnConsole();

}  // namespace tarn::cli
