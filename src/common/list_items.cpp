#include "common/list_items.h"

#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "platform/environment.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

std::string_view textOf(const XmlAttributes& attributes, std::string_view field) {
    const XmlAttribute attribute = attributes.getNamedItem(field);
    return attribute ? attribute.text() : std::string_view();
}

std::int32_t itemDataOf(std::string_view text) {
    try {
        return readInt32(text);
    } catch (const RuntimeError&) {
        return 0;
    }
}

}  // namespace

std::vector<ListItem> listItemsOf(const XmlDocument& answer, std::string_view textField,
                                  std::string_view dataField) {
    std::vector<ListItem> items;
    const XmlNode lines = answer.selectSingleNode("xml/rs:data");
    const std::size_t count = lines ? lines.childCount() : 0;
    items.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const XmlAttributes attributes = lines.child(i).attributes();
        items.push_back({std::string(textOf(attributes, textField)),
                         itemDataOf(textOf(attributes, dataField))});
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
