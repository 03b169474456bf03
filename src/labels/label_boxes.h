// The boxes of the label screens.
#pragma once

#include <string>

namespace tarn {
class RuntimeError;
struct Environment;
}  // namespace tarn

namespace tarn::labels {

// Information, titled as the label screens title their boxes.
void inform(Environment& environment, const std::string& text);

// An error that ends nothing but the action; `whatToDo` (Portuguese) follows its report.
void reportError(Environment& environment, const RuntimeError& error, const std::string& whatToDo);

}  // namespace tarn::labels
