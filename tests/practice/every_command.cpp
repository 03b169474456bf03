#include "tests/practice/every_command.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "gateway/commands.h"
#include "platform/request_line.h"
#include "practice/commands/command.h"
#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

// The database beside the server: what the commands left in it.
struct Beside {
    Database& database;

    std::int64_t number(const std::string& sql) const {
        Rows rows = database.select(sql);
        return rows.next() ? rows.integer(0) : -1;
    }
    std::string text(const std::string& sql) const {
        Rows rows = database.select(sql);
        return rows.next() ? rows.text(0) : "";
    }
    // Another number as soon as any other connection has written.
    std::int64_t version() const {
        return database.isServer()
                   ? number(
                         "SELECT CAST(CAST(pg_snapshot_xmax(pg_current_snapshot()) AS TEXT)"
                         " AS BIGINT)")
                   : number("PRAGMA data_version");
    }
};

struct Asked {
    const char* name;
    std::function<std::string(const Sessao&, const Beside&)> query;
    // A count before and after; without it the command writes nothing.
    const char* count = nullptr;
    std::int64_t before = 0;
    std::int64_t after = 0;
};

constexpr const char* documentAnswer =
    "FROM document d JOIN establishment e ON e.id = d.establishment_id WHERE e.code = 1361 AND "
    "d.portfolio_id IS NULL AND d.kind_id <> 12 AND d.receivable = ";

// A document that waits for a slip: of the collection table (0) or the receivables.
struct Waiting {
    std::string kind, number, control;
};
Waiting waiting(const Beside& beside, const char* table) {
    const std::string rest = documentAnswer + std::string(table) + " ORDER BY d.number, d.kind_id";
    return {beside.text("SELECT d.kind_id " + rest), beside.text("SELECT d.number " + rest),
            beside.text("SELECT d.control_number " + rest)};
}

commands::Slip slip(const Waiting& document, std::string_view number) {
    return {.branch = "1361",
            .documentKind = document.kind,
            .document = document.number,
            .controlNumber = document.control,
            .portfolio = "101",
            .bankNumber = std::string(number)};
}

std::string loadOrderOf(const Beside& beside, const char* order) {
    return beside.text("SELECT load_order FROM billing_order WHERE id = " + std::string(order));
}
std::string lastNote(const Beside& beside) {
    return beside.text("SELECT number FROM note");
}

const commands::Cheque sampleCheque{.bank = 1084,
                                    .agency = " 0384 ",
                                    .account = "1300221-7",
                                    .number = "850",
                                    .series = "aa",
                                    .value = "1.234,56",
                                    .payee = "João da Silva",
                                    .depositDate = "05/09/2012",
                                    .observation = "pagamento"};

std::vector<Asked> startRows() {
    return {
        {"VERSAO_TARN_EMISSAO",
         [](const Sessao&, const Beside&) { return commands::VERSAO_TARN_EMISSAO("07/01/2009"); }},
        {"LOGIN",
         [](const Sessao&, const Beside&) { return commands::LOGIN("1361", "clara", "pratica"); }},
        {"verifica_direito_acesso",
         [](const Sessao& s, const Beside&) {
             return commands::verifica_direito_acesso(s, "EMI001");
         }},
        {"sel_dados_empresa",
         [](const Sessao& s, const Beside&) { return commands::sel_dados_empresa(s); }},
    };
}

std::vector<Asked> orderRows() {
    return {
        {"sel_ordem_fatu",
         [](const Sessao& s, const Beside&) { return commands::sel_ordem_fatu(s); }},
        {"sp_can_oft",
         [](const Sessao& s, const Beside& b) {
             return commands::sp_can_oft(s, "45002", loadOrderOf(b, "45002"));
         },
         "SELECT COUNT(*) FROM billing_order WHERE id = 45002 AND state = 'C'", 0, 1},
        {"Seleciona_Obs_Vnd_X_Ord",
         [](const Sessao& s, const Beside&) {
             return commands::Seleciona_Obs_Vnd_X_Ord(s, "45006");
         }},
        {"Seleciona_Obs_Ord_X_Est",
         [](const Sessao& s, const Beside&) {
             return commands::Seleciona_Obs_Ord_X_Est(s, "45006");
         }},
        {"MANUTENCAO_OFT",
         [](const Sessao& s, const Beside&) {
             return commands::MANUTENCAO_OFT(s, {.order = "45003",
                                                 .observation = "10% à vista & \"#1\"",
                                                 .quantity = "1,000",
                                                 .grossWeight = "2,000",
                                                 .netWeight = "1,500"});
         },
         "SELECT COUNT(*) FROM billing_order WHERE id = 45003 AND net_weight = 1500"
         " AND observation = '10% à vista & \"#1\"'",
         0, 1},
        {"sel_impr_ordem_fatu",
         [](const Sessao& s, const Beside&) { return commands::sel_impr_ordem_fatu(s, "45003"); }},
        {"SP_GERA_NF",
         [](const Sessao& s, const Beside&) { return commands::SP_GERA_NF(s, "45001"); },
         "SELECT COUNT(*) FROM note WHERE order_id = 45001 AND cancelled = 0", 0, 1},
        {"sel_gera_nf", [](const Sessao& s,
                           const Beside& b) { return commands::sel_gera_nf(s, lastNote(b), "1"); }},
        {"SEL_NF",
         [](const Sessao& s, const Beside& b) { return commands::SEL_NF(s, lastNote(b), "1"); }},
        {"SEL_SERIE_NF", [](const Sessao& s, const Beside&) { return commands::SEL_SERIE_NF(s); }},
        {"SEL_MOT_CAN", [](const Sessao& s, const Beside&) { return commands::SEL_MOT_CAN(s); }},
        {"sp_can_nf",
         [](const Sessao& s, const Beside& b) {
             const std::string note = lastNote(b);
             return commands::sp_can_nf(
                 s, {.noteKind = "S", .note = note, .series = "1", .reason = 1});
         },
         "SELECT COUNT(*) FROM note WHERE order_id = 45001 AND cancelled = 1", 0, 1},
    };
}

