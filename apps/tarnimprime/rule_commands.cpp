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

void declareAmountInWords(cli::CommandLine& line, Choice& choice) {
    cli::Command command = line.command("extenso", "escreve um valor por extenso");
    const auto value = std::make_shared<std::string>();
    command.text("valor", *value, "valor, com vírgula decimal").required();
    command.whenChosen([&choice, value] {
        choice.run = [value](PrintEnvironment&) { show(ValorExtenso(readComma(*value))); };
    });
}

void declareDate(cli::CommandLine& line, Choice& choice) {
    struct Request {
        std::string text;
        std::string today;
    };
    cli::Command command = line.command("data", "mostra como fica um campo de data");
    const auto request = std::make_shared<Request>();
    command.text("texto", request->text, "O que foi digitado").required();
    command.text("--hoje", request->today, "data de hoje, dd/mm/yyyy").required();
    command.whenChosen([&choice, request] {
        choice.run = [request](PrintEnvironment&) {
            const std::optional<Date> today = parseStrictDate(request->today);
            if (!today) {
                cli::refuseValue("--hoje", "uma data dd/mm/yyyy do calendário", request->today);
            }
            show(dateOnLeave(request->text, *today));
        };
    });
}

void declareQuantity(cli::CommandLine& line, Choice& choice) {
    cli::Command command =
        line.command("quantidade", "mostra como fica um campo de quantidade, ou a mensagem");
    const auto text = std::make_shared<std::string>();
    command.text("texto", *text, "O que foi digitado").required();
    command.whenChosen([&choice, text] {
        choice.run = [text](PrintEnvironment&) {
            const FieldResult field = quantityOnLeave(*text, messagesQtde);
            show(field.box ? field.box->text : field.text);
        };
    });
}

void declareNotice(cli::CommandLine& line, Choice& choice) {
    struct Request {
        std::int32_t company = 0;
        std::int32_t establishment = 0;
    };
    cli::Command command = line.command("aviso-impressora", "mostra o aviso de impressora da mesa");
    const auto request = std::make_shared<Request>();
    command.whole("empresa", request->company, "Código da empresa").required();
    command.whole("estabelecimento", request->establishment, "Código do estabelecimento")
        .required();
    command.whenChosen([&choice, request] {
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

void declareMask(cli::CommandLine& line, Choice& choice) {
    struct Request {
        std::string mask;
        std::string value;
    };
    cli::Command command = line.command("mascara", "mostra um valor sob uma máscara");
    const auto request = std::make_shared<Request>();
    command.text("mascara", request->mask, "Máscara de número, de \"@\" ou dd/mm/yyyy").required();
    command.text("valor", request->value, "valor como texto").required();
    command.whenChosen([&choice, request] {
        choice.run = [request](PrintEnvironment&) { show(byMask(request->value, request->mask)); };
    });
}

void declareDigit10(cli::CommandLine& line, Choice& choice) {
    struct Request {
        std::string number;
        std::string agency;
        std::string account;
    };
    cli::Command command =
        line.command("digito10", "mostra o dígito do número de um boleto da carteira 57");
    const auto request = std::make_shared<Request>();
    command.text("numero", request->number, "Número do boleto").required();
    command.text("agencia", request->agency, "agência da carteira").required();
    command.text("conta", request->account, "conta da carteira").required();
    command.whenChosen([&choice, request] {
        choice.run = [request](PrintEnvironment&) {
            show(std::to_string(DigitoModulo10(thirteenDigits(readComma(request->number)),
                                               request->agency, request->account)));
        };
    });
}

void declareDigit11(cli::CommandLine& line, Choice& choice) {
    cli::Command command =
        line.command("digito11", "mostra o dígito do número de um boleto das outras carteiras");
    const auto number = std::make_shared<std::string>();
    command.text("numero", *number, "Número do boleto").required();
    command.whenChosen([&choice, number] {
        choice.run = [number](PrintEnvironment&) {
            show(std::to_string(DigitoModulo11(sevenDigits(readComma(*number)))));
        };
    });
}

}  // namespace

void declareRules(cli::CommandLine& line, Choice& choice) {
    declareAmountInWords(line, choice);
    declareDate(line, choice);
    declareQuantity(line, choice);
    declareNotice(line, choice);
    declareMask(line, choice);
    declareDigit10(line, choice);
    declareDigit11(line, choice);
}

}  // namespace tarn::print
