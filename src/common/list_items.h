// The items of a drop-down list that an answer fills.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarn {

class XmlDocument;
struct Environment;
struct Sessao;

struct ListItem {
    std::string text;
    std::int32_t data = 0;  // item data; 0 of the first item: none chosen
    bool operator==(const ListItem&) const = default;
};

// The number that a text holds, blanks around allowed; nothing for what is no 32-bit number.
std::optional<std::int32_t> itemNumber(std::string_view text);
// The same where 0 stands for nothing.
std::int32_t itemData(std::string_view text);

// One for each row of the answer, in its order; what is absent is empty, or 0.
std::vector<ListItem> listItemsOf(const XmlDocument& answer, std::string_view textField,
                                  std::string_view dataField);

// "<-TODAS->" and the company's branches; the first item alone when the request failed
// (the user has been told).
std::vector<ListItem> branchesForFilter(Environment& environment, const Sessao& session);

}  // namespace tarn
