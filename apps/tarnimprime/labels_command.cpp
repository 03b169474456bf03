#include <memory>
#include <utility>
#include <vector>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "apps/tarnimprime/ticks.h"
#include "labels/customer_selection.h"
#include "labels/print_labels.h"
#include "labels/print_selection.h"
#include "runtime/numbers.h"

namespace tarn::imprime {
namespace {

struct PedidoEtiquetas {
    std::string formulario;
    std::string remetente;
    std::vector<std::string> arquivos;
};

void imprime(const PedidoEtiquetas& pedido, Mesa& mesa) {
    if (!isNumeric(pedido.formulario)) {
        throw FalhaDeUso("--formulario pede um número de 1 a 4.");
    }
    const labels::Formulario formulario = labels::formularioDe(pedido.formulario);
    const labels::Remetente remetente = labels::leRemetente(leResposta(pedido.remetente));
    std::vector<XmlDocument> documentos = leRespostas(pedido.arquivos);
    Environment& ambiente = mesa.ambiente();
    for (XmlDocument& documento : documentos) {
        labels::imprimeEtiquetas(ambiente, formulario, {std::move(documento), remetente}, {});
    }
}

struct PedidoSelecao {
    Marca marca;
    std::vector<std::string> arquivos;
};

void imprime(const PedidoSelecao& pedido, Mesa& mesa) {
    std::vector<std::vector<LinhaGrade>> listas;
    for (const XmlDocument& documento : leRespostas(pedido.arquivos)) {
        listas.push_back(labels::clientesDa(documento));
        marcaLinhas(listas.back(), pedido.marca);
    }
    Environment& ambiente = mesa.ambiente();
    for (const std::vector<LinhaGrade>& clientes : listas) {
        labels::imprimeSelecao(ambiente, clientes, {});
    }
}

}  // namespace

void declaraEtiquetas(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand("etiquetas", "Imprime etiquetas da fila");
    const auto pedido = std::make_shared<PedidoEtiquetas>();
    comando
        ->add_option("--formulario", pedido->formulario,
                     "1 PIMACO 6280, 2 matricial, 3 A5, 4 A4 com remetente")
        ->required();
    comando->add_option("--remetente", pedido->remetente, "Dados do remetente (REM.xml)")
        ->required();
    comando->add_option("documentos", pedido->arquivos, "Etiquetas (ETQ.xml)")->required();
    comando->callback(
        [&escolha, pedido] { escolha.faz = [pedido](Mesa& mesa) { imprime(*pedido, mesa); }; });
}

void declaraEtiquetasSelecao(CLI::App& app, Escolha& escolha) {
    CLI::App* comando =
        app.add_subcommand("etiquetas-selecao", "Imprime etiquetas da seleção de clientes");
    const auto pedido = std::make_shared<PedidoSelecao>();
    declaraMarca(*comando, pedido->marca);
    comando->add_option("documentos", pedido->arquivos, "Clientes da pesquisa (ROWS.xml)")
        ->required();
    comando->callback(
        [&escolha, pedido] { escolha.faz = [pedido](Mesa& mesa) { imprime(*pedido, mesa); }; });
}

}  // namespace tarn::imprime
