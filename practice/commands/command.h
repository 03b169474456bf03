// The page's commands: a name, the shape of its answer, the function that
// answers it. A new command is one row in the list of its subject.
#pragma once

#include <QDate>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "practice/commands/answer.h"
#include "practice/commands/query_text.h"
#include "practice/database/database.h"

namespace tarn::practice {

struct CommandContext {
    Database& database;
    QDate today;
};

using CommandHandler = Reply (*)(const Query& query, CommandContext& context);

struct Command {
    std::string_view name;
    Shape shape;
    CommandHandler handler;
};

std::span<const Command> sessionCommands();
std::span<const Command> orderCommands();
std::span<const Command> noteCommands();
std::span<const Command> documentCommands();
std::span<const Command> slipCommands();
std::span<const Command> chequeCommands();
std::span<const Command> labelCommands();
std::span<const Command> selectionCommands();

// All subjects' commands, in the order of the subjects.
std::vector<Command> allCommands();
const Command* findCommand(std::string_view name);  // letters' case doesn't matter

// What a request may see: the company whose data server it names, and of it the
// establishment it names. These throw a Refusal where there is no such thing.
struct Establishment {
    std::int64_t id = 0;  // the database's own, not the code on the wire
    std::int64_t company = 0;
};

std::int64_t requestedCompany(const Query& query, CommandContext& context);
// Also for a company that isn't the data server's, where `key` names one.
std::int64_t requestedCompany(const Query& query, std::string_view key, CommandContext& context);
Establishment requestedEstablishment(const Query& query, CommandContext& context);
// The same, under a key of the command's own.
Establishment requestedEstablishment(const Query& query, std::string_view key,
                                     CommandContext& context);

// Also for a user that isn't of the company.
std::string requestedUser(const Query& query, std::string_view key, std::int64_t company,
                          CommandContext& context);

// The company's establishments by name, as two screens of the labels list them.
Reply listNamedBranches(const Query& query, std::string_view companyKey, CommandContext& context);

}  // namespace tarn::practice
