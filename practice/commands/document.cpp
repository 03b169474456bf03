#include "practice/commands/document.h"

#include "runtime/text.h"

namespace tarn::practice {
namespace {

// An empty text restricts nothing; one that is no number finds nothing.
void addNumber(Conditions& conditions, std::string_view sql, const std::string& text) {
    if (!trimBlanks(text).empty()) {
        conditions.add(sql, wholeNumber(text).value_or(-1));
    }
}

}  // namespace

OrRefusal<Conditions> documentSearch(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    if (const auto* refusal = std::get_if<Refusal>(&company)) {
        return *refusal;
    }
    const std::int64_t id = std::get<std::int64_t>(company);
    const auto user = requestedUser(query, "ID_PES_USU", id, context);
    if (const auto* refusal = std::get_if<Refusal>(&user)) {
        return *refusal;
    }
    Conditions conditions("e.company_id = ?", {id});
    addNumber(conditions, "d.customer_id = ?", query.value("ID_PES_CLI"));
    addNumber(conditions, "e.code = ?", query.value("ID_ETB_TARN"));
    conditions.addDays("d.due_on", query, "DT_VNC_DE", "DT_VNC_ATE");
    conditions.addDays("d.issued_on", query, "DT_EMS_DE", "DT_EMS_ATE");
    if (!conditions.readable()) {
        return Refusal{"Data inválida na pesquisa. Digite as datas como dd/mm/aaaa."};
    }
    return conditions;
}

}  // namespace tarn::practice
