#include "desk/desk_options.h"

#include <optional>

#include "desk/server_address.h"

namespace tarn {
namespace {

constexpr char footer[] =
    "\nVariável de ambiente: TARN_SERVIDOR, endereço do servidor quando falta --servidor.\n"
    "Fim do programa: 0 encerrado pelo usuário ou por um aviso; 1 uso errado; 3 erro em tempo\n"
    "de execução.";

}  // namespace

std::variant<Options, cli::Ending> readOptions(int argc, const char* const* argv,
                                               const std::string& environmentServer,
                                               const std::string& fallback) {
    Options options;
    std::optional<std::string> server;
    std::optional<std::string> virtualPrinter;
    cli::CommandLine line("tarnemissao",
                          "TarnEmissao: emissão de notas, duplicatas, boletos, cheques e "
                          "etiquetas.");
    line.text("--servidor", server, "endereço do servidor (http:// ou https://)").called("URL");
    line.text("--impressora-virtual", virtualPrinter,
              "grava cada impressão em um arquivo desta pasta")
        .called("PASTA");
    line.codePage(options.codePage);
    line.text("--pasta-figuras", options.pictureFolder,
              "pasta das figuras das duplicatas (LOGODUPL.jpg e outras)")
        .called("PASTA");
    line.flag("--selecao-etiquetas", options.labelSelection,
              "abre a seleção de etiquetas depois da entrada");
    line.footer(footer);
    if (auto ending = line.read(argc, argv)) {
        return *ending;
    }
    // Taken as not given, it would send the notes to the real printer.
    if (virtualPrinter == "") {
        return line.wrong("--impressora-virtual pede o nome de uma pasta.");
    }
    options.virtualPrinter = virtualPrinter.value_or("");
    std::string source = "--servidor";
    if (!server && !environmentServer.empty()) {
        source = "TARN_SERVIDOR";
        server = environmentServer;
    }
    options.serverReplaced = server.has_value();
    const std::string typed = server.value_or(fallback);
    const ServerAddress address = serverAddress(typed);
    if (address.url.empty()) {
        return line.wrong(source + " \"" + shownAddress(typed) + "\": " + address.refusal);
    }
    options.baseUrl = address.url;
    return options;
}

}  // namespace tarn
