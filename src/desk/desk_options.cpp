#include "desk/desk_options.h"

#include <CLI/CLI.hpp>

namespace tarn {
namespace {

constexpr char page[] = "/Kestomain/TarnEmissao.asp?";

constexpr char footer[] =
    "\nVariável de ambiente: TARN_SERVIDOR, endereço do servidor quando falta --servidor.\n"
    "Fim do programa: 0 encerrado pelo usuário ou por um aviso; 1 uso errado; 3 erro em tempo\n"
    "de execução.";

std::string usageError(const std::string& text) {
    return "tarnemissao: " + text + "\nUse tarnemissao --ajuda para ver as opções.\n";
}

void portugueseLabels(CLI::App& app) {
    auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Uso");
    formatter->label("OPTIONS", "OPÇÕES");
    formatter->column_width(32);
    app.formatter(formatter);
}

// The option's or argument's own words out of the parser's English sentence.
std::string asMessage(const CLI::ParseError& error) {
    const std::string sentence = error.what();
    const std::size_t colonAt = sentence.find(": ");
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return "falta o valor da opção " + sentence.substr(0, colonAt) + ".";
    }
    const std::string words = colonAt == std::string::npos ? "" : sentence.substr(colonAt + 2);
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        return "opção ou argumento desconhecido: " + words + ".";
    }
    return "valor que não serve: " + words + ".";
}

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

std::variant<Options, NoStart> readOptions(int argc, const char* const* argv,
                                           const std::string& environmentServer,
                                           const std::string& fallback) {
    Options options;
    std::string server = environmentServer.empty() ? fallback : environmentServer;
    int page8Bits = 1252;
    CLI::App app("TarnEmissao: emissão de notas, duplicatas, boletos, cheques e etiquetas.",
                 "tarnemissao");
    portugueseLabels(app);
    app.option_defaults()->group("Opções");
    app.set_help_flag("-h,--ajuda,--help", "mostra esta ajuda e termina")->group("Opções");
    app.set_version_flag("--versao,--version", std::string("TarnEmissao ") + TARN_VERSION,
                         "mostra a versão e termina");
    app.add_option("--servidor", server, "endereço do servidor (http:// ou https://)")
        ->type_name("URL");
    const CLI::Option* virtualPrinter =
        app.add_option("--impressora-virtual", options.virtualPrinter,
                       "grava cada impressão em um arquivo desta pasta")
            ->type_name("PASTA");
    app.add_option("--pagina-de-codigo", page8Bits,
                   "página de caracteres da impressora: 1252, 850 ou 860")
        ->type_name("NUM");
    app.add_option("--pasta-figuras", options.pictureFolder,
                   "pasta das figuras das duplicatas (LOGODUPL.jpg e outras)")
        ->type_name("PASTA");
    app.add_flag("--selecao-etiquetas", options.labelSelection,
                 "abre a seleção de etiquetas depois da entrada");
    app.footer(footer);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return NoStart{0, app.help()};
    } catch (const CLI::CallForVersion& version) {
        return NoStart{0, std::string(version.what()) + "\n"};
    } catch (const CLI::ParseError& error) {
        return NoStart{1, usageError(asMessage(error))};
    }
    // Taken as not given, it would send the notes to the real printer.
    if (virtualPrinter->count() > 0 && options.virtualPrinter.empty()) {
        return NoStart{1, usageError("--impressora-virtual pede o nome de uma pasta.")};
    }
    const auto page = codePageByNumber(page8Bits);
    if (!page) {
        return NoStart{1, usageError("--pagina-de-codigo aceita 1252, 850 ou 860.")};
    }
    options.codePage = *page;
    options.baseUrl = serverAddress(server);
    if (options.baseUrl.empty()) {
        return NoStart{1, usageError("o endereço do servidor deve começar com http:// ou "
                                     "https://: \"" +
                                     server + "\".")};
    }
    return options;
}

}  // namespace tarn
