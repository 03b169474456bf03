// What the user lays under the paper: each job's own form, one form under all, or none.
#pragma once

#include <QMainWindow>
#include <functional>
#include <optional>

#include "dotmatrix/paper_painter.h"
#include "dotmatrix/paper_roll.h"
#include "printer/window_questions.h"

namespace tarn::dotmatrix {

class FormMenu;

class FormChoice : public QObject {
    Q_OBJECT

public:
    // All must outlive this; `looks` are changed as the user chooses. `itemLines` as for
    // loadForm. The menu goes into the window's menu bar.
    FormChoice(QMainWindow& window, PaperRoll& roll, PaintOptions& looks,
               const WindowQuestions& questions, std::optional<int> itemLines);

signals:
    // A whole sentence for the user.
    void failed(const QString& text);
    // The jobs so far are printed again, as the printer would have with its new panel.
    void printingAgain();
    void printedAgain();

private:
    void layForm(const QString& name);
    void layFormOfFile();
    void layNothing();
    void followJobs();
    void usePanel(const Dialect& dialect);
    void printAgain(const Dialect& dialect, const std::function<void()>& print);

    PaperRoll& roll_;
    PaintOptions& looks_;
    const WindowQuestions& questions_;
    std::optional<int> itemLines_;
    Dialect panel_;  // where each job brings its own paper
    FormMenu* menu_;
};

}  // namespace tarn::dotmatrix
