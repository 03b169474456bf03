// Prints documents from saved answers, without server or window.
#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn::imprime {

void mostra(std::string_view linha) {
    std::fwrite(linha.data(), 1, linha.size(), stdout);
    std::fputc('\n', stdout);
}

// Read here: the parser itself would take a zero in front for an octal number, and so
// pick another company's form.
void declaraCodigo(CLI::App& comando, const std::string& nome, std::int32_t& codigo,
                   const std::string& descricao) {
    const auto le = [nome, &codigo](const std::string& texto) {
        const char* const fim = texto.data() + texto.size();
        const auto lido = std::from_chars(texto.data(), fim, codigo);
        if (lido.ec != std::errc() || lido.ptr != fim) {
            throw CLI::ConversionError(nome, texto);
        }
    };
    comando.add_option_function<std::string>(nome, le, descricao)->required()->type_name("NÚMERO");
}

namespace {

constexpr char grupoDeOpcoes[] = "Opções";

// CLI11 speaks English; what it found wrong is said again by its kind.
std::string usoErrado(const CLI::ParseError& erro) {
    if (dynamic_cast<const CLI::RequiredError*>(&erro) != nullptr) {
        return "falta um comando, uma opção ou um valor obrigatório.";
    }
    if (dynamic_cast<const CLI::ConversionError*>(&erro) != nullptr ||
        dynamic_cast<const CLI::ValidationError*>(&erro) != nullptr) {
        return "um código pede um número inteiro.";
    }
    if (dynamic_cast<const CLI::ExtrasError*>(&erro) != nullptr) {
        return "há opções ou valores a mais na linha de comando. Um valor que começa com \"-\" "
               "vem depois de \"--\".";
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&erro) != nullptr) {
        return "uma opção foi dada sem o seu valor ou mais de uma vez.";
    }
    return "linha de comando inválida.";
}

int falha(const std::string& texto, int status) {
    std::fprintf(stderr, "tarnimprime: %s\n", texto.c_str());
    return status;
}

void declara(CLI::App& app, Geral& geral, Escolha& escolha) {
    app.get_formatter()->label("Usage", "Uso");
    app.get_formatter()->label("OPTIONS", "OPÇÕES");
    app.get_formatter()->label("Positionals", "Valores");
    app.get_formatter()->label("SUBCOMMAND", "COMANDO");
    app.get_formatter()->label("TEXT", "TEXTO");
    app.get_formatter()->label("REQUIRED", "(obrigatório)");
    app.option_defaults()->group(grupoDeOpcoes);
    app.set_help_flag("-h,--ajuda,--help", "Mostra esta ajuda")->group(grupoDeOpcoes);
    app.add_option("--destino", geral.destino,
                   "Pasta onde cada trabalho é gravado (job-001.prn, ...) em vez de impresso");
    app.add_option("--formato", geral.formato,
                   "Documentos desenhados na pasta: pdf (usual) ou ops, a lista do que é "
                   "desenhado");
    app.add_option("--pagina-de-codigo", geral.paginaDeCodigo,
                   "Página de código da impressora: 1252 (usual), 850 ou 860");
    declaraNota(app, escolha);
    declaraEscada(app, escolha);
    declaraDuplicatas(app, escolha);
    declaraOrdem(app, escolha);
    declaraBoletos(app, escolha);
    declaraEtiquetas(app, escolha);
    declaraEtiquetasSelecao(app, escolha);
    declaraCheque(app, escolha);
    declaraRegras(app, escolha);
    app.require_subcommand(1);
    for (CLI::App* comando : app.get_subcommands({})) {
        comando->fallthrough()->group("Comandos");
        comando->get_help_ptr()->group(grupoDeOpcoes);
    }
}

// As CLI11 takes them, the last one first. "--opcao=" gives the empty text, as
// "--opcao ''" does; the library would take it for an option without its value.
std::vector<std::string> argumentos(int argc, char** argv) {
    std::vector<std::string> todos;
    bool valores = false;  // after "--"
    for (int i = 1; i < argc; ++i) {
        const std::string_view um = argv[i];
        valores = valores || um == "--";
        if (!valores && um.starts_with("--") && um.find('=') == um.size() - 1) {
            todos.emplace_back(um.substr(0, um.size() - 1));
            todos.emplace_back();
        } else {
            todos.emplace_back(um);
        }
    }
    std::ranges::reverse(todos);
    return todos;
}

int executa(int argc, char** argv) {
    Geral geral;
    Escolha escolha;
    CLI::App app("Imprime documentos a partir de respostas gravadas do servidor.", "tarnimprime");
    declara(app, geral, escolha);
    try {
        app.parse(argumentos(argc, argv));
    } catch (const CLI::CallForHelp&) {
        std::fputs(app.help().c_str(), stdout);
        return statusFeito;
    } catch (const CLI::ParseError& erro) {
        return falha(usoErrado(erro) + " Veja como se usa com --ajuda.", statusUso);
    }
    Mesa mesa(geral);
    try {
        escolha.faz(mesa);
    } catch (const FalhaDeUso& erro) {
        return falha(erro.what(), statusUso);
    } catch (const ErroExecucao& erro) {
        return falha(replaceAll(textoDoRelatorio(erro, false), "\r", "\n"), statusErroExecucao);
    }
    return escolha.status;
}

}  // namespace
}  // namespace tarn::imprime

int main(int argc, char** argv) {
    try {
        return tarn::imprime::executa(argc, argv);
    } catch (const std::exception& erro) {
        std::fprintf(stderr, "tarnimprime: erro inesperado: %s\n", erro.what());
        return tarn::imprime::statusUso;
    }
}
