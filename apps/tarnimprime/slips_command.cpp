#include <algorithm>
#include <fstream>
#include <iterator>
#include <memory>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "apps/tarnimprime/ticks.h"
#include "platform/message_boxes.h"
#include "runtime/file_names.h"
#include "runtime/text.h"
#include "slips/portfolio.h"
#include "slips/print_slips.h"
#include "slips/slip_search.h"

namespace tarn::print {
namespace {

constexpr int chosenPosition = 1;  // any but the one that stands for no portfolio

struct SlipsRequest {
    Sessao session;
    std::string portfolio;
    SlipRun slips;
    TickedRows tick;
    std::vector<std::string> documents;
};

// What would be written to the server, one request a line. There is none, so each write
// fails, which the run doesn't look at.
class RequestsInFile : public HttpLoader {
public:
    // Without a directory they are dropped.
    explicit RequestsInFile(const std::optional<std::string>& folder) {
        if (!folder) {
            return;
        }
        const std::string file = *folder + "/requests.txt";
        output_.open(pathOf(file), std::ios::binary | std::ios::trunc);
        if (!output_) {
            throw cli::WrongUsage("não foi possível gravar \"" + file +
                                  "\". Confira a permissão de gravação.");
        }
    }
    HttpAnswer get(const std::string& request) override {
        if (output_.is_open()) {
            output_ << escapedLine(request) << '\n' << std::flush;
        }
        return {};
    }

private:
    std::ofstream output_;
};

Environment withRequests(const Environment& desk, HttpLoader& requests) {
    return {.http = requests,
            .spooler = desk.spooler,
            .printer = desk.printer,
            .boxes = desk.boxes,
            .clock = desk.clock,
            .machine = desk.machine,
            .baseUrl = {},
            .codePage = desk.codePage};
}

// The rows of all files, one number after the other; `tick` holds for each file.
std::vector<GridRow> tickedRows(const SlipsRequest& request) {
    std::vector<GridRow> all;
    for (const XmlDocument& answer : readAnswers(request.documents)) {
        std::vector<GridRow> lines = slipRows(answer);
        tickRows(lines, request.tick);
        std::move(lines.begin(), lines.end(), std::back_inserter(all));
    }
    return all;
}

void print(const SlipsRequest& request, PrintEnvironment& desk) {
    const Portfolio portfolio = portfolioOf(readAnswer(request.portfolio));
    std::vector<GridRow> lines = tickedRows(request);
    const Environment& noServer = desk.environment();
    RequestsInFile requests(desk.destination());
    Environment environment = withRequests(noServer, requests);
    if (const auto refuse = printRefusal(chosenPosition, request.slips.next)) {
        environment.boxes.show({std::string(refuse->text), BoxIcon::Information, "TArn"});
        return;
    }
    printSlips(environment, request.session, portfolio, request.slips, lines,
               {.untick = [&lines](std::size_t i) { lines[i].ticked = false; }});
}

}  // namespace

void declareSlips(cli::CommandLine& line, Choice& choice) {
    cli::Command command = line.command("boletos", "imprime boletos bancários");
    const auto request = std::make_shared<SlipsRequest>();
    request->session.SERVERNAME = "SRV";
    request->session.UserCode = "U1";
    command.whole("--empresa", request->session.NCOMPANYCODE, "Código da empresa").required();
    command.whole("--estabelecimento", request->session.ID_ETB_TARN, "Código do estabelecimento")
        .required();
    command.text("--carteira", request->portfolio, "carteira de cobrança (CART.xml)")
        .called("ARQUIVO")
        .required();
    command
        .text("--proximo", request->slips.next,
              "Número do próximo boleto, sem agência e sem dígito verificador")
        .required();
    command.flag("--inclui-carteira", request->slips.includesPortfolio,
                 "inclui os documentos na carteira: vale o banco dela, não o de cada um");
    declareTicks(command, request->tick);
    command.texts("documentos", request->documents, "documentos da pesquisa (DOCS.xml)")
        .called("ARQUIVO")
        .required();
    printWhenChosen(command, choice, request, print);
}

}  // namespace tarn::print
