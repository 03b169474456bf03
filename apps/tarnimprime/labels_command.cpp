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
        throw UsageError("--formulario pede um número de 1 a 4.");
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

void declareLabels(CLI::App& app, Choice& choice) {
    CLI::App* commands = app.add_subcommand("etiquetas", "Imprime etiquetas da fila");
    const auto request = std::make_shared<LabelRequest>();
    commands
        ->add_option("--formulario", request->form,
                     "1 PIMACO 6280, 2 matricial, 3 A5, 4 A4 com remetente")
        ->required();
    commands->add_option("--remetente", request->sender, "Dados do remetente (REM.xml)")
        ->required();
    commands->add_option("documentos", request->files, "Etiquetas (ETQ.xml)")->required();
    commands->callback([&choice, request] {
        choice.run = [request](PrintEnvironment& desk) { print(*request, desk); };
    });
}

void declareLabelSelection(CLI::App& app, Choice& choice) {
    CLI::App* commands =
        app.add_subcommand("etiquetas-selecao", "Imprime etiquetas da seleção de clientes");
    const auto request = std::make_shared<SelectionRequest>();
    declareTicks(*commands, request->tick);
    commands->add_option("documentos", request->files, "Clientes da pesquisa (ROWS.xml)")
        ->required();
    commands->callback([&choice, request] {
        choice.run = [request](PrintEnvironment& desk) { print(*request, desk); };
    });
}

}  // namespace tarn::print
