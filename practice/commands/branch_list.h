// The company's establishments by name, as two screens of the labels list them.
#pragma once

#include "practice/commands/command.h"

namespace tarn::practice {

Reply listNamedBranches(const Query& query, std::string_view companyKey, CommandContext& context);

}  // namespace tarn::practice
