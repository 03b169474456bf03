// The commands of cheques: the accounts, and the control record of every cheque
// issued.
#include <array>

#include "practice/commands/amounts.h"
#include "practice/commands/command.h"
#include "practice/commands/conditions.h"
#include "practice/commands/fields.h"
#include "runtime/text.h"

namespace tarn::practice {
namespace {

constexpr std::size_t longestNumber = 15;  // characters, of number and series
constexpr std::size_t longestPayee = 50;
constexpr std::size_t longestPurpose = 250;

constexpr std::array accountFields = {
    Field{"ID_PES_BAN", "b.id"},
    Field{"BANCO", "b.name"},
    Field{"CD_AGE_BAN", "a.agency"},
    Field{"NR_CCOR", "a.number"},
    Field{"NR_OFI_BAN", "b.official_code"},
    Field{"DC_CCOR", "a.description"},
};

struct Issuer {
    Establishment establishment;
    std::string user;
};

Issuer requestedIssuer(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    const auto establishment = requestedEstablishment(query, context);
    const auto user = requestedUser(query, "UserCode", company, context);
    return Issuer{establishment, user};
}

Reply listAccounts(const Query& query, CommandContext& context) {
    const auto requested = requestedIssuer(query, context);
    const Establishment& place = requested.establishment;
    return readRowset(context.database, accountFields,
                      "FROM account a JOIN bank b ON b.id = a.bank_id"
                      " WHERE a.company_id = ? AND a.active = ?"
                      " AND (a.establishment_id IS NULL OR a.establishment_id = ?)"
                      " ORDER BY b.id, a.agency, a.number",
                      {place.company, query.value("IC_ATV_INA") == "A" ? 1 : 0, place.id});
}

// What tells one cheque from all others.
struct ChequeKey {
    std::int64_t company = 0;
    std::int64_t bank = 0;
    std::string agency;
    std::string account;
    std::int64_t number = 0;
    std::string series;  // in capitals

    std::vector<Bind> binds() const { return {company, bank, agency, account, number, series}; }
};

// A cheque's number is the same with zeros in front and without.
ChequeKey requestedCheque(const Query& query, std::int64_t company) {
    const std::string number(trimBlanks(query.value("NR_CHE")));
    const std::string series = upperCase(trimBlanks(query.value("NR_SER")));
    const std::optional<std::int64_t> value = wholeNumber(number);
    if (!value || number.size() > longestNumber) {
        throw Refusal{"O número do cheque \"" + number +
                      "\" não é válido. Digite até 15 algarismos."};
    }
    if (series.empty() || lengthOf(series) > longestNumber) {
        throw Refusal{"A série do cheque não é válida. Digite de 1 a 15 caracteres."};
    }
    return ChequeKey{company,
                     wholeNumber(query.value("ID_PES_BAN")).value_or(-1),
                     std::string(trimBlanks(query.value("CD_AGE_BAN"))),
                     std::string(trimBlanks(query.value("NR_CCOR"))),
                     *value,
                     series};
}

constexpr std::array chequeFields = {
    Field{"ID_PES_BAN", "bank_id"}, Field{"CD_AGE_BAN", "agency"},
    Field{"NR_CCOR", "account"},    Field{"NR_CHE", "number"},
    Field{"NR_SER", "series"},      Field{"VL_CH", "amount", Format::Money},
    Field{"DC_FAV", "payee"},       Field{"DT_DEP", "deposit_on", Format::Date},
    Field{"DC_OBS", "purpose"},
};

constexpr std::string_view thisCheque =
    "FROM cheque WHERE company_id = ? AND bank_id = ? AND agency = ? AND account = ?"
    " AND number = ? AND series = ?";

Reply findCheque(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    const auto key = requestedCheque(query, company);
    return readRowset(context.database, chequeFields, thisCheque, key.binds());
}

struct ChequeText {
    std::int64_t cents = 0;
    QDate deposit;
    std::string payee;
    std::string purpose;
};

ChequeText requestedText(const Query& query) {
    const auto cents = screenMoney(trimBlanks(query.value("VL_CH")));
    if (!cents || *cents == 0) {
        throw Refusal{"O valor do cheque não é válido. Digite um valor maior que 0,00."};
    }
    const auto deposit = sentDay(query.value("DT_DEP"));
    if (!deposit) {
        throw Refusal{"A data para depósito não é válida. Digite a data como dd/mm/aaaa."};
    }
    ChequeText text{*cents, *deposit, query.value("DC_FAV"), query.value("DC_OBS")};
    if (lengthOf(text.payee) > longestPayee || lengthOf(text.purpose) > longestPurpose) {
        throw Refusal{
            "O favorecido passa de 50 caracteres ou a utilização de 250. "
            "Diminua o texto."};
    }
    return text;
}

void checkAccount(CommandContext& context, const ChequeKey& key) {
    Rows rows = context.database.select(
        "SELECT active FROM account WHERE company_id = ? AND bank_id = ? AND agency = ?"
        " AND number = ?",
        {key.company, key.bank, key.agency, key.account});
    if (!rows.next()) {
        throw Refusal{"A conta " + key.agency + " - " + key.account +
                      " não está cadastrada. Escolha a conta na lista."};
    }
    if (rows.integer(0) == 0) {
        throw Refusal{"A conta " + key.agency + " - " + key.account +
                      " está encerrada. Escolha outra conta."};
    }
}

Bind textOrNull(const std::string& text) {
    return text.empty() ? Bind(std::nullopt) : Bind(text);
}

// The key lets one record in: of two desks that send the same cheque at the same
// moment, the second one is refused.
Reply addCheque(const Query& query, CommandContext& context) {
    const auto issuer = requestedIssuer(query, context);
    const auto key = requestedCheque(query, issuer.establishment.company);
    const auto text = requestedText(query);
    checkAccount(context, key);
    const auto& [cents, deposit, payee, purpose] = text;
    std::vector<Bind> binds = key.binds();
    binds.insert(binds.end(),
                 {Bind(cents), textOrNull(payee), Bind(deposit), textOrNull(purpose),
                  Bind(issuer.establishment.id), Bind(context.today), Bind(issuer.user)});
    Transaction transaction(context.database);
    const int added = context.database.execute(
        "INSERT INTO cheque (company_id, bank_id, agency, account, number, series, amount, payee,"
        " deposit_on, purpose, establishment_id, issued_on, issued_by)"
        " VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?) ON CONFLICT DO NOTHING",
        binds);
    if (added != 1) {
        throw Refusal{"O cheque nº " + std::to_string(key.number) + " da série " + key.series +
                      " já está registrado nesta conta. Confira o número do cheque."};
    }
    transaction.commit();
    return statusAnswer();
}

constexpr std::array chequeTable = {
    Command{"sel_banco_agencia_conta", Shape::Rows, listAccounts},
    Command{"seleciona_um_controle_cheque_emitido", Shape::Rows, findCheque},
    Command{"adiciona_controle_cheque_emitido", Shape::Status, addCheque},
};

}  // namespace

std::span<const Command> chequeCommands() {
    return chequeTable;
}

}  // namespace tarn::practice
