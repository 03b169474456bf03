#include <memory>
#include <optional>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "billing/order_sheet.h"
#include "gateway/answer.h"

namespace tarn::print {
namespace {

struct OrderRequest {
    Sessao session;
    std::vector<std::string> files;
};

// A refused order is no sheet: decision D117.
void demandAccepted(const XmlDocument& order) {
    const std::optional<std::string> status = statusIfAny(order);
    if (status && *status != "OK") {
        throw cli::WrongUsage(*status);
    }
}

void print(const OrderRequest& request, PrintEnvironment& desk) {
    std::vector<XmlDocument> documents = readAnswers(request.files);
    for (const XmlDocument& document : documents) {
        demandAccepted(document);
    }
    Environment& environment = desk.environment();
    for (XmlDocument& document : documents) {
        printOrder(environment, request.session, document);
    }
}

}  // namespace

void declareOrder(cli::CommandLine& line, Choice& choice) {
    cli::Command command = line.command("ordem", "imprime folhas de ordem de faturamento");
    const auto request = std::make_shared<OrderRequest>();
    command.whole("--empresa", request->session.NCOMPANYCODE, "Código da empresa").required();
    command.texts("documentos", request->files, "documentos de ordem (DOC.xml)")
        .called("ARQUIVO")
        .required();
    printWhenChosen(command, choice, request, print);
}

}  // namespace tarn::print