std::vector<Asked> billAndSlipRows() {
    return {
        {"sel_filiais", [](const Sessao& s, const Beside&) { return commands::sel_filiais(s); }},
        {"Sel_Cliente",
         [](const Sessao& s, const Beside&) { return commands::Sel_Cliente(s, "muñoz & cia"); }},
        {"sel_duplicata",
         [](const Sessao& s, const Beside&) {
             return commands::sel_duplicata(s, 1, {.dueTo = "31/12/2012"});
         }},
        {"sel_carteira", [](const Sessao& s, const Beside&) { return commands::sel_carteira(s); }},
        {"sel_carteira_cob",
         [](const Sessao& s, const Beside&) { return commands::sel_carteira_cob(s, 101); }},
        {"sel_boleto",
         [](const Sessao& s, const Beside&) {
             return commands::sel_boleto(s, {.dueTo = "31/12/2012", .issuedFrom = "01/01/2012"},
                                         101, true);
         }},
        {"altera_docto_cob",
         [](const Sessao& s, const Beside& b) {
             const Waiting document = waiting(b, "0");
             return commands::altera_docto_cob(s, slip(document, "1234"));
         },
         "SELECT COUNT(*) FROM document WHERE slip_number = '1234' AND receivable = 0", 0, 1},
        {"altera_docto_rec",
         [](const Sessao& s, const Beside& b) {
             const Waiting document = waiting(b, "1");
             return commands::altera_docto_rec(s, slip(document, "1235"),
                                               commands::ControlKey::ID_NR_CTL);
         },
         "SELECT COUNT(*) FROM document WHERE slip_number = '1235' AND receivable = 1", 0, 1},
        {"altera_docto_rec",
         [](const Sessao& s, const Beside& b) {
             const Waiting document = waiting(b, "1");
             return commands::altera_docto_rec(s, slip(document, "12345679"),
                                               commands::ControlKey::ID_NR_CLT);
         },
         "SELECT COUNT(*) FROM document WHERE slip_number = '12345679' AND receivable = 1", 0, 1},
        {"insere_car_cob",
         [](const Sessao& s, const Beside& b) {
             const Waiting document = waiting(b, "0");
             return commands::insere_car_cob(s, slip(document, "1236"));
         },
         "SELECT COUNT(*) FROM document WHERE slip_number = '1236' AND portfolio_id = 101"
         " AND bank_id = 1016 AND entered_by = '101' AND receivable = 0",
         0, 1},
        {"insere_car_rec",
         [](const Sessao& s, const Beside& b) {
             const Waiting document = waiting(b, "1");
             return commands::insere_car_rec(s, slip(document, "1237"));
         },
         "SELECT COUNT(*) FROM document WHERE slip_number = '1237' AND portfolio_id = 101"
         " AND bank_id = 1016 AND entered_by = '101' AND receivable = 1",
         0, 1},
    };
}

