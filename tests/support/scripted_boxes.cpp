#include "tests/support/scripted_boxes.h"

#include <ostream>

namespace tarn {

void PrintTo(const Box& box, std::ostream* out) {
    constexpr const char* icons[] = {"None", "Information", "Exclamation", "Question", "Critical"};
    *out << "[" << icons[static_cast<int>(box.icon)] << "] \"" << box.title << "\": \"" << box.text
         << "\"" << (box.buttons == BoxButtons::YesNo ? " (yes/no)" : "");
}

}  // namespace tarn

namespace tarn::test {

ScriptedBoxes::ScriptedBoxes() = default;
ScriptedBoxes::~ScriptedBoxes() = default;

BoxAnswer ScriptedBoxes::show(const Box& box) {
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

std::vector<std::string> ScriptedBoxes::texts() const {
    std::vector<std::string> all;
    for (const Box& box : shown) {
        all.push_back(box.text);
    }
    return all;
}

}  // namespace tarn::test
