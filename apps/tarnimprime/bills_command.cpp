#include <memory>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "apps/tarnimprime/ticks.h"
#include "bills/bill_search.h"
#include "bills/print_bills.h"

namespace tarn::print {
namespace {

struct BillsRequest {
    std::int32_t company = 0;
    std::string data;
    bool triplicate = false;
    TickedRows tick;
    std::optional<std::string> pictureFolder;
    std::vector<std::string> documents;
};

// The grid of each file, ticked, before anything prints.
std::vector<std::vector<GridRow>> gridsOf(const BillsRequest& request) {
    std::vector<std::vector<GridRow>> grades;
    for (const XmlDocument& answer : readAnswers(request.documents)) {
        grades.push_back(billRows(answer));
        tickRows(grades.back(), request.tick);
    }
    return grades;
}

void print(const BillsRequest& request, PrintEnvironment& desk) {
    const XmlDocument data = readAnswer(request.data);
    const std::vector<std::vector<GridRow>> grades = gridsOf(request);
    Environment& environment = desk.environment();
    const BillPictures pictures =
        loadPictures(request.pictureFolder.value_or(environment.pictureFolder));
    for (const std::vector<GridRow>& lines : grades) {
        printBills(environment, request.company, data,
                   {.lines = lines, .triplicate = request.triplicate, .pictures = pictures}, {});
    }
}

}  // namespace

void declareBills(cli::CommandLine& line, Choice& choice) {
    cli::Command command = line.command("duplicatas", "imprime duplicatas e recibos");
    const auto request = std::make_shared<BillsRequest>();
    command.whole("--empresa", request->company, "Código da empresa").required();
    command.text("--dados", request->data, "dados da empresa (EMP.xml)")
        .called("ARQUIVO")
        .required();
    command.flag("--triplicata", request->triplicate, "triplicatas em vez de duplicatas");
    declareTicks(command, request->tick);
    command
        .text("--pasta-figuras", request->pictureFolder,
              "pasta das figuras da página (LOGODUPL.jpg e outras)")
        .called("PASTA");
    command.texts("documentos", request->documents, "documentos da pesquisa (DOCS.xml)")
        .called("ARQUIVO")
        .required();
    printWhenChosen(command, choice, request, print);
}

}  // namespace tarn::print
