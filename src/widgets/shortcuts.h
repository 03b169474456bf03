// Keys that act without the mouse, and the tool tips that name them.
//
// They are acting keys (acting_keys.h): one press, one act. None of them acts while a box,
// another screen or an open list stands in front.
#pragma once

#include <QKeySequence>
#include <QList>
#include <functional>
#include <initializer_list>

class QPushButton;
class QWidget;

namespace tarn {

// Runs `act` when one of the keys is pressed in the window of `screen`.
void onKeys(QWidget& screen, const QList<QKeySequence>& keys, std::function<void()> act);

enum class ScreenKey {
    Refresh,  // F5
    Print,    // Ctrl+P
    MainAct,  // Ctrl+Enter
    Close,    // Ctrl+W
    Escape    // Esc: only named, its screen takes it by itself
};

// Lets the keys press the button and appends them to its tool tip. A field that is being
// typed in is left first, as by a click; the press is off if the field refuses its text.
void giveKeys(QPushButton& button, std::initializer_list<ScreenKey> keys);

}  // namespace tarn
