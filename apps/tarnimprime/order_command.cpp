#include <memory>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "billing/order_sheet.h"

namespace tarn::print {
namespace {

struct Request {
    Sessao session;
    std::vector<std::string> files;
};

void print(const Request& request, PrintEnvironment& desk) {
    std::vector<XmlDocument> documents = readAnswers(request.files);
    Environment& environment = desk.environment();
    for (XmlDocument& document : documents) {
        printOrder(environment, request.session, document);
    }
}

}  // namespace

void declareOrder(CLI::App& app, Choice& choice) {
    CLI::App* commands = app.add_subcommand("ordem", "Imprime folhas de ordem de faturamento");
    const auto request = std::make_shared<Request>();
    commands->add_option("--empresa", request->session.NCOMPANYCODE, "Código da empresa")
        ->required();
    commands->add_option("documentos", request->files, "Documentos de ordem (DOC.xml)")->required();
    commands->callback([&choice, request] {
        choice.run = [request](PrintEnvironment& desk) { print(*request, desk); };
    });
}

}  // namespace tarn::print
