// Where the keyboard goes when a modal window closes: back to the window that it stood in
// front of. Window managers left to themselves may give it to another program, the more
// so when two windows close at once.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

namespace tarn {

// For all windows of the program. Takes nothing from another
// program: a window without the keyboard closes quietly.
class FocusReturn : public QObject {
    Q_OBJECT

public:
    // Belongs to the application.
    explicit FocusReturn(QObject& application);

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    QPointer<QWidget> asked_;  // the window that was told last to take the keyboard
};

}  // namespace tarn
