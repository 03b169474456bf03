// The window of the virtual printer: the paper, what is done with it, and the log.
#pragma once

#include <QMainWindow>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

#include "dotmatrix/paper_export.h"
#include "forms/form_loader.h"
#include "printer/job_intake.h"
#include "printer/paper_search.h"
#include "printer/paper_view.h"

class QActionGroup;
class QDockWidget;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPrinter;
class QToolBar;

namespace tarn::dotmatrix {

// What the user is asked beside the window; tests give their own answers. A name is
// empty, and `print` false, when the user wants nothing.
struct WindowQuestions {
    std::function<QString(const QString& title, const QString& suggested, const QString& kinds)>
        saveAs;
    std::function<QStringList(const QString& title, const QString& kinds)> open;
    std::function<bool(QPrinter& printer)> print;
};

class PrinterWindow : public QMainWindow {
    Q_OBJECT

public:
    // `roll` and `intake` must outlive this. `options` are the looks of the paper;
    // `itemLines` as for loadForm.
    PrinterWindow(PaperRoll& roll, JobIntake& intake, const PaintOptions& options,
                  std::optional<int> itemLines = std::nullopt);
    ~PrinterWindow() override;

    void setQuestions(WindowQuestions questions) { questions_ = std::move(questions); }
    // Shown at the left of the status bar: where jobs are waited for.
    void setWaitingText(const QString& text);
    PaperView& view() { return *view_; }
    // The last error box, null when none is open.
    QWidget* errorBox() const;

private:
    void makeActions();
    void makeFileActions();
    void makePaperActions();
    void makeViewActions();
    void makeFormMenu();
    void makeSearchBar();
    void makeStatusBar();
    QAction* command(const char* name, const QString& text, const QKeySequence& keys,
                     const QString& hint, void (PrinterWindow::*run)());

    void openJobs();
    void savePdf();
    void savePng();
    void saveText();
    void printOut();
    void copyText();
    void selectForm();
    void find();
    void findNext();
    void findPrevious();
    void previousJob();
    void nextJob();
    void tearOff();
    void zoomIn();
    void zoomOut();
    void trueSize();
    void fitWidth();
    void showLog();

    void takeFile();
    void chooseForm(const QString& name);
    void chooseFormFile();
    void usePanel(const Dialect& dialect);
    void search(PaperSearch::Direction direction);
    void searchOn();
    void paperChanged();
    void logNotices();
    void log(const QString& line);
    void showSpot(const PaperSpot& spot);
    void showCounts();
    void complain(const QString& text);
    // Runs `write` with a box that shows how far it is and can stop it.
    void writeOut(const QString& what,
                  const std::function<std::optional<QString>(const WriteProgress&)>& write);

    PaperRoll& roll_;
    JobIntake& intake_;
    PaintOptions options_;
    std::optional<int> itemLines_;
    WindowQuestions questions_;

    PaperView* view_;
    QToolBar* tools_;
    QToolBar* searchBar_;
    QLineEdit* searchText_;
    QLabel* searchResult_;
    QDockWidget* logDock_;
    QPlainTextEdit* logText_;
    QLabel* waitingText_;
    QLabel* spotText_;
    QLabel* countText_;
    QActionGroup* forms_;
    QAction* formOfFile_ = nullptr;
    QAction* chosenForm_ = nullptr;

    QTimer changed_;  // many pieces of a job, one repaint
    QTimer searching_;
    std::unique_ptr<PaperSearch> search_;
    std::optional<PaperRegion> found_;
    QString foundText_;
    QStringList files_;  // still to be taken
    std::unique_ptr<class JobFile> file_;
    std::size_t noticesLogged_ = 0;
};

}  // namespace tarn::dotmatrix
