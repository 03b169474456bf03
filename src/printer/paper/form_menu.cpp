#include "printer/paper/form_menu.h"

#include <QActionGroup>

#include "forms/form_catalogue.h"

namespace tarn::dotmatrix {

FormMenu::FormMenu(const std::optional<QString>& present, QWidget* parent)
    : QMenu(QStringLiteral("&Formulário"), parent), forms_(new QActionGroup(this)) {
    setObjectName(QStringLiteral("formMenu"));
    ofJob_ = add(QStringLiteral("&Conforme o trabalho"), QStringLiteral("job"));
    blank_ = add(QStringLiteral("Papel em &branco"), QString());
    std::optional<JobDocument> document;
    for (const CatalogueForm& form : formCatalogue()) {
        if (form.document != document) {
            addSeparator();
            document = form.document;
        }
        add(QString::fromStdString(form.title), QString::fromStdString(form.name));
    }
    addSeparator();
    ofFile_ = add(QStringLiteral("De um &arquivo..."), QStringLiteral("file"));
    chosen_ = ofJob_;
    if (present) {
        chosen_ = ofFile_;
        for (QAction* action : forms_->actions()) {
            chosen_ = action->data() == *present && !present->isEmpty() ? action : chosen_;
        }
    }
    chosen_->setChecked(true);
    connect(forms_, &QActionGroup::triggered, this, &FormMenu::choose);
}

QAction* FormMenu::add(const QString& text, const QString& form) {
    QAction* action = addAction(text);
    action->setCheckable(true);
    action->setData(form);
    action->setObjectName(QStringLiteral("form_") + form);
    forms_->addAction(action);
    return action;
}

void FormMenu::choose(QAction* action) {
    if (action == ofJob_) {
        emit jobsChosen();
    } else if (action == blank_) {
        emit blankChosen();
    } else if (action == ofFile_) {
        emit fileWanted();
    } else {
        emit formChosen(action->data().toString());
    }
}

void FormMenu::keepChoice() {
    chosen_ = forms_->checkedAction();
}

void FormMenu::undoChoice() {
    chosen_->setChecked(true);
}

}  // namespace tarn::dotmatrix
