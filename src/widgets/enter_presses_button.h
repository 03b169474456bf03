// What Enter does in a dialog that has no default button.
#pragma once

class QDialog;
class QKeyEvent;

namespace tarn {

// Enter presses a button that has the focus and no other, but not when it is held down
// since a field or a box before. False for any other key, which is the dialog's own
// matter.
bool enterPressesButton(const QDialog& dialog, const QKeyEvent& key);

}  // namespace tarn
