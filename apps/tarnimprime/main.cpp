// Prints documents from saved answers, without server or window.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn::print {

void show(std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
}

// Read here: the parser itself would take a zero in front for an octal number, and so
// pick another company's form.
void declareCode(CLI::App& commands, const std::string& name, std::int32_t& code,
                 const std::string& description) {
    const auto read = [name, &code](const std::string& text) {
        const char* const end = text.data() + text.size();
        const auto parsed = std::from_chars(text.data(), end, code);
        if (parsed.ec != std::errc() || parsed.ptr != end) {
            throw CLI::ConversionError(name, text);
        }
    };
    commands.add_option_function<std::string>(name, read, description)
        ->required()
        ->type_name("NÚMERO");
}

namespace {

constexpr char optionGroup[] = "Opções";

// CLI11 speaks English; what it found wrong is said again by its kind.
std::string wrongUsage(const CLI::ParseError& error) {
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
        return "falta um comando, uma opção ou um valor obrigatório.";
    }
    if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr ||
        dynamic_cast<const CLI::ValidationError*>(&error) != nullptr) {
        return "um código pede um número inteiro.";
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        return "há opções ou valores a mais na linha de comando. Um valor que começa com \"-\" "
               "vem depois de \"--\".";
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return "uma opção foi dada sem o seu valor ou mais de uma vez.";
    }
    return "linha de comando inválida.";
}

int failure(const std::string& text, int status) {
    std::fprintf(stderr, "tarnimprime: %s\n", text.c_str());
    return status;
}

void declare(CLI::App& app, GlobalOptions& options, Choice& choice) {
    app.get_formatter()->label("Usage", "Uso");
    app.get_formatter()->label("OPTIONS", "OPÇÕES");
    app.get_formatter()->label("Positionals", "Valores");
    app.get_formatter()->label("SUBCOMMAND", "COMANDO");
    app.get_formatter()->label("TEXT", "TEXTO");
    app.get_formatter()->label("REQUIRED", "(obrigatório)");
    app.option_defaults()->group(optionGroup);
    app.set_help_flag("-h,--ajuda,--help", "Mostra esta ajuda")->group(optionGroup);
    app.add_option("--destino", options.destination,
                   "Pasta onde cada trabalho é gravado (job-001.prn, ...) em vez de impresso");
    app.add_option("--formato", options.format,
                   "Documentos desenhados na pasta: pdf (usual) ou ops, a lista do que é "
                   "desenhado");
    app.add_option("--pagina-de-codigo", options.codePage,
                   "Página de código da impressora: 1252 (usual), 850 ou 860");
    declareNote(app, choice);
    declareLadder(app, choice);
    declareBills(app, choice);
    declareOrder(app, choice);
    declareSlips(app, choice);
    declareLabels(app, choice);
    declareLabelSelection(app, choice);
    declareCheque(app, choice);
    declareRules(app, choice);
    app.require_subcommand(1);
    for (CLI::App* commands : app.get_subcommands({})) {
        commands->fallthrough()->group("Comandos");
        commands->get_help_ptr()->group(optionGroup);
    }
}

// As CLI11 takes them, the last one first. "--opcao=" gives the empty text, as
// "--opcao ''" does; the library would take it for an option without its value.
std::vector<std::string> arguments(int argc, char** argv) {
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

int execute(int argc, char** argv) {
    GlobalOptions options;
    Choice choice;
    CLI::App app("Imprime documentos a partir de respostas gravadas do servidor.", "tarnimprime");
    declare(app, options, choice);
    try {
        app.parse(arguments(argc, argv));
    } catch (const CLI::CallForHelp&) {
        std::fputs(app.help().c_str(), stdout);
        return statusDone;
    } catch (const CLI::ParseError& error) {
        return failure(wrongUsage(error) + " Veja como se usa com --ajuda.", statusUsage);
    }
    PrintEnvironment desk(options);
    try {
        choice.run(desk);
    } catch (const UsageError& error) {
        return failure(error.what(), statusUsage);
    } catch (const RuntimeError& error) {
        return failure(replaceAll(reportText(error, false), "\r", "\n"), runtimeErrorStatus);
    }
    return choice.status;
}

}  // namespace
}  // namespace tarn::print

int main(int argc, char** argv) {
    try {
        return tarn::print::execute(argc, argv);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tarnimprime: erro inesperado: %s\n", error.what());
        return tarn::print::statusUsage;
    }
}
