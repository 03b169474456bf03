#include <memory>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "billing/order_sheet.h"

namespace tarn::imprime {
namespace {

struct Pedido {
    Sessao sessao;
    std::vector<std::string> arquivos;
};

void imprime(const Pedido& pedido, Mesa& mesa) {
    std::vector<XmlDocument> documentos = leRespostas(pedido.arquivos);
    Environment& ambiente = mesa.ambiente();
    for (XmlDocument& documento : documentos) {
        imprimeOrdem(ambiente, pedido.sessao, documento);
    }
}

}  // namespace

void declaraOrdem(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand("ordem", "Imprime folhas de ordem de faturamento");
    const auto pedido = std::make_shared<Pedido>();
    comando->add_option("--empresa", pedido->sessao.NCOMPANYCODE, "Código da empresa")->required();
    comando->add_option("documentos", pedido->arquivos, "Documentos de ordem (DOC.xml)")
        ->required();
    comando->callback(
        [&escolha, pedido] { escolha.faz = [pedido](Mesa& mesa) { imprime(*pedido, mesa); }; });
}

}  // namespace tarn::imprime
