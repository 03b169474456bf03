#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <iterator>
#include <limits>
#include <string_view>
#include <system_error>
#include <utility>

#include "cli/description.h"
#include "runtime/version.h"

namespace tarn::cli {
namespace {

constexpr char optionGroup[] = "Opções";
constexpr char commandGroup[] = "Comandos";
constexpr char codePageOption[] = "--pagina-de-codigo";
constexpr std::array codePages{1252, 850, 860};
// For the build alone, so no help names it.
constexpr std::string_view descriptionOption = "--descreve-opcoes";
constexpr std::size_t helpColumn = 32;

std::string joined(const std::vector<std::string>& words, const std::string& last) {
    std::string all;
    for (std::size_t i = 0; i < words.size(); ++i) {
        all += i == 0 ? "" : i + 1 == words.size() ? last : ", ";
        all += words[i];
    }
    return all;
}

std::optional<std::int32_t> wholeOf(const std::string& text, std::int32_t least,
                                    std::int32_t most) {
    std::int32_t number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    if (read.ec != std::errc() || read.ptr != end || number < least || number > most) {
        return std::nullopt;
    }
    return number;
}

// As the library takes them, the last one first. "--opcao=" gives the empty text, as
// "--opcao ''" does; the library would take it for an option without its value.
std::vector<std::string> argumentsOf(int argc, const char* const* argv) {
    std::vector<std::string> all;
    bool values = false;  // after "--"
    for (int i = 1; i < argc; ++i) {
        const std::string_view one = argv[i];
        values = values || one == "--";
        if (!values && one.starts_with("--") && one.find('=') == one.size() - 1) {
            all.emplace_back(one.substr(0, one.size() - 1));
            all.emplace_back();
        } else {
            all.emplace_back(one);
        }
    }
    std::ranges::reverse(all);
    return all;
}

std::string nameOf(const CLI::Option& option) {
    return option.get_positional() ? option.get_name(true) : option.get_name();
}

// The library's sentence begins with the option's name, without dashes for one that takes no
// value.
std::string mismatch(const CLI::App& app, const CLI::ArgumentMismatch& error) {
    const std::string sentence = error.what();
    const std::string name = sentence.substr(0, sentence.find_first_of(": "));
    const CLI::Option* option = app.get_option_no_throw(name);
    for (const CLI::App* command : app.get_subcommands()) {
        option = option == nullptr ? command->get_option_no_throw(name) : option;
    }
    if (option == nullptr) {
        return "a opção --" + name + " não leva valor.";
    }
    return option->count() > 1 ? "a opção " + name + " foi dada mais de uma vez."
                               : "falta o valor da opção " + name + ".";
}

}  // namespace

struct Command::State {
    State(const std::string& program, const std::string& about) : app(about, program) {}

