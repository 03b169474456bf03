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

namespace tarn::print {
namespace {

constexpr std::string_view dateMask = "dd/mm/yyyy";

void declareAmountInWords(CLI::App& app, Choice& choice) {
    CLI::App* commands = app.add_subcommand("extenso", "Escreve um valor por extenso");
    const auto value = std::make_shared<std::string>();
    commands->add_option("valor", *value, "Valor, com vírgula decimal")->required();
    commands->callback([&choice, value] {
        choice.run = [value](PrintEnvironment&) { show(ValorExtenso(readComma(*value))); };
    });
}

void declareDate(CLI::App& app, Choice& choice) {
    struct Request {
        std::string text;
        std::string today;
    };
    CLI::App* commands = app.add_subcommand("data", "Mostra como fica um campo de data");
    const auto request = std::make_shared<Request>();
    commands->add_option("texto", request->text, "O que foi digitado")->required();
    commands->add_option("--hoje", request->today, "Data de hoje, dd/mm/yyyy")->required();
    commands->callback([&choice, request] {
        choice.run = [request](PrintEnvironment&) {
            const std::optional<Date> today = parseStrictDate(request->today);
            if (!today) {
                throw UsageError("--hoje pede uma data dd/mm/yyyy do calendário.");
            }
            show(dateOnLeave(request->text, *today));
        };
    });
}

void declareQuantity(CLI::App& app, Choice& choice) {
    CLI::App* commands =
        app.add_subcommand("quantidade", "Mostra como fica um campo de quantidade, ou a mensagem");
    const auto text = std::make_shared<std::string>();
    commands->add_option("texto", *text, "O que foi digitado")->required();
    commands->callback([&choice, text] {
        choice.run = [text](PrintEnvironment&) {
            const FieldResult field = quantityOnLeave(*text, messagesQtde);
            show(field.box ? field.box->text : field.text);
        };
    });
}

void declareNotice(CLI::App& app, Choice& choice) {
    struct Request {
        std::int32_t company = 0;
        std::int32_t establishment = 0;
    };
    CLI::App* commands =
        app.add_subcommand("aviso-impressora", "Mostra o aviso de impressora da mesa");
    const auto request = std::make_shared<Request>();
    declareCode(*commands, "empresa", request->company, "Código da empresa");
    declareCode(*commands, "estabelecimento", request->establishment, "Código do estabelecimento");
    commands->callback([&choice, request] {
        choice.run = [request](PrintEnvironment&) {
            show(printerNotice(request->company, request->establishment));
        };
    });
}

std::string byMask(std::string_view value, std::string_view mask) {
    if (mask == dateMask) {
        return formatDateText(value);
    }
    if (mask.find('@') != std::string_view::npos) {
        return fillMask(value, mask);
    }
    return formatText(value, NumberMask(mask));
}

void declareMask(CLI::App& app, Choice& choice) {
    struct Request {
        std::string mask;
        std::string value;
    };
    CLI::App* commands = app.add_subcommand("mascara", "Mostra um valor sob uma máscara");
    const auto request = std::make_shared<Request>();
    commands->add_option("mascara", request->mask, "Máscara de número, de \"@\" ou dd/mm/yyyy")
        ->required();
    commands->add_option("valor", request->value, "Valor como texto")->required();
    commands->callback([&choice, request] {
        choice.run = [request](PrintEnvironment&) { show(byMask(request->value, request->mask)); };
    });
}

void declareDigit10(CLI::App& app, Choice& choice) {
    struct Request {
        std::string number;
        std::string agency;
        std::string account;
    };
    CLI::App* commands =
        app.add_subcommand("digito10", "Mostra o dígito do número de um boleto da carteira 57");
    const auto request = std::make_shared<Request>();
    commands->add_option("numero", request->number, "Número do boleto")->required();
    commands->add_option("agencia", request->agency, "Agência da carteira")->required();
    commands->add_option("conta", request->account, "Conta da carteira")->required();
    commands->callback([&choice, request] {
        choice.run = [request](PrintEnvironment&) {
            show(std::to_string(DigitoModulo10(thirteenDigits(readComma(request->number)),
                                               request->agency, request->account)));
        };
    });
}

void declareDigit11(CLI::App& app, Choice& choice) {
    CLI::App* commands = app.add_subcommand(
        "digito11", "Mostra o dígito do número de um boleto das outras carteiras");
    const auto number = std::make_shared<std::string>();
    commands->add_option("numero", *number, "Número do boleto")->required();
    commands->callback([&choice, number] {
        choice.run = [number](PrintEnvironment&) {
            show(std::to_string(DigitoModulo11(sevenDigits(readComma(*number)))));
        };
    });
}

}  // namespace

void declareRules(CLI::App& app, Choice& choice) {
    declareAmountInWords(app, choice);
    declareDate(app, choice);
    declareQuantity(app, choice);
    declareNotice(app, choice);
    declareMask(app, choice);
    declareDigit10(app, choice);
    declareDigit11(app, choice);
}

}  // namespace tarn::print
