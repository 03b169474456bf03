#include "gateway/command_text.h"

#include "runtime/numbers.h"

namespace tarn::commands {

std::string query(std::string_view command, std::initializer_list<Parameter> parameters) {
    std::string text(command);
    for (const Parameter& pair : parameters) {
        text.append(pair.key).append(pair.value);
    }
    return text;
}

std::string emptyIfZero(std::int32_t data) {
    return data == 0 ? "" : std::to_string(data);
}

std::string typedNumber(std::string_view text) {
    return numberText(readComma(text));
}

}  // namespace tarn::commands
