// Shows in front of a screen how far a long run is.
#pragma once

#include <QElapsedTimer>
#include <memory>
#include <optional>

#include "platform/progress.h"
#include "platform/qt/input_gate.h"
#include "platform/qt/wait_cursor.h"

class QLabel;
class QProgressBar;
class QWidget;

namespace tarn {

// Lives as long as the run. While it shows progress the program's windows
// repaint, their input waits (InputGate) and no timer of a screen fires. Its window comes
// at once for many items, otherwise when the run has lasted a while, and goes at the end;
// the keyboard stays with the screen. A message box shown by the run itself works as ever.
class ProgressWindow {
public:
    explicit ProgressWindow(QWidget& screen);
    ~ProgressWindow();
    ProgressWindow(const ProgressWindow&) = delete;
    ProgressWindow& operator=(const ProgressWindow&) = delete;

    // For the run; not to be called after this object is gone.
    Progress notices();

private:
    void report(std::size_t done, std::size_t total);
    void open();
    void close();
    void repaint();

    QWidget& screen_;
    InputGate& gate_ = InputGate::ofApplication();
    QElapsedTimer start_;
    QElapsedTimer painting_;  // since the windows last repainted
    std::unique_ptr<QWidget> window_;
    QLabel* text_ = nullptr;
    QProgressBar* bar_ = nullptr;
    std::optional<WaitCursor> hourglass_;
};

}  // namespace tarn
