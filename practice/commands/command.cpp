#include "practice/commands/command.h"

#include <array>

#include "practice/commands/fields.h"
#include "runtime/ascii.h"

namespace tarn::practice {

namespace {

constexpr std::array branchFields = {Field{"FILIAL", "name"}, Field{"ID_ETB", "code"}};

std::array<std::span<const Command>, 8> subjects() {
    return {sessionCommands(), orderCommands(),  noteCommands(),  documentCommands(),
            slipCommands(),    chequeCommands(), labelCommands(), selectionCommands()};
}

}  // namespace

std::vector<Command> allCommands() {
    std::vector<Command> commands;
    for (const auto& subject : subjects()) {
        commands.insert(commands.end(), subject.begin(), subject.end());
    }
    return commands;
}

const Command* findCommand(std::string_view name) {
    for (const auto& subject : subjects()) {
        for (const Command& command : subject) {
            if (sameIgnoringCase(command.name, name)) {
                return &command;
            }
        }
    }
    return nullptr;
}

std::int64_t requestedCompany(const Query& query, CommandContext& context) {
    const std::string& server = query.value("ServerName");
    Rows rows = context.database.select("SELECT id FROM company WHERE server_name = ?", {server});
    if (!rows.next()) {
        throw Refusal{"O servidor de dados \"" + server +
                      "\" não existe. Saia do sistema e entre de novo."};
    }
    return rows.integer(0);
}

std::int64_t requestedCompany(const Query& query, std::string_view key, CommandContext& context) {
    const std::int64_t company = requestedCompany(query, context);
    if (wholeNumber(query.value(key)) != company) {
        throw Refusal{"A empresa \"" + query.value(key) +
                      "\" não é a do servidor de dados. Saia do sistema e entre de novo."};
    }
    return company;
}

Establishment requestedEstablishment(const Query& query, CommandContext& context) {
    return requestedEstablishment(query, "ID_ETB_TARN", context);
}

Establishment requestedEstablishment(const Query& query, std::string_view key,
                                     CommandContext& context) {
    const auto company = requestedCompany(query, context);
    const std::string& text = query.value(key);
    const std::optional<std::int64_t> code = wholeNumber(text);
    Rows rows = context.database.select(
        "SELECT id, company_id FROM establishment"
        " WHERE code = ? AND company_id = ?",
        {code.value_or(-1), company});
    if (!rows.next()) {
        throw Refusal{"O estabelecimento \"" + text +
                      "\" não existe nesta empresa. Saia do sistema e entre de novo."};
    }
    return Establishment{rows.integer(0), rows.integer(1)};
}

std::string requestedUser(const Query& query, std::string_view key, std::int64_t company,
                          CommandContext& context) {
    const std::string& code = query.value(key);
    Rows rows = context.database.select(
        "SELECT code FROM app_user WHERE code = ? AND company_id = ?", {code, company});
    if (!rows.next()) {
        throw Refusal{"O usuário \"" + code +
                      "\" não está cadastrado nesta empresa. Saia do sistema e entre de novo."};
    }
    return rows.text(0);
}

Reply listNamedBranches(const Query& query, std::string_view companyKey, CommandContext& context) {
    const auto company = requestedCompany(query, companyKey, context);
    requestedUser(query, "nId_Pes_Usu", company, context);
    return readRowset(context.database, branchFields,
                      "FROM establishment WHERE company_id = ? ORDER BY id", {company});
}

}  // namespace tarn::practice
