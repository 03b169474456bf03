// The commands of bank slips: documents for a slip, collection portfolios, and the
// four writes that tell a slip's number.
#include <array>

#include "practice/commands/document_commands.h"
#include "practice/commands/fields.h"

namespace tarn::practice {
namespace {

constexpr std::size_t longestSlipNumber = 20;  // digits

constexpr std::array slipFields = {
    Field{"SG_FIL", "e.short_name"},
    Field{"DT_VNC_DOC_FMA", "d.due_on", Format::Date},
    Field{"DC_TIP_DOC", "k.description"},
    Field{"NR_DOC", "d.number"},
    Field{"NM_CLI_ETB", "c.name"},
    Field{"DT_EMS_DOC", "d.issued_on", Format::Date},
    Field{"DC_LG_CPL", "a.street"},
    Field{"VL_PRN_DOC", "d.amount", Format::Money},
    Field{"CD_CEP", "a.postal_code"},
    Field{"NM_MUN", "a.town"},
    Field{"SG_UF", "a.state"},
    Field{"PES_JUR", "CASE c.natural_person WHEN 1 THEN '0' ELSE '1' END"},
    Field{"NR_CGC_CPL", "c.tax_number"},
    Field{"CD_ICR_EST", "c.state_registration"},
    Field{"TIPO_DOCTO", "CASE d.receivable WHEN 1 THEN 'DOCTO_RECEBER' ELSE 'DOCTO_COBRANCA' END"},
    Field{"ID_NR_CTL", "d.control_number"},
    Field{"DC_REF_REC", "d.reference"},
    Field{"TX_JUR_DIA", "d.interest_rate", Format::Money},
    Field{"PC_MULTA", "d.fine_rate", Format::Money},
    Field{"JUROS_AO_DIA", "d.daily_interest", Format::Money},
    Field{"VL_OUT_DSP", "d.expenses", Format::Money},
    Field{"ID_ETB_TARN", "e.code"},
    Field{"ID_TIP_DOC", "d.kind_id"},
    Field{"CD_AGE_BAN", "d.agency"},
    Field{"ID_PES_BAN", "d.bank_id"},
    Field{"CD_EXT", "c.external_code"},
    Field{"NR_DOC_NF", "d.note_number"},
};

// Either what is in the portfolio asked for, or what waits to be entered in one. A
// receipt goes on no slip.
Reply findSlipDocuments(const Query& query, CommandContext& context) {
    auto conditions = documentSearch(query, context);
    conditions.add("d.kind_id <> ?", receiptKind);
    if (query.value("IC_INC_CAR") == "S") {
        conditions.add("d.portfolio_id IS NULL");
    } else {
        conditions.add("d.portfolio_id = ?", wholeNumber(query.value("ID_CRT_COB")).value_or(-1));
    }
    return readRowset(context.database, slipFields,
                      std::string(documentTables) + "WHERE " + conditions.sql() +
                          " ORDER BY d.due_on, d.establishment_id, d.kind_id, d.number",
                      conditions.binds());
}

constexpr std::array portfolioListFields = {
    Field{"DC_CRT_COB", "description"},
    Field{"ID_CRT_COB", "id"},
};

Reply listPortfolios(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    return readRowset(context.database, portfolioListFields,
                      "FROM portfolio WHERE company_id = ? ORDER BY id", {company});
}

constexpr std::array portfolioFields = {
    Field{"ID_CRT_COB", "id"},          Field{"DC_CRT_COB", "description"},
    Field{"ID_PES_BAN", "bank_id"},     Field{"NR_CRT_CNAB", "wallet"},
    Field{"CD_AGE_BAN_CNAB", "agency"}, Field{"NR_CCOR_CNAB", "account"},
};

Reply portfolioRecord(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    return readRowset(context.database, portfolioFields,
                      "FROM portfolio WHERE company_id = ? AND id = ?",
                      {company, wholeNumber(query.value("ID_CRT_COB")).value_or(-1)});
}

// Which of the two tables a document is of, and so what tells it from the others.
using FindDocument = Conditions (*)(const Query& query, CommandContext& context);

Conditions collectionDocument(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, "ID_ETB", context);
    Conditions conditions("establishment_id = ?", {establishment.id});
    conditions.add("receivable = 0");
    conditions.add("kind_id = ?", wholeNumber(query.value("ID_TIP_DOC")).value_or(-1));
    conditions.add("number = ?", query.value("NR_DOC"));
    return conditions;
}

// One of the desk's two layouts spells the control number's key ID_NR_CLT.
Conditions receivableDocument(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, "ID_ETB", context);
    const std::string& control = query.value(query.has("ID_NR_CLT") ? "ID_NR_CLT" : "ID_NR_CTL");
    Conditions conditions("establishment_id = ?", {establishment.id});
    conditions.add("receivable = 1");
    conditions.add("control_number = ?", wholeNumber(control).value_or(-1));
    return conditions;
}

