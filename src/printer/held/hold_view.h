// What the window shows of the held jobs: the list at its side, the menu "Fila", and which
// piece of the paper is which job's.
#pragma once

#include <QMainWindow>
#include <functional>
#include <map>

#include "printer/held/hold_desk.h"
#include "printer/paper/paper_view.h"
#include "printer/window_questions.h"

class QDockWidget;

namespace tarn::dotmatrix {

class HeldPanel;
class WindowCommands;

class HoldView : public QObject {
    Q_OBJECT

public:
    // Holds for this queue from now on; what is wrong, a whole sentence, empty for nothing.
    using StartHolding = std::function<QString(const QString& queue)>;

    // All must outlive this; `looks` holds the form that lies under what has none of its own.
    HoldView(QMainWindow& window, HoldDesk& desk, PaperRoll& roll, PaperView& view,
             const WindowQuestions& questions, const PaintOptions& looks);

    void onStart(StartHolding start) { start_ = std::move(start); }
    void addMenu(WindowCommands& commands);
    // The paper is another one: none of the jobs is on it.
    void paperGone() { places_.clear(); }
    // For who listens only now.
    void tellIfOpen();
    // For the status bar; empty while nothing is held.
    QString count() const;

signals:
    void opened();  // jobs are held from now on
    void complained(const QString& text);
    void told(const QString& line);  // for the log
    void changed();

private:
    void makeDock();
    void chooseQueue();
    void show(int number);
    void kept(int number);
    QString findingsOf(std::size_t job) const;
    void askToForget(int number);

    QMainWindow& window_;
    HoldDesk& desk_;
    PaperRoll& roll_;
    PaperView& view_;
    const WindowQuestions& questions_;
    const PaintOptions& looks_;
    StartHolding start_;
    HeldPanel* panel_ = nullptr;
    QDockWidget* dock_ = nullptr;
    bool wasOpen_ = false;
    std::map<int, std::size_t> places_;  // of a job among the paper's
};

}  // namespace tarn::dotmatrix
