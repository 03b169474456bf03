// Prints documents from saved answers, without server or window.
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "cli/arguments.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn::print {

void show(std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fputc('\n', stdout);
}

namespace {

int failure(const std::string& text, int status) {
    std::fputs(forTerminal("tarnimprime: " + text + "\n").c_str(), stderr);
    return status;
}

void declare(cli::CommandLine& line, GlobalOptions& options, Choice& choice) {
    line.text("--destino", options.destination,
              "pasta onde cada trabalho é gravado (job-001.prn, ...) em vez de impresso")
        .called("PASTA");
    line.oneOf("--formato", options.format, {"pdf", "ops"},
               "documentos desenhados na pasta: pdf ou ops, a lista do que é desenhado");
    line.codePage(options.codePage);
    declareNote(line, choice);
    declareLadder(line, choice);
    declareBills(line, choice);
    declareOrder(line, choice);
    declareSlips(line, choice);
    declareLabels(line, choice);
    declareLabelSelection(line, choice);
    declareCheque(line, choice);
    declareRuler(line, choice);
    declareRules(line, choice);
}

int execute(int argc, char** argv) {
    const cli::Arguments arguments(argc, argv);
    GlobalOptions options;
    Choice choice;
    cli::CommandLine line("tarnimprime",
                          "Imprime documentos a partir de respostas gravadas do servidor.");
    declare(line, options, choice);
    if (const auto ending = line.read(arguments.count(), arguments.values())) {
        return cli::say(*ending);
    }
    PrintEnvironment desk(options);
    try {
        choice.run(desk);
    } catch (const cli::WrongUsage& error) {
        return failure(error.what(), cli::statusUsage);
    } catch (const RuntimeError& error) {
        return failure(replaceAll(reportText(error), "\r", "\n"), runtimeErrorStatus);
    }
    if (desk.pagesRefused()) {
        return failure("a impressora recusou o documento, todo ou em parte.", statusRefused);
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
        return tarn::cli::statusUsage;
    }
}
