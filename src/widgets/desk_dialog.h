// What the desk's dialogs have in common: the context, Enter and Esc (decision D106), and the
// moment in which one opens.
#pragma once

#include <QDialog>

#include "widgets/desk_context.h"

namespace tarn {

class DeskDialog : public QDialog {
    Q_OBJECT

protected:
    enum class Esc { Closes, ClosesNothing };

    DeskDialog(DeskContext& desk, Esc esc, QWidget* parent);

    // It comes before the user, and not back out of the desktop's list of windows.
    virtual void opened() {}
    // Enter where neither a field nor a button with the focus has taken it.
    virtual void enterPressed() {}

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    DeskContext& desk_;

private:
    Esc esc_;
};

}  // namespace tarn
