#include "widgets/character_filter.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <algorithm>

#include "platform/machine.h"

namespace tarn {
namespace {

// Keys that are no character of a text, whatever Qt writes into theirs.
bool isCharacter(const QKeyEvent& key) {
    switch (key.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Backspace:
        case Qt::Key_Delete:
        case Qt::Key_Escape:
        case Qt::Key_Tab:
        case Qt::Key_Backtab:
            return false;
        default:
            return !key.text().isEmpty();
    }
}

// Ctrl and a letter: copying, undoing. A field takes no character of these but for invisible
// ones of formatting. With Alt or the number pad Ctrl brings characters.
bool isCommand(const QKeyEvent& key) {
    const QChar first = key.text().front();
    if (first.category() == QChar::Other_Format) {
        return false;
    }
    const Qt::KeyboardModifiers held = key.modifiers();
    return held == Qt::ControlModifier || held == (Qt::ControlModifier | Qt::ShiftModifier) ||
           (held.testFlag(Qt::ControlModifier) && first.category() == QChar::Other_Control);
}

// The X11 stroke for what is selected elsewhere.
QClipboard::Mode sourceOf(const QKeyEvent& key) {
    const bool fromSelection = key.key() == Qt::Key_Insert &&
                               key.modifiers().testFlag(Qt::ControlModifier) &&
                               QGuiApplication::clipboard()->supportsSelection();
    return fromSelection ? QClipboard::Selection : QClipboard::Clipboard;
}

}  // namespace

CharacterFilter::CharacterFilter(QLineEdit& edit, KeyFilter filter, Machine& machine)
    : QObject(&edit), edit_(edit), filter_(filter), machine_(machine) {
    edit.installEventFilter(this);
    connect(&edit, &QLineEdit::inputRejected, this, [this] { machine_.beep(); });
}

bool CharacterFilter::eventFilter(QObject* watched, QEvent* event) {
    if (qobject_cast<QLineEdit*>(watched) == nullptr || edit_.isReadOnly()) {
        return false;  // being destroyed, or nothing can get in
    }
    switch (event->type()) {
        case QEvent::KeyPress:
            return typed(static_cast<const QKeyEvent&>(*event));
        case QEvent::InputMethod:
            return composed(static_cast<const QInputMethodEvent&>(*event));
        case QEvent::MouseButtonRelease:
            return pastedByMouse(static_cast<const QMouseEvent&>(*event));
        case QEvent::Drop:
            return dropped(static_cast<QDropEvent&>(*event));
        case QEvent::ContextMenu:
            showMenu(static_cast<const QContextMenuEvent&>(*event));
            return true;
        default:
            return false;
    }
}

QString CharacterFilter::admitted(const QString& typed) const {
    QString kept;
    for (const char32_t character : typed.toStdU32String()) {
        if (takes(filter_, character, machine_)) {
            kept += QString::fromUcs4(&character, 1);
        }
    }
    return kept;
}

bool CharacterFilter::typed(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Paste)) {
        paste(sourceOf(key));
        return true;
    }
    if (!isCharacter(key) || isCommand(key)) {
        return false;
    }
    const QString kept = admitted(key.text());
    if (kept == key.text()) {
        return false;
    }
    if (!kept.isEmpty()) {
        edit_.insert(kept);
    }
    return true;
}

// What is still being composed stands in the field and is committed when the focus goes; a
// character that can't get in isn't shown either, and the input method forgets it.
bool CharacterFilter::composed(const QInputMethodEvent& input) {
    const QString committed = admitted(input.commitString());
    const QString shown = admitted(input.preeditString());
    if (committed == input.commitString() && shown == input.preeditString()) {
        return false;
    }
    const bool composing = shown == input.preeditString();
    QInputMethodEvent kept(composing ? shown : QString(),
                           composing ? input.attributes() : QList<QInputMethodEvent::Attribute>());
    if (!committed.isEmpty()) {
        kept.setCommitString(committed, input.replacementStart(), input.replacementLength());
    }
    QCoreApplication::sendEvent(&edit_, &kept);
    if (!composing) {
        QMetaObject::invokeMethod(
            &edit_, [] { QGuiApplication::inputMethod()->reset(); }, Qt::QueuedConnection);
    }
    return true;
}

void CharacterFilter::paste(QClipboard::Mode from) {
    const QString text = QGuiApplication::clipboard()->text(from);
    const auto taken = takenOf(filter_, text.toStdString(), machine_);
    if (taken && !taken->empty()) {
        edit_.insert(QString::fromStdString(*taken));
    }
}

// The press has put the cursor where the text goes.
bool CharacterFilter::pastedByMouse(const QMouseEvent& release) {
    if (release.button() != Qt::MiddleButton ||
        !QGuiApplication::clipboard()->supportsSelection()) {
        return false;
    }
    edit_.deselect();
    paste(QClipboard::Selection);
    return true;
}

// The field itself knows where the text goes and what a move takes away.
bool CharacterFilter::dropped(QDropEvent& drop) {
    const QString text = drop.mimeData()->text();
    const auto taken = takenOf(filter_, text.toStdString(), machine_);
    if (!taken || taken->empty()) {
        drop.ignore();
        return true;
    }
    const QString kept = QString::fromStdString(*taken);
    if (kept == text) {
        return false;
    }
    QMimeData data;
    data.setText(kept);
    QDropEvent cleaned(drop.position(), drop.possibleActions(), &data, drop.buttons(),
                       drop.modifiers());
    cleaned.setDropAction(drop.dropAction());
    edit_.event(&cleaned);
    drop.setDropAction(cleaned.dropAction());
    drop.setAccepted(cleaned.isAccepted());
    return true;
}

// The field's own menu, whose entry for pasting asks the filter; the submenu that some
// systems add inserts nothing but control characters.
void CharacterFilter::showMenu(const QContextMenuEvent& wish) {
    QMenu* menu = edit_.createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString pasting = QLineEdit::tr("&Paste");  // as the toolkit names it
    for (QAction* entry : menu->actions()) {
        if (entry->menu() != nullptr) {
            menu->removeAction(entry);
        } else if (entry->text().startsWith(pasting)) {
            entry->disconnect(&edit_);
            connect(entry, &QAction::triggered, this, [this] { paste(QClipboard::Clipboard); });
        }
    }
    menu->popup(wish.globalPos());
}

}  // namespace tarn
