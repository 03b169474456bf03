#include "widgets/progress_window.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace tarn {
namespace {

constexpr std::size_t many = 50;
constexpr qint64 delayMs = 400;    // a run that lasts longer is shown
constexpr qint64 intervalMs = 50;  // between two repaints
constexpr int barWidth = 40;       // characters

}  // namespace

ProgressWindow::ProgressWindow(QWidget& screen) : screen_(screen) {
    start_.start();
    painting_.start();
}

ProgressWindow::~ProgressWindow() = default;

Progress ProgressWindow::notices() {
    return [this](std::size_t done, std::size_t total) { report(done, total); };
}

void ProgressWindow::report(std::size_t done, std::size_t total) {
    const bool end = done >= total;
    const bool opened = !end && !window_ && (total >= many || start_.elapsed() >= delayMs);
    if (opened) {
        open();
    }
    if (window_) {
        bar_->setRange(0, static_cast<int>(total));
        bar_->setValue(static_cast<int>(done));
        text_->setText(QStringLiteral("Imprimindo: %1 de %2").arg(done).arg(total));
    }
    if (opened || end || painting_.elapsed() >= intervalMs) {
        repaint();
    }
    if (end) {
        close();
    }
}

void ProgressWindow::open() {
    window_ =
        std::make_unique<QWidget>(&screen_, Qt::Dialog | Qt::CustomizeWindowHint |
                                                Qt::WindowTitleHint | Qt::WindowDoesNotAcceptFocus);
    window_->setAttribute(Qt::WA_ShowWithoutActivating);
    window_->setObjectName(QStringLiteral("progress"));
    window_->setWindowTitle(QStringLiteral("Impressão"));
    auto* column = new QVBoxLayout(window_.get());
    text_ = new QLabel(window_.get());
    text_->setObjectName(QStringLiteral("lblProgress"));
    bar_ = new QProgressBar(window_.get());
    bar_->setObjectName(QStringLiteral("barProgress"));
    bar_->setAccessibleName(QStringLiteral("Andamento da impressão"));
    bar_->setMinimumWidth(barWidth * window_->fontMetrics().averageCharWidth());
    column->addWidget(text_);
    column->addWidget(bar_);
    window_->adjustSize();
    window_->move(screen_.mapToGlobal(screen_.rect().center()) - window_->rect().center());
    hourglass_.emplace();
    window_->show();
}

void ProgressWindow::close() {
    window_.reset();
    hourglass_.reset();
}

void ProgressWindow::repaint() {
    const ShutGate closedGate(gate_);
    QCoreApplication::processEvents();
    painting_.restart();
}

}  // namespace tarn
