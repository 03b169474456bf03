#include <memory>
#include <utility>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "apps/tarnimprime/ticks.h"
#include "labels/customer_selection.h"
#include "labels/print_labels.h"
#include "labels/print_selection.h"
#include "runtime/numbers.h"

namespace tarn::print {
namespace {

struct LabelRequest {
    std::string form;
    std::string sender;
    std::vector<std::string> files;
};

void print(const LabelRequest& request, PrintEnvironment& desk) {
    if (!isNumeric(request.form)) {
        cli::refuseValue("--formulario", "um número de 1 a 4", request.form);
    }
    const labels::LabelForm form = labels::labelFormOf(request.form);
    const labels::Sender sender = labels::readSender(readAnswer(request.sender));
    std::vector<XmlDocument> documents = readAnswers(request.files);
    Environment& environment = desk.environment();
    for (XmlDocument& document : documents) {
        labels::printLabels(environment, form, {std::move(document), sender}, {});
    }
}

struct SelectionRequest {
    TickedRows tick;
    std::vector<std::string> files;
};

void print(const SelectionRequest& request, PrintEnvironment& desk) {
    std::vector<std::vector<GridRow>> lists;
    for (const XmlDocument& document : readAnswers(request.files)) {
        lists.push_back(labels::customersOf(document));
        tickRows(lists.back(), request.tick);
    }
    Environment& environment = desk.environment();
    for (const std::vector<GridRow>& customers : lists) {
        labels::printSelection(environment, customers, {});
    }
}

}  // namespace

void declareLabels(cli::CommandLine& line, Choice& choice) {
    cli::Command command = line.command("etiquetas", "imprime etiquetas da fila");
    const auto request = std::make_shared<LabelRequest>();
    command
        .text("--formulario", request->form, "1 PIMACO 6280, 2 matricial, 3 A5, 4 A4 com remetente")
        .required();
    command.text("--remetente", request->sender, "dados do remetente (REM.xml)")
        .called("ARQUIVO")
        .required();
    command.texts("documentos", request->files, "etiquetas (ETQ.xml)").called("ARQUIVO").required();
    printWhenChosen(command, choice, request, print);
}

void declareLabelSelection(cli::CommandLine& line, Choice& choice) {
    cli::Command command =
        line.command("etiquetas-selecao", "imprime etiquetas da seleção de clientes");
    const auto request = std::make_shared<SelectionRequest>();
    declareTicks(command, request->tick);
    command.texts("documentos", request->files, "clientes da pesquisa (ROWS.xml)")
        .called("ARQUIVO")
        .required();
    printWhenChosen(command, choice, request, print);
}

}  // namespace tarn::print
