// What a test does with the modal windows that open while a routine of a screen runs.
// Each window takes the next step as soon as its own event loop turns and it waits for
// nothing.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <deque>
#include <functional>
#include <string>

class QDialog;

namespace tarn::test {

class ModalSteps : public QObject {
    Q_OBJECT

public:
    using Action = std::function<void(QWidget&)>;

    ModalSteps();
    // Steps that no window took are a failure of the test.
    ~ModalSteps() override;

    // The next modal window must have this object name; `action` works on it once it is
    // active and must get it closed.
    ModalSteps& then(const std::string& window, Action action);

    int taken() const { return taken_; }

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    struct Step {
        std::string window;
        Action action;
    };
    void whenReady(const QPointer<QDialog>& window);
    void take(QWidget& window);

    std::deque<Step> steps_;
    int taken_ = 0;
};

}  // namespace tarn::test