// The desk lets a comma through, and sends the number as it was typed.
std::string slipNumber(const Query& query) {
    const std::string& number = query.value("NR_BOL_BANC");
    if (number.empty() || number.size() > longestSlipNumber ||
        number.find_first_not_of("0123456789,") != std::string::npos) {
        throw Refusal{"O número do boleto bancário \"" + number +
                      "\" não é válido. Digite só algarismos."};
    }
    return number;
}

std::vector<Bind> joined(std::vector<Bind> first, const std::vector<Bind>& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

Reply attachNumber(const Query& query, CommandContext& context, FindDocument find) {
    const Conditions document = find(query, context);
    const auto number = slipNumber(query);
    Transaction transaction(context.database);
    const int touched =
        context.database.execute("UPDATE document SET slip_number = ? WHERE " + document.sql(),
                                 joined({number}, document.binds()));
    if (touched != 1) {
        throw Refusal{"O documento não existe mais. Pesquise de novo."};
    }
    transaction.commit();
    return statusAnswer();
}

struct Portfolio {
    std::int64_t id = 0;
    std::int64_t bank = 0;
    std::string agency;
};

Portfolio requestedPortfolio(const Query& query, std::int64_t company, CommandContext& context) {
    Rows rows = context.database.select(
        "SELECT id, bank_id, agency FROM portfolio WHERE company_id = ? AND id = ?",
        {company, wholeNumber(query.value("ID_CRT_COB")).value_or(-1)});
    if (!rows.next()) {
        throw Refusal{"A carteira de cobrança não existe. Escolha a carteira na lista."};
    }
    return Portfolio{rows.integer(0), rows.integer(1), rows.text(2)};
}

// A document that the portfolio already holds gets the new number; one that is in
// another portfolio stays as it is.
Reply enterPortfolio(const Query& query, CommandContext& context, FindDocument find) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    Conditions conditions = find(query, context);
    const auto portfolio = requestedPortfolio(query, company, context);
    const auto user = requestedUser(query, "ID_PES_USU", company, context);
    const auto number = slipNumber(query);
    conditions.add("(portfolio_id IS NULL OR portfolio_id = ?)", portfolio.id);
    Transaction transaction(context.database);
    const int touched = context.database.execute(
        "UPDATE document SET portfolio_id = ?, bank_id = COALESCE(bank_id, ?),"
        " agency = COALESCE(agency, ?), slip_number = ?, entered_by = ? WHERE " +
            conditions.sql(),
        joined({portfolio.id, portfolio.bank, portfolio.agency, number, user}, conditions.binds()));
    if (touched != 1) {
        throw Refusal{
            "O documento não existe mais ou já está em outra carteira. Pesquise de novo."};
    }
    transaction.commit();
    return statusAnswer();
}

Reply numberCollection(const Query& query, CommandContext& context) {
    return attachNumber(query, context, collectionDocument);
}
Reply numberReceivable(const Query& query, CommandContext& context) {
    return attachNumber(query, context, receivableDocument);
}
Reply enterCollection(const Query& query, CommandContext& context) {
    return enterPortfolio(query, context, collectionDocument);
}
Reply enterReceivable(const Query& query, CommandContext& context) {
    return enterPortfolio(query, context, receivableDocument);
}

constexpr std::array slipTable = {
    Command{"sel_boleto", Shape::Rows, findSlipDocuments},
    Command{"sel_carteira", Shape::Rows, listPortfolios},
    Command{"sel_carteira_cob", Shape::Rows, portfolioRecord},
    Command{"altera_docto_cob", Shape::Status, numberCollection},
    Command{"altera_docto_rec", Shape::Status, numberReceivable},
    Command{"insere_car_cob", Shape::Status, enterCollection},
    Command{"insere_car_rec", Shape::Status, enterReceivable},
};

}  // namespace

std::span<const Command> slipCommands() {
    return slipTable;
}

}  // namespace tarn::practice
