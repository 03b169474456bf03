// Commands that show what one rule makes of a value.
#include <cstdint>
#include <memory>
#include <string_view>

#include "apps/tarnimprime/commands.h"
#include "common/field_rules.h"
#include "common/valor_extenso.h"
#include "desk/printer_notice.h"
#include "runtime/dates.h"
#include "runtime/mask.h"
#include "runtime/numbers.h"
#include "slips/slip_number.h"

namespace tarn::imprime {
namespace {

constexpr std::string_view mascaraDeData = "dd/mm/yyyy";

void declaraExtenso(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand("extenso", "Escreve um valor por extenso");
    const auto valor = std::make_shared<std::string>();
    comando->add_option("valor", *valor, "Valor, com vírgula decimal")->required();
    comando->callback([&escolha, valor] {
        escolha.faz = [valor](Mesa&) { mostra(ValorExtenso(readComma(*valor))); };
    });
}

void declaraData(CLI::App& app, Escolha& escolha) {
    struct Pedido {
        std::string texto;
        std::string hoje;
    };
    CLI::App* comando = app.add_subcommand("data", "Mostra como fica um campo de data");
    const auto pedido = std::make_shared<Pedido>();
    comando->add_option("texto", pedido->texto, "O que foi digitado")->required();
    comando->add_option("--hoje", pedido->hoje, "Data de hoje, dd/mm/yyyy")->required();
    comando->callback([&escolha, pedido] {
        escolha.faz = [pedido](Mesa&) {
            const std::optional<Date> hoje = parseStrictDate(pedido->hoje);
            if (!hoje) {
                throw FalhaDeUso("--hoje pede uma data dd/mm/yyyy do calendário.");
            }
            mostra(dateOnLeave(pedido->texto, *hoje));
        };
    });
}

void declaraQuantidade(CLI::App& app, Escolha& escolha) {
    CLI::App* comando =
        app.add_subcommand("quantidade", "Mostra como fica um campo de quantidade, ou a mensagem");
    const auto texto = std::make_shared<std::string>();
    comando->add_option("texto", *texto, "O que foi digitado")->required();
    comando->callback([&escolha, texto] {
        escolha.faz = [texto](Mesa&) {
            const FieldResult campo = quantityOnLeave(*texto, messagesQtde);
            mostra(campo.box ? campo.box->text : campo.text);
        };
    });
}

void declaraAviso(CLI::App& app, Escolha& escolha) {
    struct Pedido {
        std::int32_t empresa = 0;
        std::int32_t estabelecimento = 0;
    };
    CLI::App* comando =
        app.add_subcommand("aviso-impressora", "Mostra o aviso de impressora da mesa");
    const auto pedido = std::make_shared<Pedido>();
    declaraCodigo(*comando, "empresa", pedido->empresa, "Código da empresa");
    declaraCodigo(*comando, "estabelecimento", pedido->estabelecimento,
                  "Código do estabelecimento");
    comando->callback([&escolha, pedido] {
        escolha.faz = [pedido](Mesa&) {
            mostra(avisoImpressora(pedido->empresa, pedido->estabelecimento));
        };
    });
}

std::string pelaMascara(std::string_view valor, std::string_view mascara) {
    if (mascara == mascaraDeData) {
        return formatDateText(valor);
    }
    if (mascara.find('@') != std::string_view::npos) {
        return fillMask(valor, mascara);
    }
    return formatText(valor, NumberMask(mascara));
}

void declaraMascara(CLI::App& app, Escolha& escolha) {
    struct Pedido {
        std::string mascara;
        std::string valor;
    };
    CLI::App* comando = app.add_subcommand("mascara", "Mostra um valor sob uma máscara");
    const auto pedido = std::make_shared<Pedido>();
    comando->add_option("mascara", pedido->mascara, "Máscara de número, de \"@\" ou dd/mm/yyyy")
        ->required();
    comando->add_option("valor", pedido->valor, "Valor como texto")->required();
    comando->callback([&escolha, pedido] {
        escolha.faz = [pedido](Mesa&) { mostra(pelaMascara(pedido->valor, pedido->mascara)); };
    });
}

void declaraDigito10(CLI::App& app, Escolha& escolha) {
    struct Pedido {
        std::string numero;
        std::string agencia;
        std::string conta;
    };
    CLI::App* comando =
        app.add_subcommand("digito10", "Mostra o dígito do número de um boleto da carteira 57");
    const auto pedido = std::make_shared<Pedido>();
    comando->add_option("numero", pedido->numero, "Número do boleto")->required();
    comando->add_option("agencia", pedido->agencia, "Agência da carteira")->required();
    comando->add_option("conta", pedido->conta, "Conta da carteira")->required();
    comando->callback([&escolha, pedido] {
        escolha.faz = [pedido](Mesa&) {
            mostra(std::to_string(DigitoModulo10(trezeDigitos(readComma(pedido->numero)),
                                                 pedido->agencia, pedido->conta)));
        };
    });
}

void declaraDigito11(CLI::App& app, Escolha& escolha) {
    CLI::App* comando = app.add_subcommand(
        "digito11", "Mostra o dígito do número de um boleto das outras carteiras");
    const auto numero = std::make_shared<std::string>();
    comando->add_option("numero", *numero, "Número do boleto")->required();
    comando->callback([&escolha, numero] {
        escolha.faz = [numero](Mesa&) {
            mostra(std::to_string(DigitoModulo11(seteDigitos(readComma(*numero)))));
        };
    });
}

}  // namespace

void declaraRegras(CLI::App& app, Escolha& escolha) {
    declaraExtenso(app, escolha);
    declaraData(app, escolha);
    declaraQuantidade(app, escolha);
    declaraAviso(app, escolha);
    declaraMascara(app, escolha);
    declaraDigito10(app, escolha);
    declaraDigito11(app, escolha);
}

}  // namespace tarn::imprime
