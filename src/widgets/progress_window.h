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

// Lives as long as the run. While it is told of progress the program's windows
// repaint, what is typed and clicked is discarded and no timer of a screen fires. Its
// window comes at once for many items, otherwise when the run has lasted a while, and
// goes at the end. A message box shown by the run itself works as ever.
class Andamento {
public:
    explicit Andamento(QWidget& tela);
    ~Andamento();
    Andamento(const Andamento&) = delete;
    Andamento& operator=(const Andamento&) = delete;

    // For the run; not to be called after this object is gone.
    Progress avisos();

private:
    void avisa(std::size_t feitos, std::size_t total);
    void abre();
    void fecha();
    void repinta();

    QWidget& tela_;
    InputGate porta_;
    QElapsedTimer inicio_;
    QElapsedTimer pintura_;  // since the windows last repainted
    std::unique_ptr<QWidget> janela_;
    QLabel* texto_ = nullptr;
    QProgressBar* barra_ = nullptr;
    std::optional<WaitCursor> ampulheta_;
};

}  // namespace tarn
