// Message boxes answered by a script.
#pragma once

#include <deque>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/message_boxes.h"

namespace tarn {

// How a failed comparison shows a box; it is looked for where the box is declared.
inline void PrintTo(const Box& box, std::ostream* out) {
    constexpr const char* icons[] = {"None", "Information", "Exclamation", "Question", "Critical"};
    *out << "[" << icons[static_cast<int>(box.icon)] << "] \"" << box.title << "\": \"" << box.text
         << "\"" << (box.buttons == BoxButtons::YesNo ? " (yes/no)" : "");
}

}  // namespace tarn

namespace tarn::test {

class ScriptedBoxes : public MessageBoxes {
public:
    std::vector<Box> shown;         // in order
    std::deque<BoxAnswer> answers;  // taken from the front; without any: Ok, or Yes of YesNo
    std::function<void(const Box&)> onShow;  // runs while the box "stands", if set

    BoxAnswer show(const Box& box) override {
        shown.push_back(box);
        if (onShow) {
            onShow(box);
        }
        if (answers.empty()) {
            return box.buttons == BoxButtons::YesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
        }
        const BoxAnswer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    std::vector<std::string> texts() const {
        std::vector<std::string> all;
        for (const Box& box : shown) {
            all.push_back(box.text);
        }
        return all;
    }
};

}  // namespace tarn::test