    CLI::App app;
    // What reads each option's values when the whole line is there.
    std::vector<std::pair<const CLI::Option*, std::function<void(const CLI::results_t&)>>> readers;
    std::vector<std::string> commands;
    KnownWords words;
};

void refuseValue(const std::string& option, const std::string& wanted, const std::string& text) {
    throw WrongUsage(option + " pede " + wanted + ": \"" + text + "\" não serve.");
}

int say(const Ending& ending) {
    std::fputs(ending.text.c_str(), ending.status == statusDone ? stdout : stderr);
    return ending.status;
}

Option& Option::required() {
    option_->required();
    return *this;
}

Option& Option::called(const std::string& kind) {
    option_->type_name(kind);
    return *this;
}

Command::Command(std::shared_ptr<State> state, CLI::App& app)
    : state_(std::move(state)), app_(&app) {}

Option Command::value(const std::string& name, const std::string& about, Reader read) {
    return valueAmong({}, name, about, std::move(read));
}

Option Command::valueAmong(const std::vector<std::string>& words, const std::string& name,
                           const std::string& about, Reader read) {
    CLI::Option* option = app_->add_option(
        name, [](const CLI::results_t&) { return true; }, about);
    state_->readers.emplace_back(
        option, [read = std::move(read)](const CLI::results_t& texts) { read(texts.front()); });
    option->type_name("TEXTO");
    if (!words.empty()) {
        state_->words.emplace(option, words);
    }
    return Option(*option);
}

Option Command::text(const std::string& name, std::string& into, const std::string& about) {
    const std::string usual = into.empty() ? "" : " [" + into + "]";
    return value(name, about + usual, [&into](const std::string& text) { into = text; });
}

Option Command::text(const std::string& name, std::optional<std::string>& into,
                     const std::string& about) {
    return value(name, about, [&into](const std::string& text) { into = text; });
}

Option Command::texts(const std::string& name, std::vector<std::string>& into,
                      const std::string& about) {
    CLI::Option* option = app_->add_option(
        name, [](const CLI::results_t&) { return true; }, about);
    option->expected(-1)->take_all()->allow_extra_args(option->get_positional());
    option->type_name("TEXTO");
    state_->readers.emplace_back(option, [&into](const CLI::results_t& texts) { into = texts; });
    return Option(*option);
}

Option Command::whole(const std::string& name, std::int32_t& into, const std::string& about) {
    return value(name, about,
                 [name, &into](const std::string& text) {
                     using Limits = std::numeric_limits<std::int32_t>;
                     const auto number = wholeOf(text, Limits::min(), Limits::max());
                     number ? void(into = *number) : refuseValue(name, "um número inteiro", text);
                 })
        .called("N");
}

Option Command::whole(const std::string& name, std::optional<std::int32_t>& into,
                      std::int32_t least, std::int32_t most, const std::string& about) {
    return value(name, about,
                 [name, &into, least, most](const std::string& text) {
                     into = wholeOf(text, least, most);
                     if (!into) {
                         refuseValue(name,
                                     "um número inteiro de " + std::to_string(least) + " a " +
                                         std::to_string(most),
                                     text);
                     }
                 })
        .called("N");
}

Option Command::oneOf(const std::string& name, std::string& into,
                      const std::vector<std::string>& words, const std::string& about) {
    const std::string usual = into.empty() ? "" : " [" + into + "]";
    return valueAmong(words, name, about + usual, [name, &into, words](const std::string& text) {
        if (std::ranges::find(words, text) == words.end()) {
            refuseValue(name, joined(words, " ou "), text);
        }
        into = text;
    });
}

Option Command::flag(const std::string& name, bool& into, const std::string& about) {
    return Option(*app_->add_flag(name, into, about)->disable_flag_override());
}

Option Command::codePage(CodePage& into) {
    std::vector<std::string> words;
    std::ranges::transform(codePages, std::back_inserter(words),
                           [](int number) { return std::to_string(number); });
    return valueAmong(words, codePageOption,
                      "página de códigos da impressora: 1252 (usual), 850 ou 860",
                      [&into](const std::string& text) {
                          for (const int known : codePages) {
                              if (text == std::to_string(known)) {
                                  into = *codePageByNumber(known);
                                  return;
                              }
                          }
                          refuseValue(codePageOption, "1252, 850 ou 860", text);
                      })
        .called("N");
}

void Command::whenChosen(std::function<void()> chosen) {
    app_->callback(std::move(chosen));
}

CommandLine::CommandLine(const std::string& program, const std::string& about)
    : CommandLine(std::make_shared<State>(program, about)) {
    const auto formatter = app_->get_formatter();
    formatter->label("Usage", "Uso");
    formatter->label("OPTIONS", "OPÇÕES");
    formatter->label("Positionals", "Valores");
    formatter->label("SUBCOMMAND", "COMANDO");
    formatter->label("REQUIRED", "(obrigatório)");
    formatter->column_width(helpColumn);
    app_->allow_windows_style_options(false);  // "/x" is a file there, too
    app_->option_defaults()->group(optionGroup);
    app_->set_help_flag("-h,--ajuda,--help", "mostra esta ajuda e termina")->group(optionGroup);
    app_->set_version_flag("--versao,--version", "TarnEmissao " + std::string(productVersion),
                           "mostra a versão e termina");
}

CommandLine::CommandLine(const std::shared_ptr<State>& state) : Command(state, state->app) {}

Command CommandLine::command(const std::string& name, const std::string& about) {
    CLI::App* command = app_->add_subcommand(name, about);
    command->fallthrough()->group(commandGroup);
    command->get_help_ptr()->group(optionGroup);
    app_->require_subcommand(1);
    state_->commands.push_back(name);
    return {state_, *command};
}

void CommandLine::footer(const std::string& text) {
    app_->footer(text);
}

Ending CommandLine::wrong(const std::string& sentence) const {
    const std::string program = app_->get_name();
    return {statusUsage,
            program + ": " + sentence + "\nUse " + program + " --ajuda para ver as opções.\n"};
}

void CommandLine::parse(int argc, const char* const* argv) {
    app_->parse(argumentsOf(argc, argv));
    for (const auto& [option, read] : state_->readers) {
        if (option->count() > 0) {
            read(option->results());
        }
    }
}

// What the line must have and hasn't.
std::string CommandLine::missing() const {
    const std::vector<CLI::App*> chosen = app_->get_subcommands();
    if (!state_->commands.empty() && chosen.empty()) {
        const std::vector<std::string> others = app_->remaining();
        const std::string known = joined(state_->commands, " ou ") + ".";
        return others.empty() ? "falta um comando: " + known
                              : "comando desconhecido: " + others.front() + ". Há " + known;
    }
    for (const CLI::App* command : chosen.empty() ? std::vector<CLI::App*>{app_} : chosen) {
        for (const CLI::Option* option : command->get_options()) {
            if (option->get_required() && option->count() == 0) {
                return (option->get_positional() ? "falta o valor " : "falta a opção ") +
                       nameOf(*option) + ".";
            }
        }
    }
    return "falta uma opção.";
}

// What the line has and mustn't.
std::string CommandLine::unknown() const {
    std::string words;
    bool options = false;
    for (const std::string& word : app_->remaining(true)) {
        words += words.empty() ? word : " " + word;
        options = options || word.starts_with("-");
    }
    return "opção ou argumento desconhecido: " + words + "." +
           (options && !state_->commands.empty()
                ? " Um valor que começa com \"-\" vem depois de \"--\"."
                : "");
}

std::optional<Ending> CommandLine::read(int argc, const char* const* argv) {
    if (argc == 2 && argv[1] == descriptionOption) {
        return Ending{statusDone, described(*app_, state_->words)};
    }
    try {
        parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return Ending{statusDone, app_->help()};
    } catch (const CLI::CallForVersion& said) {
        return Ending{statusDone, std::string(said.what()) + "\n"};
    } catch (const CLI::RequiredError&) {
        return wrong(missing());
    } catch (const CLI::ExtrasError&) {
        return wrong(unknown());
    } catch (const CLI::ArgumentMismatch& error) {
        return wrong(mismatch(*app_, error));
    } catch (const CLI::ParseError&) {
        return wrong("linha de comando inválida.");
    } catch (const WrongUsage& error) {
        return wrong(error.what());
    }
    return std::nullopt;
}

}  // namespace tarn::cli
