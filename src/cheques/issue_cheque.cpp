#include "cheques/issue_cheque.h"

#include "cheques/imprime_cheque.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr double largestAmountWithoutPayee = 100;

bool isBlank(std::string_view texto) {
    return trimBlanks(texto).empty();
}

std::string inUpperCase(std::string_view texto) {
    return upperCase(trimBlanks(texto));
}

std::int32_t itemData(std::string_view texto) {
    try {
        return readInt32(trimBlanks(texto));
    } catch (const RuntimeError&) {
        return 0;
    }
}

BankAccount accountOf(const XmlNode& linhas, std::size_t indice) {
    BankAccount account{.description = textAttribute(linhas, indice, "BANCO"),
                        .ID_PES_BAN = itemData(textAttribute(linhas, indice, "ID_PES_BAN")),
                        .CD_AGE_BAN = textAttribute(linhas, indice, "CD_AGE_BAN"),
                        .NR_CCOR = textAttribute(linhas, indice, "NR_CCOR"),
                        .NR_OFI_BAN = textAttribute(linhas, indice, "NR_OFI_BAN")};
    account.description.append(" - ")
        .append(account.CD_AGE_BAN)
        .append(" - ")
        .append(account.NR_CCOR);
    if (const XmlAttribute nome = linhas.child(indice).attributes().getNamedItem("DC_CCOR")) {
        account.description.append(" - ").append(nome.text());
    }
    return account;
}

// The texts live as long as `fields`.
commands::Cheque chequeFrom(const ChequeFields& fields) {
    commands::Cheque cheque{.number = fields.number,
                            .series = fields.series,
                            .valor = fields.valor,
                            .payee = fields.payee,
                            .depositDate = fields.depositDate,
                            .observation = fields.observation};
    if (fields.account) {
        cheque.bank = fields.account->ID_PES_BAN;
        cheque.agency = fields.account->CD_AGE_BAN;
        cheque.account = fields.account->NR_CCOR;
    }
    return cheque;
}

void print(Environment& environment, const ChequeFields& fields, const std::string& town) {
    const std::string payee = inUpperCase(fields.payee);
    ImprimeCheque(environment,
                  {.nNr_Ofi_Ban = bankCode(fields.account ? fields.account->NR_OFI_BAN : ""),
                   .sValor = trimBlanks(fields.valor),
                   .sFavorecido = payee,
                   .sDataDeposito = trimBlanks(fields.depositDate),
                   .sNmMun = town});
}

}  // namespace

std::optional<std::vector<BankAccount>> loadAccounts(Environment& environment,
                                                     const Sessao& session) {
    XmlDocument documento;
    if (!requestAnswer(environment, commands::sel_banco_agencia_conta(session), documento,
                       failure::Tarn0009Wide)) {
        return std::nullopt;
    }
    std::vector<BankAccount> accounts{{.description = "------------"}};
    const XmlNode linhas = documento.selectSingleNode("xml/rs:data");
    for (std::size_t i = 0; linhas && i < linhas.childCount(); ++i) {
        accounts.push_back(accountOf(linhas, i));
    }
    return accounts;
}

std::optional<ChequeRefusal> fieldRefusal(const ChequeFields& fields) {
    if (!fields.account) {
        return ChequeRefusal{ChequeField::Account, "Banco/Ag./Conta é um campo obrigatório. "};
    }
    if (isBlank(fields.number)) {
        return ChequeRefusal{ChequeField::Number, "Nº Cheque é um campo obrigatório. "};
    }
    if (isBlank(fields.series)) {
        return ChequeRefusal{ChequeField::Series, "Série é um campo obrigatório. "};
    }
    if (isBlank(fields.valor)) {
        return ChequeRefusal{ChequeField::Amount, "Valor é um campo obrigatório. "};
    }
    const double valor = readComma(fields.valor);
    if (valor == 0) {
        return ChequeRefusal{ChequeField::Amount, "Valor deve ser maior que R$ 0,00. "};
    }
    if (valor > largestAmountWithoutPayee && isBlank(fields.payee)) {
        return ChequeRefusal{ChequeField::Payee,
                             "Favorecido é um campo obrigatório para cheques com valores maiores "
                             "que R$ 100,00. "};
    }
    if (isBlank(fields.depositDate)) {
        return ChequeRefusal{ChequeField::DepositDate,
                             "Data para Depósito é um campo obrigatório. "};
    }
    return std::nullopt;
}

bool ValidaCheque(Environment& environment, const Sessao& session, const ChequeFields& fields) {
    XmlDocument documento;
    requestAnswer(environment,
                  commands::seleciona_um_controle_cheque_emitido(session, chequeFrom(fields)),
                  documento, failure::Tarn0009Wide);
    const XmlNode linhas = documento.selectSingleNode("xml/rs:data");
    return !linhas || linhas.childCount() == 0;
}

std::optional<ChequeRefusal> numberRefusal(Environment& environment, const Sessao& session,
                                           const ChequeFields& fields) {
    if (isBlank(fields.number) || isBlank(fields.series) ||
        ValidaCheque(environment, session, fields)) {
        return std::nullopt;
    }
    std::string texto = "Cheque com este número e série já foi emitido já emitido. ";
    texto.append("\rNúmero: ").append(trimBlanks(fields.number));
    texto.append("\rSérie: ").append(inUpperCase(fields.series));
    return ChequeRefusal{ChequeField::Number, std::move(texto)};
}

// The paper comes first: a record that fails leaves a real cheque without one, and the
// fields that tell which it was.
bool issueCheque(Environment& environment, const Sessao& session, const ChequeFields& fields) {
    XmlDocument company;
    if (!requestAnswer(environment, commands::sel_dados_empresa(session), company,
                       failure::Tarn0009)) {
        return false;
    }
    print(environment, fields, textAttribute(company.selectSingleNode("xml/rs:data"), 0, "NM_MUN"));
    XmlDocument answer;
    if (!requestAnswer(environment,
                       commands::adiciona_controle_cheque_emitido(session, chequeFrom(fields)),
                       answer, failure::Tarn0009)) {
        return false;
    }
    try {
        return chequeRecorded(environment, answer);
    } catch (const RuntimeError& error) {
        throw RuntimeError(error.number(),
                           "o cheque nº " + std::string(trimBlanks(fields.number)) +
                               " foi impresso e talvez não esteja gravado no servidor; confira-o "
                               "pelo número e série antes de imprimir outro");
    }
}

bool chequeRecorded(Environment& environment, const XmlDocument& answer) {
    if (!answerAccepted(environment, answer,
                        "Houve um problema para gravar cheque no banco de dados. ")) {
        return false;
    }
    environment.boxes.show({.text = "Cheque emitido com sucesso!     ",
                            .icon = BoxIcon::Information,
                            .title = "TArn"});
    return true;
}

}  // namespace tarn
