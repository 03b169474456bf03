// Message boxes answered by a script.
#pragma once

#include <deque>
#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

#include "platform/message_boxes.h"

namespace tarn {

// How a failed comparison shows a box; it is looked for where the box is declared.
void PrintTo(const Box& box, std::ostream* out);

}  // namespace tarn

namespace tarn::test {

using Boxes = std::vector<Box>;

class ScriptedBoxes : public MessageBoxes {
public:
    Boxes shown;                    // in order
    std::deque<BoxAnswer> answers;  // taken from the front; without any: Ok, or Yes of YesNo
    std::function<void(const Box&)> onShow;  // runs while the box "stands", if set

    ScriptedBoxes();
    ~ScriptedBoxes() override;

    BoxAnswer show(const Box& box) override;

    std::vector<std::string> texts() const;
};

}  // namespace tarn::test
