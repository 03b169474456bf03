// Strokes and clicks with a time of their own, as the window system stamps them.
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWidget>

namespace tarn::test {

struct Mark {
    bool repeat = false;  // the window system's mark of a held key
};

inline void strokeEvent(QEvent::Type type, QWidget& widget, int key, quint64 at,
                        Qt::KeyboardModifiers modifiers, bool marked) {
    const QString text =
        key < 0x80 && modifiers == Qt::NoModifier ? QString(QChar(key)).toLower() : QString();
    QKeyEvent event(type, key, modifiers, text, marked);
    event.setTimestamp(at);
    QCoreApplication::sendEvent(&widget, &event);
}

inline void pressKey(QWidget& widget, int key, quint64 at, Mark mark = {},
                     Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    strokeEvent(QEvent::KeyPress, widget, key, at, modifiers, mark.repeat);
}

inline void releaseKey(QWidget& widget, int key, quint64 at, Mark mark = {},
                       Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    strokeEvent(QEvent::KeyRelease, widget, key, at, modifiers, mark.repeat);
}

inline void tapKey(QWidget& widget, int key, quint64 at) {
    pressKey(widget, key, at);
    releaseKey(widget, key, at + 20);
}

inline void mouseEvent(QEvent::Type type, QWidget& widget, QPoint where, quint64 at) {
    const bool up = type == QEvent::MouseButtonRelease;
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, where, widget.mapToGlobal(where), button,
                      up || type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    event.setTimestamp(at);
    QCoreApplication::sendEvent(&widget, &event);
}

// One of several clicks at the same place: the window system makes each even one a double
// click.
inline void clickAt(QWidget& widget, QPoint where, quint64 at, bool isDouble = false) {
    mouseEvent(isDouble ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, widget, where,
               at);
    mouseEvent(QEvent::MouseButtonRelease, widget, where, at + 10);
}

}  // namespace tarn::test
