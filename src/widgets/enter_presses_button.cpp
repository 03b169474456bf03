#include "widgets/enter_presses_button.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>

namespace tarn {

bool enterNoBotao(const QDialog& dialogo, const QKeyEvent& tecla) {
    if (tecla.key() != Qt::Key_Return && tecla.key() != Qt::Key_Enter) {
        return false;
    }
    auto* botao = qobject_cast<QPushButton*>(dialogo.focusWidget());
    if (botao != nullptr && !tecla.isAutoRepeat()) {
        botao->click();
    }
    return true;
}

}  // namespace tarn
