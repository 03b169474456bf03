#include <memory>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "cheques/imprime_cheque.h"

namespace tarn::imprime {
namespace {

struct Pedido {
    std::string banco;
    std::string valor;
    std::string favorecido;
    std::string data;
    std::string municipio;
};

void imprime(const Pedido& pedido, Mesa& mesa) {
    const std::int16_t banco = codigoDoBanco(pedido.banco);
    ImprimeCheque(mesa.ambiente(), {.nNr_Ofi_Ban = banco,
                                    .sValor = pedido.valor,
                                    .sFavorecido = pedido.favorecido,
                                    .sDataDeposito = pedido.data,
                                    .sNmMun = pedido.municipio});
}

}  // namespace

void declaraCheque(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand("cheque", "Imprime um cheque");
    const auto pedido = std::make_shared<Pedido>();
    comando->add_option("--banco", pedido->banco, "Código oficial do banco")->required();
    comando->add_option("--valor", pedido->valor, "Valor como o campo o mostra: 1.234,56")
        ->required();
    comando
        ->add_option("--favorecido", pedido->favorecido,
                     "Favorecido, em maiúsculas; pode ser vazio")
        ->required();
    comando->add_option("--data", pedido->data, "Data para depósito, dd/mm/yyyy")->required();
    comando->add_option("--municipio", pedido->municipio, "Município do estabelecimento")
        ->required();
    comando->callback(
        [&escolha, pedido] { escolha.faz = [pedido](Mesa& mesa) { imprime(*pedido, mesa); }; });
}

}  // namespace tarn::imprime