std::vector<Asked> chequeAndLabelRows() {
    return {
        {"sel_banco_agencia_conta",
         [](const Sessao& s, const Beside&) { return commands::sel_banco_agencia_conta(s); }},
        {"adiciona_controle_cheque_emitido",
         [](const Sessao& s, const Beside&) {
             return commands::adiciona_controle_cheque_emitido(s, sampleCheque);
         },
         "SELECT COUNT(*) FROM cheque WHERE number = 850 AND series = 'AA' AND amount = 123456"
         " AND payee = 'JOÃO DA SILVA' AND purpose = 'PAGAMENTO' AND agency = '0384'",
         0, 1},
        {"seleciona_um_controle_cheque_emitido",
         [](const Sessao& s, const Beside&) {
             commands::Cheque cheque = sampleCheque;
             cheque.agency = "0384";
             return commands::seleciona_um_controle_cheque_emitido(s, cheque);
         }},
        {"sel_motivos", [](const Sessao& s, const Beside&) { return commands::sel_motivos(s); }},
        {"sel_filiais_remetente",
         [](const Sessao& s, const Beside&) { return commands::sel_filiais_remetente(s); }},
        {"sel_etiquetas",
         [](const Sessao& s, const Beside&) { return commands::sel_etiquetas(s, "COBRANÇA"); }},
        {"sel_dados_remetente",
         [](const Sessao& s, const Beside&) { return commands::sel_dados_remetente(s, 1362); }},
        {"exclui_etiquetas",
         [](const Sessao& s, const Beside&) {
             return commands::exclui_etiquetas(s, "COBRANÇA", "007", "16");
         },
         "SELECT COUNT(*) FROM label WHERE company_id = 1361 AND reason_id = 2", 31, 21},
        {"sel_filias", [](const Sessao& s, const Beside&) { return commands::sel_filias(s); }},
        {"sel_pais", [](const Sessao& s, const Beside&) { return commands::sel_pais(s); }},
        {"sel_estado",
         [](const Sessao& s, const Beside&) { return commands::sel_estado(s, 1058); }},
        {"sel_cidade", [](const Sessao& s, const Beside&) { return commands::sel_cidade(s, 15); }},
        {"sel_dados_etq",
         [](const Sessao& s, const Beside&) {
             return commands::sel_dados_etq(s, {.branches = "1361, 1362, 1363",
                                                .country = {1, 1058},
                                                .saleFrom = "01/01/2012",
                                                .saleTo = "31/12/2012",
                                                .amountFrom = "10,50"});
         }},
    };
}

std::vector<Asked> allRows() {
    std::vector<Asked> rows = startRows();
    for (const auto& more : {orderRows(), billAndSlipRows(), chequeAndLabelRows()}) {
        rows.insert(rows.end(), more.begin(), more.end());
    }
    return rows;
}

// Of every row the fields are declared in the schema, and stand in its order; a
// null one is missing.
void expectRows(const XmlDocument& document) {
    const XmlNode root = document.child(1);
    ASSERT_EQ(root.nodeName(), "xml");
    ASSERT_EQ(root.childCount(), 2U);
    const XmlNode columns = root.child(0).child(0);
    std::vector<std::string> declared;
    for (std::size_t i = 0; i + 1 < columns.childCount(); ++i) {
        declared.push_back(field(columns.child(i), "name"));
    }
    ASSERT_EQ(root.child(1).nodeName(), "rs:data");
    ASSERT_GT(root.child(1).childCount(), 0U);
    for (const XmlNode& row : rowsOf(document)) {
        ASSERT_EQ(row.nodeName(), "z:row");
        auto next = declared.begin();
        for (std::size_t i = 0; i < row.attributes().length(); ++i) {
            next = std::find(next, declared.end(), row.attributes().item(i).name());
            ASSERT_NE(next, declared.end()) << row.attributes().item(i).name();
            ++next;
        }
    }
}

void expectShape(const std::string& body, Shape shape) {
    ASSERT_EQ(body.rfind("<?xml ", 0), 0U) << body;
    XmlDocument document;
    ASSERT_TRUE(document.loadXML(body)) << body;
    ASSERT_EQ(document.childCount(), 2U);
    const XmlNode root = document.child(1);
    switch (shape) {
        case Shape::Version:
            ASSERT_EQ(root.child(0).attributes().item(0).text(), "OK");
            EXPECT_EQ(root.child(0).attributes().item(1).text(), "07/01/2009");
            return;
        case Shape::Rows:
            expectRows(document);
            return;
        case Shape::Document:
            EXPECT_EQ(root.nodeName(), "PRINCIPAL");
            EXPECT_GT(root.child(0).attributes().length(), 0U);
            break;
        case Shape::Status:
            break;
    }
    ASSERT_GE(root.attributes().length(), 2U);
    EXPECT_EQ(root.attributes().item(1).text(), "OK");
}

void expectAnswered(PracticeServer& server, const Asked& asked, const Sessao& clerk,
                    const Beside& beside) {
    const Command* command = findCommand(asked.name);
    ASSERT_NE(command, nullptr);
    if (asked.count != nullptr) {
        ASSERT_EQ(beside.number(asked.count), asked.before);
    }
    const std::string query = asked.query(clerk, beside);
    const std::int64_t version = beside.version();
    expectShape(server.answer(requestLine(query)), command->shape);
    EXPECT_EQ(beside.version() != version, asked.count != nullptr) << query;
    if (asked.count != nullptr) {
        EXPECT_EQ(beside.number(asked.count), asked.after) << query;
    }
}

}  // namespace

void expectEveryCommandAnswered(const std::string& address) {
    PracticeServer server(optionsOf(address));
    Database database(address);
    const Beside beside{database};
    Sessao clerk;
    clerk.NCOMPANYCODE = 1361;
    clerk.ID_ETB_TARN = 1361;
    clerk.UserCode = "101";
    clerk.SERVERNAME = "DADOS1361";
    clerk.TipoEtiqueta = "C";
    for (const Asked& asked : allRows()) {
        SCOPED_TRACE(asked.name);
        expectAnswered(server, asked, clerk, beside);
    }
}

std::set<std::string_view> commandsAsked() {
    std::set<std::string_view> names;
    for (const Asked& row : allRows()) {
        names.insert(row.name);
    }
    return names;
}

}  // namespace tarn::practice::test
