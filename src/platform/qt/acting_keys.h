// Which key strokes act and which edit. A stroke that acts presses a button, closes a
// window, opens a list or runs a shortcut; one that edits changes a text or moves in it,
// in a list or from field to field.
#pragma once

class QKeyEvent;
class QObject;
class QWidget;

namespace tarn {

bool isEnter(const QKeyEvent& stroke);

// Shift, Ctrl, Alt and their like by themselves.
bool isModifierKey(const QKeyEvent& stroke);

// Enter (but without Ctrl in a text of several lines), Esc, Space (but in a text),
// function keys, Alt with a key, Ctrl with a key that is none of a text's own commands,
// and in a menu all but the arrows. `target` is the widget that gets the stroke; may be null.
bool acts(const QKeyEvent& stroke, const QWidget* target);

// From now on Enter in this field is its Tab stroke, which edits as far as typing ahead is
// concerned.
void letEnterMoveOn(QWidget& field);

// What may be held and typed later: what doesn't act, and Enter where it moves on.
bool edits(const QKeyEvent& stroke, const QWidget* target);

// The widget that will get what is typed, when the event is just on its way to
// `receiver`: of a native window the open list or menu, else what has the focus.
QWidget* keyTarget(QObject* receiver);

// The top-level widget of a native window or of a widget; null of anything else.
QWidget* topLevelOf(QObject* receiver);

}  // namespace tarn
