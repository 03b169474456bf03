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

std::optional<PrinterFailure> CheckingPrinter::perform(const PrintOperation& operation) {
    used_ = true;
    ended_ = std::holds_alternative<DocumentEnd>(operation);
    const auto* text = std::get_if<DrawnText>(&operation);
    if (text != nullptr && blankControls(text->text) != text->text) {
        broken("a drawn text with a control character");
    }
    return std::nullopt;
}

}  // namespace tarn::fuzz
