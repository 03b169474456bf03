#include "tests/fuzz/checked_press.h"

#include <algorithm>

#include "platform/request_line.h"
#include "runtime/text.h"

namespace tarn::fuzz {

HttpAnswer CheckingLoader::get(const std::string& address) {
    const std::string line = requestLine(address);
    if (std::any_of(line.begin(), line.end(), [](char c) { return c <= ' ' || c >= 127; })) {
        broken("a request of more than one line");
    }
    return {};
}

void CheckedPress::checkDrawing() const {
    for (const PrintOperation& operation : printer.operations) {
        const auto* text = std::get_if<DrawnText>(&operation);
        if (text != nullptr && blankControls(text->text) != text->text) {
            broken("a drawn text with a control character");
        }
    }
}

}  // namespace tarn::fuzz
