#include "printer/paper/form_choice.h"

#include <QApplication>
#include <QMenuBar>

#include "forms/form_loader.h"
#include "printer/paper/form_menu.h"

namespace tarn::dotmatrix {

namespace {

PaperUnits rulerCellOf(const Dialect& dialect) {
    return PrintMode{.elite = dialect.elite, .condensed = dialect.condensed}.cellWidth();
}

}  // namespace

FormChoice::FormChoice(QMainWindow& window, PaperRoll& roll, PaintOptions& looks,
                       const WindowQuestions& questions, std::optional<int> itemLines)
    : QObject(&window),
      roll_(roll),
      looks_(looks),
      questions_(questions),
      itemLines_(itemLines),
      panel_(roll.dialect()) {
    looks_.rulerCell = rulerCellOf(panel_);
    const auto present =
        looks_.design ? std::optional(QString::fromStdString(looks_.design->name)) : std::nullopt;
    menu_ = new FormMenu(present, &window);
    window.menuBar()->addMenu(menu_);
    connect(menu_, &FormMenu::formChosen, this, &FormChoice::layForm);
    connect(menu_, &FormMenu::fileWanted, this, &FormChoice::layFormOfFile);
    connect(menu_, &FormMenu::jobsChosen, this, &FormChoice::followJobs);
    connect(menu_, &FormMenu::blankChosen, this, &FormChoice::layNothing);
}

void FormChoice::layForm(const QString& name) {
    auto loaded = loadForm(name, itemLines_);
    if (const auto* wrong = std::get_if<QString>(&loaded)) {
        menu_->undoChoice();
        emit failed(*wrong);
        return;
    }
    menu_->keepChoice();
    const auto& form = std::get<LoadedForm>(loaded);
    lay(form, looks_);
    usePanel(panelFor(*form.design, roll_.dialect()));
}

void FormChoice::layFormOfFile() {
    const QStringList files = questions_.open(
        QStringLiteral("Formulário"),
        QStringLiteral("Formulários (*.txt *.form *.png *.jpg *.jpeg);;Todos os arquivos (*)"));
    files.isEmpty() ? menu_->undoChoice() : layForm(files.front());
}

void FormChoice::layNothing() {
    lay({}, looks_);
    menu_->keepChoice();
    usePanel(roll_.dialect());
}

void FormChoice::followJobs() {
    lay({}, looks_);
    menu_->keepChoice();
    printAgain(panel_, [this] { roll_.followJobs(panel_); });
}

void FormChoice::usePanel(const Dialect& dialect) {
    printAgain(dialect, [this, &dialect] { roll_.setDialect(dialect); });
}

void FormChoice::printAgain(const Dialect& dialect, const std::function<void()>& print) {
    emit printingAgain();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    print();
    QApplication::restoreOverrideCursor();
    looks_.rulerCell = rulerCellOf(dialect);
    emit printedAgain();
}

}  // namespace tarn::dotmatrix
