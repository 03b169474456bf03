#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "notes/losses.h"
#include "notes/print_note.h"
#include "runtime/runtime_error.h"

namespace tarn::imprime {
namespace {

struct Pedido {
    Sessao sessao;
    bool reimpressao = false;
    bool confere = false;
    std::string numero;
    std::vector<std::string> arquivos;

    Escada escada() const { return reimpressao ? Escada::Reimpressao : Escada::Emissao; }
};

void declaraSessao(CLI::App& comando, Pedido& pedido) {
    declaraCodigo(comando, "--empresa", pedido.sessao.NCOMPANYCODE, "Código da empresa");
    declaraCodigo(comando, "--estabelecimento", pedido.sessao.ID_ETB_TARN,
                  "Código do estabelecimento");
    comando.add_flag("--reimpressao", pedido.reimpressao, "Escada da tela de reimpressão");
}

void imprime(const Pedido& pedido, Mesa& mesa) {
    std::vector<XmlDocument> documentos = leRespostas(pedido.arquivos);
    Environment& ambiente = mesa.ambiente();
    for (XmlDocument& documento : documentos) {
        imprimeNota(pedido.escada(), ambiente, pedido.sessao, documento, pedido.numero);
    }
}

// Says what each document loses; true where one loses anything. What was found before an
// error of the run time is said too.
bool confere(const Pedido& pedido, Mesa& mesa) {
    std::vector<XmlDocument> documentos = leRespostas(pedido.arquivos);
    Environment& ambiente = mesa.ambienteDeConferencia();
    bool algumaPerda = false;
    for (std::size_t i = 0; i < documentos.size(); ++i) {
        notes::LossLog perdas;
        const auto diz = [&] {
            for (const notes::Loss& perda : perdas.losses()) {
                mostra(pedido.arquivos[i] + ": " + describe(perda));
            }
        };
        try {
            imprimeNota(pedido.escada(), ambiente, pedido.sessao, documentos[i], pedido.numero,
                        &perdas);
        } catch (const ErroExecucao&) {
            diz();
            throw;
        }
        diz();
        algumaPerda |= !perdas.losses().empty();
    }
    return algumaPerda;
}

// Nothing for a file that can't be read: a stream would raise its own error on a directory.
std::optional<std::string> conteudo(const std::string& arquivo) {
    std::error_code falha;
    if (std::filesystem::is_directory(arquivo, falha)) {
        return std::nullopt;
    }
    std::ifstream entrada(arquivo, std::ios::binary);
    if (!entrada.is_open()) {
        return std::nullopt;
    }
    std::string bytes((std::istreambuf_iterator<char>(entrada)), std::istreambuf_iterator<char>());
    return entrada.bad() ? std::nullopt : std::optional(std::move(bytes));
}

}  // namespace

XmlDocument leResposta(const std::string& arquivo) {
    const std::optional<std::string> bytes = conteudo(arquivo);
    if (!bytes) {
        throw FalhaDeUso("não foi possível ler \"" + arquivo +
                         "\". Confira o nome do arquivo e a permissão de leitura.");
    }
    XmlDocument documento;
    if (!documento.loadXML(*bytes)) {
        throw FalhaDeUso("\"" + arquivo +
                         "\" não é uma resposta do servidor: o XML está incompleto ou errado.");
    }
    return documento;
}

std::vector<XmlDocument> leRespostas(const std::vector<std::string>& arquivos) {
    std::vector<XmlDocument> documentos;
    documentos.reserve(arquivos.size());
    for (const std::string& arquivo : arquivos) {
        documentos.push_back(leResposta(arquivo));
    }
    return documentos;
}

void declaraNota(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand("nota", "Imprime notas fiscais pela escada");
    const auto pedido = std::make_shared<Pedido>();
    declaraSessao(*comando, *pedido);
    comando->add_option("--numero", pedido->numero, "Número da nota")->required();
    comando->add_option("documentos", pedido->arquivos, "Documentos de nota (DOC.xml)")->required();
    comando->add_flag("--confere", pedido->confere,
                      "Não imprime: diz o que a nota perde no seu formulário (status 4 se perde)");
    comando->callback([&escolha, pedido] {
        escolha.faz = [&escolha, pedido](Mesa& mesa) {
            if (!pedido->confere) {
                imprime(*pedido, mesa);
            } else if (confere(*pedido, mesa)) {
                escolha.status = statusPerda;
            }
        };
    });
}

void declaraEscada(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand("escada", "Mostra o layout de uma empresa");
    const auto pedido = std::make_shared<Pedido>();
    declaraSessao(*comando, *pedido);
    comando->callback([&escolha, pedido] {
        escolha.faz = [pedido](Mesa&) {
            const std::string_view nome = layoutFor(pedido->escada(), pedido->sessao.NCOMPANYCODE,
                                                    pedido->sessao.ID_ETB_TARN);
            mostra(nome.empty() ? "-" : nome);
        };
    });
}

}  // namespace tarn::imprime
