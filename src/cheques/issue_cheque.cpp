#include "cheques/issue_cheque.h"

#include "cheques/imprime_cheque.h"
#include "common/acts.h"
#include "common/boxes.h"
#include "common/list_items.h"
#include "gateway/answer.h"
#include "gateway/commands.h"
#include "gateway/failure_texts.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr double largestAmountWithoutPayee = 100;

bool isBlank(std::string_view text) {
    return trimBlanks(text).empty();
}

BankAccount accountOf(const XmlNode& rowset, std::size_t index) {
    BankAccount account{.description = PegaValor(rowset, index, "BANCO"),
                        .ID_PES_BAN = itemData(PegaValor(rowset, index, "ID_PES_BAN")),
                        .CD_AGE_BAN = PegaValor(rowset, index, "CD_AGE_BAN"),
                        .NR_CCOR = PegaValor(rowset, index, "NR_CCOR"),
                        .NR_OFI_BAN = PegaValor(rowset, index, "NR_OFI_BAN")};
    account.description.append(" - ")
        .append(account.CD_AGE_BAN)
        .append(" - ")
        .append(account.NR_CCOR);
    const std::string name = PegaValor(rowset, index, "DC_CCOR");
    if (rowset.child(index).attributes().getNamedItem("DC_CCOR")) {
        account.description.append(" - ").append(name);
    }
    return account;
}

commands::Cheque chequeFrom(const ChequeFields& fields) {
    commands::Cheque cheque{.number = fields.number,
                            .series = fields.series,
                            .value = fields.value,
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
    const std::string payee = trimmedUpperCase(fields.payee);
    ImprimeCheque(environment,
                  {.nNr_Ofi_Ban = bankCode(fields.account ? fields.account->NR_OFI_BAN : ""),
                   .sValor = trimBlanks(fields.value),
                   .sFavorecido = payee,
                   .sDataDeposito = trimBlanks(fields.depositDate),
                   .sNmMun = town});
}

bool record(Environment& environment, const Sessao& session, const ChequeFields& fields) {
    XmlDocument answer;
    return requestAnswer(environment,
                         commands::adiciona_controle_cheque_emitido(session, chequeFrom(fields)),
                         answer, failure::Tarn0009) &&
           chequeRecorded(environment, answer);
}

PaperAct paperOf(const ChequeFields& fields, bool recorded) {
    std::string name = "Cheque ";
    name.append(trimBlanks(fields.number))
        .append(" série ")
        .append(upperCase(trimBlanks(fields.series)));
    if (recorded) {
        return {.sent = name + " registrado e enviado",
                .made = name + " registrado",
                .remedy = "anule-o e emita outro com o número seguinte"};
    }
    return {.sent = name + " sem registro no servidor, enviado",
            .made = name + " sem registro no servidor",
            .remedy = "imprima de novo"};
}

}  // namespace

std::optional<std::vector<BankAccount>> loadAccounts(Environment& environment,
                                                     const Sessao& session) {
    XmlDocument document;
    if (!requestAnswer(environment, commands::sel_banco_agencia_conta(session), document,
                       failure::Tarn0009Wide)) {
        return std::nullopt;
    }
    std::vector<BankAccount> accounts{{.description = "------------"}};
    const XmlNode rowset = rowsetOf(document);
    for (std::size_t i = 0; i < rowsOf(document).length(); ++i) {
        accounts.push_back(accountOf(rowset, i));
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
    if (isBlank(fields.value)) {
        return ChequeRefusal{ChequeField::Amount, "Valor é um campo obrigatório. "};
    }
    const double value = readComma(fields.value);
    if (value == 0) {
        return ChequeRefusal{ChequeField::Amount, "Valor deve ser maior que R$ 0,00. "};
    }
    if (value > largestAmountWithoutPayee && isBlank(fields.payee)) {
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
    XmlDocument document;
    requestAnswer(environment,
                  commands::seleciona_um_controle_cheque_emitido(session, chequeFrom(fields)),
                  document, failure::Tarn0009Wide);
    return rowsOf(document).length() == 0;
}

std::optional<ChequeRefusal> numberRefusal(Environment& environment, const Sessao& session,
                                           const ChequeFields& fields) {
    if (isBlank(fields.number) || isBlank(fields.series) ||
        ValidaCheque(environment, session, fields)) {
        return std::nullopt;
    }
    std::string text = "Cheque com este número e série já foi emitido já emitido. ";
    text.append("\rNúmero: ").append(trimBlanks(fields.number));
    text.append("\rSérie: ").append(trimmedUpperCase(fields.series));
    return ChequeRefusal{ChequeField::Number, std::move(text)};
}

// The paper comes first: a record that fails leaves a real cheque without one, and the
// fields that tell which it was.
bool issueCheque(Environment& environment, const Sessao& session, const ChequeFields& fields) {
    XmlDocument company;
    if (!requestAnswer(environment, commands::sel_dados_empresa(session), company,
                       failure::Tarn0009)) {
        return false;
    }
    print(environment, fields, PegaValor(rowsetOf(company), 0, "NM_MUN"));
    try {
        const bool recorded = record(environment, session, fields);
        tellPrinted(environment, paperOf(fields, recorded));
        return recorded;
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
    inform(environment, "Cheque emitido com sucesso!     ");
    return true;
}

}  // namespace tarn
