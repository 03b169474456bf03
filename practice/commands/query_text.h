// The query text of a request, taken apart as the page takes it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarn::practice {

// Names are matched without regard to case; of a name given twice the first
// holds. Values are percent-decoded bytes of windows-1252, as UTF-8; "+" is a
// plus, and a "%" without two hexadecimal digits behind it stays as it is. A zero
// byte, which no text of the database can hold, is a blank.
class Query {
public:
    explicit Query(std::string_view raw);

    const std::string& command() const { return value("comando"); }
    const std::string& value(std::string_view name) const;  // "" when absent
    bool has(std::string_view name) const;

private:
    const std::string* find(std::string_view name) const;

    std::vector<std::pair<std::string, std::string>> parameters_;
};

// "||" stands for "%" and "|" for "&" in the free texts that the desk guards.
std::string undoBars(std::string_view text);

// Digits only, blanks around allowed; nothing else is a number here.
std::optional<std::int64_t> wholeNumber(std::string_view text);

}  // namespace tarn::practice
