// The menu of the forms that can lie under the paper.
#pragma once

#include <QMenu>
#include <optional>

class QActionGroup;

namespace tarn::dotmatrix {

class FormMenu : public QMenu {
    Q_OBJECT

public:
    // `present` is the name of the one form that lies under all jobs already; none: each job
    // lies on its own.
    FormMenu(const std::optional<QString>& present, QWidget* parent);

    // The ticked form lies under the paper now.
    void keepChoice();
    // It doesn't: the one before is ticked again.
    void undoChoice();

signals:
    void jobsChosen();  // each on its own form
    void blankChosen();
    void formChosen(const QString& name);
    void fileWanted();

private:
    QAction* add(const QString& text, const QString& form);
    void choose(QAction* action);

    QActionGroup* forms_;
    QAction* ofJob_;
    QAction* blank_;
    QAction* ofFile_;
    QAction* chosen_;
};

}  // namespace tarn::dotmatrix
