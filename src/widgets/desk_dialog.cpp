#include "widgets/desk_dialog.h"

#include <QKeyEvent>
#include <QShowEvent>

#include "platform/qt/acting_keys.h"

namespace tarn {

DeskDialog::DeskDialog(DeskContext& desk, Esc esc, QWidget* parent)
    : QDialog(parent), desk_(desk), esc_(esc) {}

void DeskDialog::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        opened();
    }
}

// Unlike in other dialogs, Enter presses no button that hasn't the focus.
void DeskDialog::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event)) {
        enterPressed();
    } else if (event->key() != Qt::Key_Escape || esc_ == Esc::Closes) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
