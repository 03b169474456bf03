// Every command of the page, asked in the very text that the desk sends: the shape
// of its answer, and what it leaves in the database.
#pragma once

#include <set>
#include <string>
#include <string_view>

namespace tarn::practice::test {

void expectEveryCommandAnswered(const std::string& address);  // of an empty database
std::set<std::string_view> commandsAsked();

}  // namespace tarn::practice::test
