#include <memory>
#include <optional>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "common/raw_channel.h"
#include "forms/document_ruler.h"
#include "notes/form_ruler.h"
#include "notes/layouts/layouts.h"
#include "platform/environment.h"

namespace tarn::print {
namespace {

constexpr std::int32_t mostItems = 100;  // as many as the virtual printer draws

struct RulerRequest {
    std::string form;
    std::optional<std::int32_t> itemLines;
};

void print(const RulerRequest& request, PrintEnvironment& desk) {
    Environment& environment = desk.environment();
    RawChannel channel(environment.spooler, environment.codePage);
    const notes::Form* form = notes::formCalled(request.form);
    if (form == nullptr) {
        if (request.itemLines) {
            throw cli::WrongUsage("--itens só vale para um formulário de nota.");
        }
        if (!dotmatrix::printDocumentRuler(request.form, channel)) {
            throw cli::WrongUsage("não há formulário \"" + request.form +
                                  "\". Veja os nomes com tarnimpressora --formularios.");
        }
        return;
    }
    const int lines = request.itemLines.value_or(notes::itemLinesOfSheet(*form));
    channel.announce({.document = JobDocument::Note, .form = request.form, .itemLines = lines});
    notes::printFormRuler(*form, lines, channel);
}

}  // namespace

void declareRuler(cli::CommandLine& line, Choice& choice) {
    cli::Command command =
        line.command("regua", "imprime uma régua e os cantos das caixas no papel de um formulário");
    const auto request = std::make_shared<RulerRequest>();
    command
        .text("--formulario", request->form,
              "nome do formulário, como em tarnimpressora --formularios")
        .required();
    command.whole("--itens", request->itemLines, 0, mostItems,
                  "linhas de item do formulário de nota (usual: as que enchem 11 polegadas)");
    printWhenChosen(command, choice, request, print);
}

}  // namespace tarn::print
