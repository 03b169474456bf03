#include <cstdint>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

#include "comandos.h"
#include "mesa.h"
#include "notes/imprime_nota.h"

namespace tarn::imprime {
namespace {

struct Pedido {
    Sessao sessao;
    bool reimpressao = false;
    std::string numero;
    std::vector<std::string> arquivos;

    Escada escada() const { return reimpressao ? Escada::Reimpressao : Escada::Emissao; }
};

void declaraSessao(CLI::App& comando, Pedido& pedido) {
    comando.add_option("--empresa", pedido.sessao.NCOMPANYCODE, "Código da empresa")->required();
    comando.add_option("--estabelecimento", pedido.sessao.ID_ETB_TARN, "Código do estabelecimento")
        ->required();
    comando.add_flag("--reimpressao", pedido.reimpressao, "Escada da tela de reimpressão");
}

void imprime(const Pedido& pedido, Mesa& mesa) {
    std::vector<XmlDocument> documentos = leRespostas(pedido.arquivos);
    Environment& ambiente = mesa.ambiente();
    for (XmlDocument& documento : documentos) {
        imprimeNota(pedido.escada(), ambiente, pedido.sessao, documento, pedido.numero);
    }
}

}  // namespace

XmlDocument leResposta(const std::string& arquivo) {
    std::ifstream entrada(arquivo, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(entrada)),
                            std::istreambuf_iterator<char>());
    if (!entrada.is_open() || entrada.bad() || bytes.empty()) {
        throw FalhaDeUso("não foi possível ler \"" + arquivo +
                         "\". Confira o nome do arquivo e a permissão de leitura.");
    }
    XmlDocument documento;
    if (!documento.loadXML(bytes)) {
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
    comando->callback(
        [&escolha, pedido] { escolha.faz = [pedido](Mesa& mesa) { imprime(*pedido, mesa); }; });
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
