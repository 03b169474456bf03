// The status bar of the printer's window: where jobs are waited for, what paper is looked
// at, what is under the mouse, and how much was printed.
#pragma once

#include <QMainWindow>
#include <QObject>

#include "printer/paper/paper_view.h"

class QLabel;

namespace tarn::dotmatrix {

class PrinterStatus : public QObject {
    Q_OBJECT

public:
    // All must outlive this.
    PrinterStatus(QMainWindow& window, const PaperRoll& roll, const PaintOptions& looks);

    void setWaiting(const QString& text);
    // That of this form.
    void showPaper(std::size_t form);
    void showSpot(const PaperSpot& spot);
    // `held` and `sheets` in words; empty for none.
    void showCounts(const QString& held, const QString& sheets, double zoom);

private:
    QLabel* add(const char* name, int stretch);
    QString paperOfJobs(std::size_t form) const;

    QMainWindow& window_;
    const PaperRoll& roll_;
    const PaintOptions& looks_;
    QLabel* waiting_;
    QLabel* paper_;
    QLabel* spot_;
    QLabel* count_;
};

}  // namespace tarn::dotmatrix
