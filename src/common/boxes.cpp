#include "common/boxes.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

void show(Environment& environment, const std::string& text, BoxIcon icon, std::string_view title) {
    environment.boxes.show({.text = text, .icon = icon, .title = std::string(title)});
}

}  // namespace

void tell(Environment& environment, const std::string& text, std::string_view title) {
    show(environment, text, BoxIcon::None, title);
}

void inform(Environment& environment, const std::string& text, std::string_view title) {
    show(environment, text, BoxIcon::Information, title);
}

void warn(Environment& environment, const std::string& text, std::string_view title) {
    show(environment, text, BoxIcon::Exclamation, title);
}

void reportError(Environment& environment, const RuntimeError& error) {
    show(environment, failureText(error), BoxIcon::Critical, box_title::standard);
}

}  // namespace tarn
