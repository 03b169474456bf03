#include <memory>

#include "apps/tarnimprime/commands.h"
#include "apps/tarnimprime/print_environment.h"
#include "cheques/imprime_cheque.h"

namespace tarn::print {
namespace {

struct ChequeRequest {
    std::string bank;
    std::string value;
    std::string payee;
    std::string data;
    std::string town;
};

void print(const ChequeRequest& request, PrintEnvironment& desk) {
    const std::int16_t bank = bankCode(request.bank);
    ImprimeCheque(desk.environment(), {.nNr_Ofi_Ban = bank,
                                       .sValor = request.value,
                                       .sFavorecido = request.payee,
                                       .sDataDeposito = request.data,
                                       .sNmMun = request.town});
}

}  // namespace

void declareCheque(cli::CommandLine& line, Choice& choice) {
    cli::Command command = line.command("cheque", "imprime um cheque");
    const auto request = std::make_shared<ChequeRequest>();
    command.text("--banco", request->bank, "Código oficial do banco").required();
    command.text("--valor", request->value, "valor como o campo o mostra: 1.234,56").required();
    command.text("--favorecido", request->payee, "favorecido, em maiúsculas; pode ser vazio")
        .required();
    command.text("--data", request->data, "data para depósito, dd/mm/yyyy").required();
    command.text("--municipio", request->town, "município do estabelecimento").required();
    printWhenChosen(command, choice, request, print);
}

}  // namespace tarn::print
