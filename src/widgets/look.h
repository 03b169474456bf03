// The look of the program: one style and one accent colour for every screen.
#pragma once

class QApplication;
class QIcon;
class QPushButton;
class QString;

namespace tarn {

void applyLook(QApplication& program);

// A picture drawn for the program, sharp at any scale: ":/desk/<nome>.svg", or where that
// can't be read as PNG in many sizes. Drawn when first shown.
QIcon picture(const QString& name);
// The same on a button that also has a text, and larger on one that has none.
void setIcon(QPushButton& button, const char* name);
void setLargeIcon(QPushButton& button, const char* name);

}  // namespace tarn
