#include "labels/label_boxes.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/runtime_error.h"

namespace tarn::labels {

void inform(Environment& environment, const std::string& text) {
    environment.boxes.show({.text = text, .icon = BoxIcon::Information, .title = "TArn"});
}

void reportError(Environment& environment, const RuntimeError& error, const std::string& whatToDo) {
    environment.boxes.show(
        {.text = failureText(error) + "\r\r" + whatToDo, .icon = BoxIcon::Critical});
}

}  // namespace tarn::labels
