#include "desk/desk_options.h"

#include <CLI/CLI.hpp>

namespace tarn {
namespace {

constexpr char pagina[] = "/Kestomain/TarnEmissao.asp?";

constexpr char rodape[] =
    "\nVariável de ambiente: TARN_SERVIDOR, endereço do servidor quando falta --servidor.\n"
    "Fim do programa: 0 encerrado pelo usuário ou por um aviso; 1 uso errado; 3 erro em tempo\n"
    "de execução.";

std::string erroDeUso(const std::string& texto) {
    return "tarnemissao: " + texto + "\nUse tarnemissao --ajuda para ver as opções.\n";
}

void portugueseLabels(CLI::App& app) {
    auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Uso");
    formatter->label("OPTIONS", "OPÇÕES");
    formatter->column_width(32);
    app.formatter(formatter);
}

// The option's or argument's own words out of the parser's English sentence.
std::string comoMensagem(const CLI::ParseError& erro) {
    const std::string frase = erro.what();
    const std::size_t doisPontos = frase.find(": ");
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&erro) != nullptr) {
        return "falta o valor da opção " + frase.substr(0, doisPontos) + ".";
    }
    const std::string palavras =
        doisPontos == std::string::npos ? "" : frase.substr(doisPontos + 2);
    if (dynamic_cast<const CLI::ExtrasError*>(&erro) != nullptr) {
        return "opção ou argumento desconhecido: " + palavras + ".";
    }
    return "valor que não serve: " + palavras + ".";
}

}  // namespace

std::string enderecoDoServidor(const std::string& digitado) {
    for (const std::string esquema : {"http://", "https://"}) {
        if (digitado.size() <= esquema.size() ||
            digitado.compare(0, esquema.size(), esquema) != 0) {
            continue;
        }
        if (digitado.find('?') != std::string::npos) {
            return digitado;
        }
        const std::size_t barra = digitado.find('/', esquema.size());
        const bool semPagina = barra == std::string::npos || barra + 1 == digitado.size();
        return semPagina ? digitado.substr(0, barra) + pagina : digitado + "?";
    }
    return {};
}

std::variant<Opcoes, SemPartida> leOpcoes(int argc, const char* const* argv,
                                          const std::string& servidorDoAmbiente,
                                          const std::string& padrao) {
    Opcoes opcoes;
    std::string servidor = servidorDoAmbiente.empty() ? padrao : servidorDoAmbiente;
    int pagina8Bits = 1252;
    CLI::App app("TarnEmissao: emissão de notas, duplicatas, boletos, cheques e etiquetas.",
                 "tarnemissao");
    portugueseLabels(app);
    app.option_defaults()->group("Opções");
    app.set_help_flag("-h,--ajuda,--help", "mostra esta ajuda e termina")->group("Opções");
    app.set_version_flag("--versao,--version", std::string("TarnEmissao ") + TARN_VERSION,
                         "mostra a versão e termina");
    app.add_option("--servidor", servidor, "endereço do servidor (http:// ou https://)")
        ->type_name("URL");
    const CLI::Option* virtualPrinter =
        app.add_option("--impressora-virtual", opcoes.impressoraVirtual,
                       "grava cada impressão em um arquivo desta pasta")
            ->type_name("PASTA");
    app.add_option("--pagina-de-codigo", pagina8Bits,
                   "página de caracteres da impressora: 1252, 850 ou 860")
        ->type_name("NUM");
    app.add_option("--pasta-figuras", opcoes.pastaFiguras,
                   "pasta das figuras das duplicatas (LOGODUPL.jpg e outras)")
        ->type_name("PASTA");
    app.add_flag("--selecao-etiquetas", opcoes.selecaoEtiquetas,
                 "abre a seleção de etiquetas depois da entrada");
    app.footer(rodape);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return SemPartida{0, app.help()};
    } catch (const CLI::CallForVersion& versao) {
        return SemPartida{0, std::string(versao.what()) + "\n"};
    } catch (const CLI::ParseError& erro) {
        return SemPartida{1, erroDeUso(comoMensagem(erro))};
    }
    // Taken as not given, it would send the notes to the real printer.
    if (virtualPrinter->count() > 0 && opcoes.impressoraVirtual.empty()) {
        return SemPartida{1, erroDeUso("--impressora-virtual pede o nome de uma pasta.")};
    }
    const auto page = codePageByNumber(pagina8Bits);
    if (!page) {
        return SemPartida{1, erroDeUso("--pagina-de-codigo aceita 1252, 850 ou 860.")};
    }
    opcoes.paginaDeCodigo = *page;
    opcoes.baseUrl = enderecoDoServidor(servidor);
    if (opcoes.baseUrl.empty()) {
        return SemPartida{1, erroDeUso("o endereço do servidor deve começar com http:// ou "
                                       "https://: \"" +
                                       servidor + "\".")};
    }
    return opcoes;
}

}  // namespace tarn
