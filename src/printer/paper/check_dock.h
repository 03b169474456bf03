// The list of what the paper shows cut or outside its boxes; a row leads to its place.
#pragma once

#include <QDockWidget>
#include <QMainWindow>
#include <QTimer>
#include <vector>

#include "printer/paper/paper_check.h"
#include "printer/paper/paper_view.h"

class QLabel;
class QTableWidget;

namespace tarn::dotmatrix {

class CheckDock : public QDockWidget {
    Q_OBJECT

public:
    // All must outlive this; `looks` holds the form that lies under what has none of its own.
    CheckDock(PaperRoll& roll, PaperView& view, const PaintOptions& looks, QMainWindow& window);

    // Shows itself and checks the whole paper, a few forms at a time.
    void check();
    // What was found is found again, where it is shown, once the paper rests.
    void paperChanged();

private:
    void makeTable();
    void begin();
    void step();
    void add(const PaperFault& fault);
    void tell();
    QString resultText() const;
    void goTo(int row);

    PaperRoll& roll_;
    PaperView& view_;
    const PaintOptions& looks_;
    QLabel* result_;
    QTableWidget* table_;
    QTimer again_;
    QTimer step_;
    std::vector<PaperFault> faults_;
    std::size_t form_ = 0;  // next to be checked
    std::size_t total_ = 0;
    std::size_t withBoxes_ = 0;  // forms
};

}  // namespace tarn::dotmatrix
