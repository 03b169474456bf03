#include "practice/commands/branch_list.h"

#include <array>

#include "practice/commands/fields.h"

namespace tarn::practice {
namespace {

constexpr std::array fields = {Field{"FILIAL", "name"}, Field{"ID_ETB", "code"}};

}  // namespace

Reply listNamedBranches(const Query& query, std::string_view companyKey, CommandContext& context) {
    const auto company = requestedCompany(query, companyKey, context);
    if (const auto* refusal = std::get_if<Refusal>(&company)) {
        return *refusal;
    }
    const std::int64_t id = std::get<std::int64_t>(company);
    const auto user = requestedUser(query, "nId_Pes_Usu", id, context);
    if (const auto* refusal = std::get_if<Refusal>(&user)) {
        return *refusal;
    }
    return readRowset(context.database, fields,
                      "FROM establishment WHERE company_id = ? ORDER BY id", {id});
}

}  // namespace tarn::practice
