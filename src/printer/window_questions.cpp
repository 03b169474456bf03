#include "printer/window_questions.h"

#include <QFileDialog>
#include <QPrintDialog>

namespace tarn::dotmatrix {

WindowQuestions askTheUser(QWidget* window) {
    return {[window](const QString& title, const QString& suggested, const QString& kinds) {
                return QFileDialog::getSaveFileName(window, title, suggested, kinds);
            },
            [window](const QString& title, const QString& kinds) {
                return QFileDialog::getOpenFileNames(window, title, QString(), kinds);
            },
            [window](QPrinter& printer) {
                return QPrintDialog(&printer, window).exec() == QDialog::Accepted;
            }};
}

}  // namespace tarn::dotmatrix
