// The window of a message box. Its text stands as it is, can be selected and copied, and
// scrolls where the screen is too small for it; without a selection Ctrl+C copies all of it.
#pragma once

#include <QDialog>

#include "platform/message_boxes.h"

class QDialogButtonBox;
class QKeyEvent;
class QLabel;
class QPlainTextEdit;

namespace tarn {

class BoxWindow : public QDialog {
    Q_OBJECT

public:
    // `parent` is the window that it stands in front of; null: none.
    BoxWindow(const Box& box, QWidget* parent);

    // Waits until the user has answered. Closing it, and Esc, answer OK or No.
    BoxAnswer ask();

    QString text() const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showText(const std::string& text);
    void showIcon(BoxIcon icon);
    void addButtons(BoxButtons buttons);
    void fitToText();

    QLabel* icon_;
    QPlainTextEdit* text_;
    QDialogButtonBox* buttons_;
};

}  // namespace tarn
