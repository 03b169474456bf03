// The commands of start and logon: version, logon, rights, establishment.
#include <QDate>
#include <array>

#include "practice/commands/command.h"
#include "practice/commands/fields.h"
#include "practice/database/stored_text.h"

namespace tarn::practice {
namespace {

// The desk's oldest version that is still admitted.
const QDate currentVersion(2009, 1, 7);

struct Right {
    std::string_view code;
    std::string_view name;
};

constexpr std::array rights = {
    Right{"EMI001", "Impressão de Nota Fiscal"},
    Right{"EMI002", "Reimpressão de Nota Fiscal"},
    Right{"EMI003", "Cancelamento de Nota Fiscal"},
    Right{"EMI005", "Impressão de Cheque"},
};

Reply version(const Query& query, CommandContext&) {
    const QDate sent =
        QDate::fromString(QString::fromStdString(query.value("Versao")), "dd/MM/yyyy");
    const bool admitted = sent.isValid() && sent >= currentVersion;
    return versionAnswer(admitted ? "OK" : "Versão desatualizada", dayText(currentVersion));
}

Reply logon(const Query& query, CommandContext& context) {
    const std::optional<std::int64_t> company = wholeNumber(query.value("EMPRESA"));
    Rows companies = context.database.select("SELECT name, server_name FROM company WHERE id = ?",
                                             {company.value_or(-1)});
    if (!companies.next()) {
        throw Refusal{"Empresa não cadastrada. Confira o código da empresa."};
    }
    Rows users = context.database.select(
        "SELECT u.code, e.code FROM app_user u JOIN establishment e ON e.id = u.establishment_id"
        " WHERE u.company_id = ? AND u.login = ? AND u.password_hash = ?",
        {*company, storedLogin(query.value("USUARIO")),
         passwordHash(*company, query.value("USUARIO"), query.value("SENHA"))});
    if (!users.next()) {
        throw Refusal{"Usuário ou senha inválidos. Confira e digite de novo."};
    }
    Element row{"USUARIO", {}, {}};
    row.set("NCOMPANYCODE", std::to_string(*company))
        .set("COMPANYNAME", companies.text(0))
        .set("SERVERNAME", companies.text(1))
        .set("ID_ETB_TARN", users.text(1))
        .set("USERCODE", users.text(0))
        .set("DATA", context.today.toString("M/d/yyyy").toStdString());
    Element root = documentAnswer();
    root.add(std::move(row));
    return root;
}

Reply checkRight(const Query& query, CommandContext& context) {
    const auto company = requestedCompany(query, context);
    const auto user = requestedUser(query, "nId_Pes_Usu", company, context);
    const std::string& right = query.value("sTransacao");
    Rows rows = context.database.select(
        "SELECT 1 FROM user_right WHERE user_code = ? AND right_code = ?", {user, right});
    if (rows.next()) {
        return statusAnswer();
    }
    std::string name;
    for (const Right& known : rights) {
        if (known.code == right) {
            name = " (" + std::string(known.name) + ")";
        }
    }
    throw Refusal{"Você não tem direito de acesso à transação " + right + name +
                  ". Peça o acesso ao administrador do sistema."};
}

constexpr std::array establishmentFields = {
    Field{"ID_ETB_TARN", "code"},
    Field{"NM_FIL", "name"},
    Field{"NM_RDU", "short_name"},
    Field{"DC_RAZ_SOC_ETB", "legal_name"},
    Field{"PES_JUR", "'1'"},
    Field{"NR_CGC_CPL", "tax_number"},
    Field{"CD_ICR_EST", "state_registration"},
    Field{"DC_LG", "street"},
    Field{"NR_LG", "street_number"},
    Field{"NM_BRR", "district"},
    Field{"CD_CEP", "postal_code"},
    Field{"NM_MUN", "town"},
    Field{"SG_UF", "state"},
    Field{"NM_UF", "state_name"},
    Field{"TELEFONE", "telephone"},
    Field{"FAX", "fax"},
    Field{"EMAIL", "email"},
};

Reply establishmentData(const Query& query, CommandContext& context) {
    const auto establishment = requestedEstablishment(query, context);
    return readRowset(context.database, establishmentFields, "FROM establishment WHERE id = ?",
                      {establishment.id});
}

constexpr std::array sessionTable = {
    Command{"VERSAO_TARN_EMISSAO", Shape::Version, version},
    Command{"LOGIN", Shape::Document, logon},
    Command{"verifica_direito_acesso", Shape::Status, checkRight},
    Command{"sel_dados_empresa", Shape::Rows, establishmentData},
};

}  // namespace

std::span<const Command> sessionCommands() {
    return sessionTable;
}

}  // namespace tarn::practice
