#include "cli/description.h"

#include <CLI/CLI.hpp>
#include <initializer_list>
#include <sstream>

namespace tarn::cli {
namespace {

constexpr char part = '\t';

std::string line(std::initializer_list<std::string> parts) {
    std::string all;
    for (const std::string& one : parts) {
        all += (all.empty() ? "" : std::string(1, part)) + one;
    }
    return all + '\n';
}

std::string withCommas(const std::vector<std::string>& words) {
    std::string all;
    for (const std::string& word : words) {
        all += (all.empty() ? "" : ",") + word;
    }
    return all;
}

std::string demandsOf(const CLI::Option& option) {
    std::vector<std::string> demands;
    if (option.get_required()) {
        demands.emplace_back("required");
    }
    if (option.get_multi_option_policy() == CLI::MultiOptionPolicy::TakeAll) {
        demands.emplace_back("repeated");
    }
    return withCommas(demands);
}

std::string optionLine(const std::string& command, const CLI::Option& option,
                       const KnownWords& known) {
    const auto words = known.find(&option);
    const bool byPosition = option.get_positional();
    return line({byPosition ? "value" : "option", command, option.get_name(byPosition, !byPosition),
                 option.get_expected_max() == 0 ? "" : option.get_type_name(),
                 words == known.end() ? "" : withCommas(words->second), demandsOf(option),
                 option.get_description()});
}

std::string optionLines(const std::string& command, const CLI::App& app, const KnownWords& known) {
    std::string all;
    for (const CLI::Option* option : app.get_options()) {
        all += optionLine(command, *option, known);
    }
    return all;
}

}  // namespace

std::string described(const CLI::App& app, const KnownWords& words) {
    std::string all = line({"program", app.get_name(), app.get_description()});
    all += optionLines("", app, words);
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; })) {
        all += line({"command", command->get_name(), command->get_description()});
        all += optionLines(command->get_name(), *command, words);
    }
    std::istringstream footer(app.get_footer());
    for (std::string said; std::getline(footer, said);) {
        all += line({"footer", said});
    }
    return all;
}

}  // namespace tarn::cli
