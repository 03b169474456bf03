#include "printer/form_menu.h"

#include <QActionGroup>

#include "forms/layout_forms.h"

namespace tarn::dotmatrix {

FormMenu::FormMenu(const std::optional<QString>& present, QWidget* parent)
    : QMenu(QStringLiteral("&Formulário"), parent), forms_(new QActionGroup(this)) {
    setObjectName(QStringLiteral("formMenu"));
    blank_ = add(QStringLiteral("Papel em &branco"), QString());
    addSeparator();
    for (const std::string& name : layoutFormNames()) {
        const QString form = QString::fromStdString(name);
        add(form, form);
    }
    addSeparator();
    ofFile_ = add(QStringLiteral("De um &arquivo..."), QStringLiteral("file"));
    chosen_ = blank_;
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
    if (action == blank_) {
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
