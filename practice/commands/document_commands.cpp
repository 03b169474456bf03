#include "practice/commands/document_commands.h"

#include <array>

#include "practice/commands/fields.h"
#include "practice/database/stored_text.h"
#include "runtime/text.h"

namespace tarn::practice {
namespace {

// An empty text restricts nothing; one that is no number finds nothing.
void addNumber(Conditions& conditions, std::string_view sql, const std::string& text) {
    if (!trimBlanks(text).empty()) {
        conditions.add(sql, wholeNumber(text).value_or(-1));
    }
}

constexpr std::array documentBranchFields = {
    Field{"SG_FIL", "short_name"},
    Field{"ID_ETB_TARN", "code"},
};

Reply listBranches(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    requestedUser(query, "UserCode", company, context);
    return readRowset(context.database, documentBranchFields,
                      "FROM establishment WHERE company_id = ? ORDER BY id", {company});
}

constexpr std::array billFields = {
    Field{"SG_FIL", "e.short_name"},
    Field{"DT_VNC_DOC_FMA", "d.due_on", Format::Date},
    Field{"DT_EMS_DOC", "d.issued_on", Format::Date},
    Field{"NR_DOC", "d.number"},
    Field{"NM_CLI_ETB", "c.name"},
    Field{"DC_LG_CPL", "a.street"},
    Field{"VL_PRN_DOC", "d.amount", Format::Money},
    Field{"CD_CEP", "a.postal_code"},
    Field{"NM_MUN", "a.town"},
    Field{"SG_UF", "a.state"},
    Field{"PES_JUR", "CASE c.natural_person WHEN 1 THEN '0' ELSE '1' END"},
    Field{"NR_CGC_CPL", "c.tax_number"},
    Field{"CD_ICR_EST", "c.state_registration"},
    Field{"TIPO_DOCTO", "CASE d.receivable WHEN 1 THEN 'DOCTO_RECEBER' ELSE 'DOCTO_COBRANCA' END"},
    Field{"ID_TIP_DOC", "d.kind_id"},
    Field{"ID_NR_CTL", "d.control_number"},
    Field{"DC_REF_REC", "d.reference"},
    Field{"NR_DOC_NF", "d.note_number"},
    Field{"EG_COB", "COALESCE(b.street, a.street)"},
    Field{"MUN_COB", "COALESCE(b.town, a.town)"},
    Field{"ES_COB", "COALESCE(b.state, a.state)"},
    Field{"CD_CEP_COB", "COALESCE(b.postal_code, a.postal_code)"},
};

Reply findBills(const Query& query, CommandContext& context) {
    auto conditions = documentSearch(query, context);
    const auto kinds = numberList(query.value("ID_TIP_DOC"));
    if (!kinds) {
        throw Refusal{"Tipo de documento inválido na pesquisa. Escolha o tipo na lista."};
    }
    conditions.addAnyOf("d.kind_id", *kinds);
    return readRowset(context.database, billFields,
                      std::string(documentTables) + "WHERE " + conditions.sql() +
                          " ORDER BY d.due_on, d.establishment_id, d.kind_id, d.number",
                      conditions.binds());
}

constexpr std::array customerFields = {
    Field{"NM_PES_CPL", "name"},
    Field{"DC_TIP_EMP",
          "CASE natural_person WHEN 1 THEN 'PESSOA FÍSICA' ELSE 'PESSOA JURÍDICA' END"},
    Field{"ID_PES_CLI", "id"},
};

// A pattern that finds the text anywhere in a name, whatever it holds.
std::string anywhere(const std::string& text) {
    std::string pattern = "%";
    for (const char c : text) {
        if (c == '%' || c == '_' || c == '!') {
            pattern.push_back('!');
        }
        pattern.push_back(c);
    }
    return pattern + '%';
}

// The desk sends "|" for "&" here and leaves "%" alone, so that two bars are two
// ampersands.
Reply findCustomers(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "id_emp_tarn", context);
    const std::string name = replaceAll(query.value("Filtro"), "|", "&");
    const std::string wanted = searchName(trimBlanks(name));
    if (wanted.empty()) {
        throw Refusal{"O nome do cliente não foi informado. Digite parte do nome."};
    }
    return readRowset(context.database, customerFields,
                      "FROM customer WHERE company_id = ? AND search_name LIKE ? ESCAPE '!'"
                      " ORDER BY search_name, id",
                      {company, anywhere(wanted)});
}

constexpr std::array documentTable = {
    Command{"sel_filiais", Shape::Rows, listBranches},
    Command{"sel_duplicata", Shape::Rows, findBills},
    Command{"Sel_Cliente", Shape::Rows, findCustomers},
};

}  // namespace

Conditions documentSearch(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, "ID_EMP_TARN", context);
    requestedUser(query, "ID_PES_USU", company, context);
    Conditions conditions("e.company_id = ?", {company});
    addNumber(conditions, "d.customer_id = ?", query.value("ID_PES_CLI"));
    addNumber(conditions, "e.code = ?", query.value("ID_ETB_TARN"));
    conditions.addDays("d.due_on", query, "DT_VNC_DE", "DT_VNC_ATE");
    conditions.addDays("d.issued_on", query, "DT_EMS_DE", "DT_EMS_ATE");
    if (!conditions.readable()) {
        throw Refusal{"Data inválida na pesquisa. Digite as datas como dd/mm/aaaa."};
    }
    return conditions;
}

std::span<const Command> documentCommands() {
    return documentTable;
}

}  // namespace tarn::practice
