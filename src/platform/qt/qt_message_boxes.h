// Message boxes on the screen. A text is shown as it is, whatever it looks like.
#pragma once

#include <QString>

#include "platform/message_boxes.h"

namespace tarn {

// The text with each CR, LF and CR LF as one line break, as widgets want it.
QString linesOnScreen(const std::string& text);

class QtMessageBoxes : public MessageBoxes {
public:
    // Blocks until the user answered. Closing a question by Esc answers No.
    BoxAnswer show(const Box& box) override;
};

}  // namespace tarn
