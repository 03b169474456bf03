// Which events are input, and what each kind of them asks of who holds it back.
#pragma once

#include <QEvent>

class QObject;

namespace tarn {

// What a user does to a window with keys, mouse, pen or touch, its close button included.
bool isInput(QEvent::Type type);

bool isMouse(QEvent::Type type);

// Of what comes in while something held for the same window is still to be typed, these
// queue up; the rest has no order to keep.
bool keepsOrder(QEvent::Type type);

// For an event that goes no further: a close reads as refused, a shortcut as taken.
void settle(QEvent* event);

// Of a mouse button's release: in this widget it does nothing but end a scroll bar's drag or
// a selection.
bool onlyEndsDrag(const QObject* receiver);

}  // namespace tarn
