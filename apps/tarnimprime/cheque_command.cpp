#include <memory>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "cheques/imprime_cheque.h"

namespace tarn::print {
namespace {

struct Request {
    std::string bank;
    std::string value;
    std::string payee;
    std::string data;
    std::string town;
};

void print(const Request& request, PrintEnvironment& desk) {
    const std::int16_t bank = bankCode(request.bank);
    ImprimeCheque(desk.environment(), {.nNr_Ofi_Ban = bank,
                                       .sValor = request.value,
                                       .sFavorecido = request.payee,
                                       .sDataDeposito = request.data,
                                       .sNmMun = request.town});
}

}  // namespace

void declareCheque(CLI::App& app, Choice& choice) {
    CLI::App* commands = app.add_subcommand("cheque", "Imprime um cheque");
    const auto request = std::make_shared<Request>();
    commands->add_option("--banco", request->bank, "Código oficial do banco")->required();
    commands->add_option("--valor", request->value, "Valor como o campo o mostra: 1.234,56")
        ->required();
    commands
        ->add_option("--favorecido", request->payee, "Favorecido, em maiúsculas; pode ser vazio")
        ->required();
    commands->add_option("--data", request->data, "Data para depósito, dd/mm/yyyy")->required();
    commands->add_option("--municipio", request->town, "Município do estabelecimento")->required();
    commands->callback([&choice, request] {
        choice.run = [request](PrintEnvironment& desk) { print(*request, desk); };
    });
}

}  // namespace tarn::print
