// What lets only certain characters into a QLineEdit, whichever way they come: typed with any
// keys held, composed, pasted from the keyboard, the menu or the middle button, dropped.
#pragma once

#include <QClipboard>
#include <QObject>

#include "common/field_rules.h"

class QContextMenuEvent;
class QDropEvent;
class QInputMethodEvent;
class QKeyEvent;
class QLineEdit;
class QMouseEvent;

namespace tarn {

class Machine;

// Enter is left to others. What is refused beeps, and so does what the field has no room for.
class CharacterFilter : public QObject {
    Q_OBJECT

public:
    CharacterFilter(QLineEdit& edit, KeyFilter filter, Machine& machine);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString admitted(const QString& typed) const;
    bool typed(const QKeyEvent& key);
    bool composed(const QInputMethodEvent& input);
    void paste(QClipboard::Mode from);
    bool pastedByMouse(const QMouseEvent& release);
    bool dropped(QDropEvent& drop);
    void showMenu(const QContextMenuEvent& wish);

    QLineEdit& edit_;
    KeyFilter filter_;
    Machine& machine_;
};

}  // namespace tarn
