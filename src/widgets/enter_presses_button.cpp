#include "widgets/enter_presses_button.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace tarn {

bool enterPressesButton(const QDialog& dialog, const QKeyEvent& key) {
    if (key.key() != Qt::Key_Return && key.key() != Qt::Key_Enter) {
        return false;
    }
    auto* button = qobject_cast<QPushButton*>(dialog.focusWidget());
    if (button != nullptr && !key.isAutoRepeat()) {
        button->click();
    }
    return true;
}

}  // namespace tarn
