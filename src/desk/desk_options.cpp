#include "desk/desk_options.h"

namespace tarn {
namespace {

constexpr char page[] = "/Kestomain/TarnEmissao.asp?";

constexpr char footer[] =
    "\nVariável de ambiente: TARN_SERVIDOR, endereço do servidor quando falta --servidor.\n"
    "Fim do programa: 0 encerrado pelo usuário ou por um aviso; 1 uso errado; 3 erro em tempo\n"
    "de execução.";

}  // namespace

std::string serverAddress(const std::string& typed) {
    for (const std::string scheme : {"http://", "https://"}) {
        if (typed.size() <= scheme.size() || typed.compare(0, scheme.size(), scheme) != 0) {
            continue;
        }
        if (typed.find('?') != std::string::npos) {
            return typed;
        }
        const std::size_t bar = typed.find('/', scheme.size());
        const bool noPage = bar == std::string::npos || bar + 1 == typed.size();
        return noPage ? typed.substr(0, bar) + page : typed + "?";
    }
    return {};
}

std::variant<Options, cli::Ending> readOptions(int argc, const char* const* argv,
                                               const std::string& environmentServer,
                                               const std::string& fallback) {
    Options options;
    std::string server = environmentServer.empty() ? fallback : environmentServer;
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
    options.baseUrl = serverAddress(server);
    if (options.baseUrl.empty()) {
        return line.wrong("o endereço do servidor deve começar com http:// ou https://: \"" +
                          server + "\".");
    }
    return options;
}

}  // namespace tarn
