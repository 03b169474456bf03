// The window of the virtual printer: the paper, what is done with it, and the log.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <optional>

#include "printer/held/hold_view.h"
#include "printer/intake/job_intake.h"
#include "printer/paper/paper_view.h"
#include "printer/window_questions.h"

namespace tarn::dotmatrix {

class CheckDock;
class JobFiles;
class NewJobOffer;
class PaperFiles;
class PaperSearchBar;
class PrinterLog;
class PrinterStatus;
class SheetDock;

class PrinterWindow : public QMainWindow {
    Q_OBJECT

public:
    // `roll`, `intake` and `desk` must outlive this. `options` are the looks of the paper;
    // `itemLines` as for loadForm.
    PrinterWindow(PaperRoll& roll, JobIntake& intake, HoldDesk& desk, const PaintOptions& options,
                  std::optional<int> itemLines = std::nullopt);

    // What "Repassar para..." does with the queue that was chosen.
    void onHold(HoldView::StartHolding start) { holding_->onStart(std::move(start)); }

    void setQuestions(WindowQuestions questions) { questions_ = std::move(questions); }
    // The drawn documents of this folder are shown beside the paper.
    void watchSheets(const QString& folder);
    // Shown at the left of the status bar: where jobs are waited for.
    void setWaitingText(const QString& text);
    PaperView& view() { return *view_; }
    // The last error box, null when none is open.
    QWidget* errorBox() const;

private:
    void makeParts(HoldDesk& desk);
    void makeMenus(std::optional<int> itemLines);

    void openJobs();
    void copyText();
    void selectForm();
    void previousJob();
    void nextJob();
    void tearOff();
    void tearOffAsked();
    void tell(const QString& text);
    void showAbout();

    void jobEnded(const QString& name, const QString& why);
    void printedAgain();
    void paperChanged();
    void showPaper();
    void showCounts();
    void complain(const QString& text);

    PaperRoll& roll_;
    JobIntake& intake_;
    PaintOptions options_;
    WindowQuestions questions_;

    PaperView* view_;
    PaperSearchBar* search_;
    PaperFiles* files_;
    JobFiles* jobFiles_;
    HoldView* holding_;
    SheetDock* sheets_;
    CheckDock* check_;
    NewJobOffer* offer_;
    PrinterLog* log_;
    PrinterStatus* status_;

    QTimer changed_;  // many pieces of a job, one repaint
};

}  // namespace tarn::dotmatrix
