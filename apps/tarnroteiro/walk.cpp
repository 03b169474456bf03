#include "apps/tarnroteiro/walk.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QPixmap>
#include <utility>

#include "apps/tarnroteiro/paper_list.h"
#include "apps/tarnroteiro/photo.h"
#include "platform/qt/input_gate.h"

namespace tarn {
namespace {

constexpr int intervalMs = 20;
constexpr int maxLooks = 60 * 1000 / intervalMs;  // a minute for each step

}  // namespace

Walk::Walk(QString folder) : folder_(std::move(folder)) {
    clock_.setInterval(intervalMs);
    clock_.setSingleShot(true);
    connect(&clock_, &QTimer::timeout, this, &Walk::look);
}

Walk& Walk::when(const QString& window, const QString& name, Step step) {
    steps_.push_back({window, name, std::move(step)});
    return *this;
}

void Walk::start() {
    clock_.start();
}

QWidget* Walk::frontWindow(const QString& name) const {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr) {
        return modal->objectName() == name ? modal : nullptr;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        QWidget* found = window->objectName() == name ? window : window->findChild<QWidget*>(name);
        if (found != nullptr && found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

void Walk::look() {
    clock_.start();  // a step may stay in a modal window's loop, in which the next one comes
    // While a request is under way what is clicked is discarded, and what is typed waits.
    const InputGate& gate = InputGate::ofApplication();
    const bool isBusy = QGuiApplication::overrideCursor() != nullptr &&
                        QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor;
    if (isBusy || gate.isShut()) {
        return;
    }
    if (steps_.empty()) {
        finish({});
        return;
    }
    QWidget* window = frontWindow(steps_.front().window);
    if (window == nullptr) {
        ++looks_;
        const QWidget* front = QApplication::activeModalWidget();
        if (front != nullptr && front->objectName() == QStringLiteral("MessageBox")) {
            finish(QStringLiteral("uma caixa que não faz parte do roteiro: %1")
                       .arg(front->accessibleDescription()));
        } else if (looks_ == maxLooks) {
            finish(QStringLiteral("a janela %1 não abriu").arg(steps_.front().window));
        }
        return;
    }
    // Off-screen the activation doesn't come back by itself from a window that closed;
    // without it no field is ever left, and what is held is never typed.
    if (++looks_ < maxLooks && !(window->isActiveWindow() && gate.isQuiet())) {
        window->activateWindow();
        return;
    }
    looks_ = 0;
    const Wait wait = std::exchange(steps_.front(), {});
    steps_.pop_front();
    if (!wait.name.isEmpty()) {
        photograph(*window, wait.name);
    }
    wait.step(*window);
}

void Walk::finish(const QString& reason) {
    clock_.stop();
    emit finished(reason);
}

void Walk::photograph(QWidget& window, const QString& name) {
    QWidget* desk = nullptr;
    for (QWidget* top : QApplication::topLevelWidgets()) {
        const bool isDesk = top->objectName() == QStringLiteral("MDIMenu") && top->isVisible();
        desk = isDesk ? top : desk;
    }
    clock_.stop();  // a photo may turn the event loop, in which no further step may come
    const QPixmap photo = photoOf(window, desk);
    clock_.start();
    ++photos_;
    photo.save(QDir(folder_).filePath(
        QStringLiteral("passo-%1-%2.png").arg(photos_, 2, 10, QLatin1Char('0')).arg(name)));
}

void Walk::printed(const QString& document) {
    listJobs(folder_, document);
}

}  // namespace tarn
