// Message boxes on the screen. A text is shown as it is, whatever it looks like.
#pragma once

#include <QObject>

#include "platform/message_boxes.h"

namespace tarn {

// A box stands in front of a window of the program, and takes the keyboard only from the
// program's own: decision D129.
class QtMessageBoxes : public MessageBoxes {
public:
    QtMessageBoxes();

    // Blocks until the user answered. Closing a question by Esc answers No.
    BoxAnswer show(const Box& box) override;

private:
    // Whether the keyboard, once given to the program, is with another one.
    bool isElsewhere() const;

    QObject watch_;
    bool hadKeyboard_ = false;
};

}  // namespace tarn
