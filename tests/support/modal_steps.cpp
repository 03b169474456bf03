#include "tests/support/modal_steps.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QTest>
#include <QTimer>

namespace tarn::test {

ModalSteps::ModalSteps() {
    qApp->installEventFilter(this);
}

ModalSteps::~ModalSteps() {
    for (const Step& step : steps_) {
        ADD_FAILURE() << "no window came for the step on " << step.window;
    }
}

ModalSteps& ModalSteps::then(const std::string& window, Action action) {
    steps_.push_back({window, std::move(action)});
    return *this;
}

bool ModalSteps::eventFilter(QObject* receiver, QEvent* event) {
    // What the system shows again, from the task bar, has opened before.
    const bool opens = event->type() == QEvent::Show && !event->spontaneous();
    auto* dialog = opens ? qobject_cast<QDialog*>(receiver) : nullptr;
    if (dialog != nullptr && dialog->isModal()) {
        whenReady(dialog);
    }
    return false;
}

// What the window asks of the server on opening has been answered: no hourglass. A
// message box has an arrow of its own.
void ModalSteps::whenReady(const QPointer<QDialog>& window) {
    QTimer::singleShot(1, this, [this, window] {
        const QCursor* cursor = QGuiApplication::overrideCursor();
        if (window && cursor != nullptr && cursor->shape() == Qt::WaitCursor) {
            whenReady(window);
        } else if (window) {
            take(*window);
        }
    });
}

void ModalSteps::take(QWidget& window) {
    const std::string name = window.objectName().toStdString();
    auto& dialog = static_cast<QDialog&>(window);
    if (steps_.empty() || steps_.front().window != name) {
        ADD_FAILURE() << "a modal window that no step expects: " << name;
        dialog.done(QDialog::Rejected);
        return;
    }
    ++taken_;
    const Step step = std::move(steps_.front());
    steps_.pop_front();
    // A window counts as active already when the one it stands over is.
    EXPECT_TRUE(QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }));
    const QPointer<QDialog> open(&dialog);
    step.action(window);
    if (open && open->isVisible()) {
        ADD_FAILURE() << name << " is still open after its step";
        open->done(QDialog::Rejected);
    }
}

}  // namespace tarn::test
