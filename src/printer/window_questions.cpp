#include "printer/window_questions.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QPrintDialog>
#include <QPrinterInfo>

namespace tarn::dotmatrix {

namespace {

// A queue that was made since the window opened may be typed.
QString askForQueue(QWidget* window) {
    QInputDialog dialog(window);
    dialog.setObjectName(QStringLiteral("queueQuestion"));
    dialog.setWindowTitle(QStringLiteral("Repassar para"));
    const QStringList queues = QPrinterInfo::availablePrinterNames();
    dialog.setLabelText(
        QStringLiteral("Os trabalhos que chegarem ficam retidos aqui até você liberar.\n") +
        (queues.isEmpty() ? QStringLiteral("Esta máquina não mostra nenhuma fila; escreva o nome "
                                           "da fila da impressora de verdade:")
                          : QStringLiteral("Fila da impressora de verdade:")));
    dialog.setComboBoxItems(queues);
    dialog.setComboBoxEditable(true);
    dialog.setOkButtonText(QStringLiteral("Repassar"));
    dialog.setCancelButtonText(QStringLiteral("Cancelar"));
    return dialog.exec() == QDialog::Accepted ? dialog.textValue().trimmed() : QString();
}

}  // namespace

WindowQuestions askTheUser(QWidget* window) {
    return {[window](const QString& title, const QString& suggested, const QString& kinds) {
                return QFileDialog::getSaveFileName(window, title, suggested, kinds);
            },
            [window](const QString& title, const QString& kinds) {
                return QFileDialog::getOpenFileNames(window, title, QString(), kinds);
            },
            [window](QPrinter& printer) {
                return QPrintDialog(&printer, window).exec() == QDialog::Accepted;
            },
            [window] { return askForQueue(window); }};
}

}  // namespace tarn::dotmatrix
