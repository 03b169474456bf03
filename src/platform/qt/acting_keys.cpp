#include "platform/qt/acting_keys.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextEdit>
#include <QWindow>
#include <algorithm>

namespace tarn {
namespace {

constexpr char enterMovesOn[] = "enterMovesOn";

// A scroll area gets its keys through its viewport's parent.
bool isTextOfLines(const QWidget* widget) {
    if (const auto* plain = qobject_cast<const QPlainTextEdit*>(widget)) {
        return !plain->isReadOnly();
    }
    const auto* rich = qobject_cast<const QTextEdit*>(widget);
    return rich != nullptr && !rich->isReadOnly();
}

bool isText(const QWidget* widget) {
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
        return list->isEditable();
    }
    return qobject_cast<const QLineEdit*>(widget) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(widget) != nullptr || isTextOfLines(widget);
}

bool movesOrErases(int key) {
    switch (key) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
        case Qt::Key_Backspace:
        case Qt::Key_Delete:
        case Qt::Key_Insert:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return true;
        default:
            return false;
    }
}

// With Ctrl: the commands that a field of text has of its own.
bool commandsText(int key) {
    switch (key) {
        case Qt::Key_A:
        case Qt::Key_C:
        case Qt::Key_V:
        case Qt::Key_X:
        case Qt::Key_Y:
        case Qt::Key_Z:
            return true;
        default:
            return movesOrErases(key);
    }
}

bool isFunctionKey(int key) {
    return (key >= Qt::Key_F1 && key <= Qt::Key_F35) || key == Qt::Key_Menu;
}

// AltGr arrives as Ctrl with Alt on some systems, and brings a character.
bool isCommand(const QKeyEvent& stroke) {
    const bool control = stroke.modifiers().testFlag(Qt::ControlModifier);
    const bool alt = stroke.modifiers().testFlag(Qt::AltModifier);
    if (control && alt) {
        return stroke.text().isEmpty() || !stroke.text().front().isPrint();
    }
    return alt || stroke.modifiers().testFlag(Qt::MetaModifier) ||
           (control && !commandsText(stroke.key()));
}

}  // namespace

bool isEnter(const QKeyEvent& stroke) {
    return stroke.key() == Qt::Key_Return || stroke.key() == Qt::Key_Enter;
}

bool isModifierKey(const QKeyEvent& stroke) {
    switch (stroke.key()) {
        case Qt::Key_Shift:
        case Qt::Key_Control:
        case Qt::Key_Alt:
        case Qt::Key_AltGr:
        case Qt::Key_Meta:
        case Qt::Key_Super_L:
        case Qt::Key_Super_R:
        case Qt::Key_CapsLock:
        case Qt::Key_NumLock:
        case Qt::Key_ScrollLock:
            return true;
        default:
            return false;
    }
}

bool acts(const QKeyEvent& stroke, const QWidget* target) {
    if (isModifierKey(stroke)) {
        return false;
    }
    if (qobject_cast<const QMenu*>(target) != nullptr ||
        qobject_cast<const QMenuBar*>(target) != nullptr) {
        return !movesOrErases(stroke.key());
    }
    if (isEnter(stroke)) {
        return !isTextOfLines(target) || stroke.modifiers().testFlag(Qt::ControlModifier);
    }
    if (stroke.key() == Qt::Key_Space) {
        return !isText(target);
    }
    return stroke.key() == Qt::Key_Escape || isFunctionKey(stroke.key()) || isCommand(stroke);
}

void letEnterMoveOn(QWidget& field) {
    field.setProperty(enterMovesOn, true);
}

bool edits(const QKeyEvent& stroke, const QWidget* target) {
    if (isEnter(stroke) && !stroke.modifiers().testFlag(Qt::ControlModifier) && target != nullptr &&
        target->property(enterMovesOn).toBool()) {
        return true;
    }
    return !isModifierKey(stroke) && !acts(stroke, target);
}

QWidget* topLevelOf(QObject* receiver) {
    if (auto* widget = qobject_cast<QWidget*>(receiver)) {
        return widget->window();
    }
    const auto* window = qobject_cast<QWindow*>(receiver);
    if (window == nullptr) {
        return nullptr;
    }
    const QWidgetList all = QApplication::topLevelWidgets();
    const auto found = std::find_if(all.begin(), all.end(), [window](const QWidget* widget) {
        return widget->windowHandle() == window;
    });
    return found == all.end() ? nullptr : *found;
}

QWidget* keyTarget(QObject* receiver) {
    if (auto* widget = qobject_cast<QWidget*>(receiver)) {
        return widget;
    }
    QWidget* window = QApplication::activePopupWidget();
    if (window == nullptr) {
        window = topLevelOf(receiver);
    }
    return window != nullptr && window->focusWidget() != nullptr ? window->focusWidget() : window;
}

}  // namespace tarn
