// The colours of the program, whatever those of the desktop are.
#pragma once

#include <QPalette>

namespace tarn {

QPalette deskPalette();

// Takes the place of every colour that the desktop sets, also of those that it keeps for
// one kind of widget and for tool tips: its dark and light ones never meet the program's.
void replacePalettes();

}  // namespace tarn
