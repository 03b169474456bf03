#include "printer/question_box.h"

#include <QMessageBox>
#include <QPushButton>

namespace tarn::dotmatrix {

namespace {

void prepare(QMessageBox& box, const char* name) {
    box.setObjectName(QLatin1StringView(name));
    box.setTextFormat(Qt::PlainText);
    box.setAttribute(Qt::WA_DeleteOnClose);
}

void show(QWidget& window, const char* name, QMessageBox::Icon icon, const QString& title,
          const QString& text) {
    auto* box = new QMessageBox(icon, title, text, QMessageBox::Ok, &window);
    prepare(*box, name);
    box->open();
}

}  // namespace

void ask(QWidget& window, const Question& question, const std::function<void()>& run) {
    auto* box = new QMessageBox(QMessageBox::Question, window.windowTitle(), question.text,
                                QMessageBox::NoButton, &window);
    prepare(*box, question.name);
    auto* yes = box->addButton(question.yes, QMessageBox::AcceptRole);
    yes->setObjectName(QLatin1StringView(question.yesName));
    box->setDefaultButton(box->addButton(question.no, QMessageBox::RejectRole));
    QObject::connect(box, &QMessageBox::buttonClicked, &window,
                     [run, yes](QAbstractButton* button) {
                         if (button == yes) {
                             run();
                         }
                     });
    box->open();
}

void showNotice(QWidget& window, const char* name, const QString& title, const QString& text) {
    show(window, name, QMessageBox::Information, title, text);
}

void showWarning(QWidget& window, const char* name, const QString& text) {
    show(window, name, QMessageBox::Warning, window.windowTitle(), text);
}

}  // namespace tarn::dotmatrix
