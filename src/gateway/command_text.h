// How the text of a command is put together, and the forms in which values appear in it.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace tarn::commands {

// A key with its separators, such as "&ServerName=", and what follows it.
struct Parameter {
    std::string_view key;
    std::string value;

    Parameter(std::string_view aKey, std::string_view text) : key(aKey), value(text) {}
    Parameter(std::string_view aKey, std::int32_t number)
        : key(aKey), value(std::to_string(number)) {}
};

std::string query(std::string_view command, std::initializer_list<Parameter> parameters);

std::string emptyIfZero(std::int32_t data);
// "007" goes as 7, "1.000" as 1000. TypeMismatch for a text that is no number.
std::string typedNumber(std::string_view text);

}  // namespace tarn::commands
