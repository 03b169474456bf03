#include "common/list_items.h"

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn {

std::optional<std::int32_t> itemNumber(std::string_view text) {
    try {
        return readInt32(text);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

std::int32_t itemData(std::string_view text) {
    return itemNumber(text).value_or(0);
}

std::vector<ListItem> listItemsOf(const XmlDocument& answer, std::string_view textField,
                                  std::string_view dataField) {
    const XmlNodeList rows = rowsOf(answer);
    std::vector<ListItem> items;
    items.reserve(rows.length());
    for (const XmlNode row : rows) {
        const XmlAttributes fields = row.attributes();
        items.push_back(
            {std::string(fields.textOf(textField)), itemData(fields.textOf(dataField))});
    }
    return items;
}

std::vector<ListItem> branchesForFilter(Environment& environment, const Sessao& session) {
    std::vector<ListItem> branches{{"<-TODAS->", 0}};
    XmlDocument answer;
    if (requestAnswer(environment, commands::sel_filiais(session), answer, failure::Tarn0009Wide)) {
        const std::vector<ListItem> readItems = listItemsOf(answer, "SG_FIL", "ID_ETB_TARN");
        branches.insert(branches.end(), readItems.begin(), readItems.end());
    }
    return branches;
}

}  // namespace tarn
