// Every field of the other documents' answers, and of a cheque, with texts that nobody
// means well with. What prints and what is asked of the server is compared with plain
// letters in the same field.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>

#include "billing/order_sheet.h"
#include "bills/bill_search.h"
#include "bills/print_bills.h"
#include "cheques/imprime_cheque.h"
#include "labels/customer_selection.h"
#include "labels/print_labels.h"
#include "labels/print_selection.h"
#include "platform/request_line.h"
#include "runtime/runtime_error.h"
#include "slips/print_slips.h"
#include "slips/slip_search.h"
#include "tests/hostile/hostile_texts.h"
#include "tests/hostile/same_paper.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"

namespace tarn::test {

namespace {

using Fields = std::map<std::string, std::string>;  // values as in XML

std::string element(const std::string& name, const Fields& fields) {
    std::string out = "<" + name;
    for (const auto& [field, value] : fields) {
        out.append(" ").append(field).append("=\"").append(value).append("\"");
    }
    return out + "/>";
}

XmlDocument loaded(const std::string& xml) {
    XmlDocument document;
    EXPECT_TRUE(document.loadXML(xml)) << xml;
    return document;
}

XmlDocument rowsOfOne(const Fields& fields) {
    return loaded(answers::rowset(element("z:row", fields)));
}

// The attributes of a grid's table, each with a plain number; then what is known of some.
Fields gridFields(std::span<const GridColumn> grid, const Fields& known) {
    Fields fields = known;
    for (const GridColumn& column : grid) {
        if (!column.attribute.empty()) {
            fields.emplace(column.attribute, "7");
        }
    }
    return fields;
}

struct Outcome {
    TestEnvironment test;
    std::optional<RuntimeErrorCode> error;
};

using Print = std::function<void(Environment&, const Fields&)>;

std::vector<std::string> keysOf(const std::string& line) {
    std::vector<std::string> keys;
    for (const std::string_view pair : split(line, '&')) {
        keys.emplace_back(pair.substr(0, pair.find('=')));
    }
    return keys;
}

void run(Outcome& outcome, const Print& print, const Fields& fields) {
    try {
        print(outcome.test.environment, fields);
    } catch (const RuntimeError& error) {
        outcome.error = error.number();
    }
}

void expectSame(const Outcome& plain, const Outcome& hostile) {
    EXPECT_EQ(hostile.error, plain.error);
    expectSameRawPaper(plain.test.spooler.jobs, hostile.test.spooler.jobs);
    expectSameDrawing(plain.test.printer.operations, hostile.test.printer.operations);
    ASSERT_EQ(hostile.test.loader.addresses.size(), plain.test.loader.addresses.size());
    for (std::size_t i = 0; i < plain.test.loader.addresses.size(); ++i) {
        const std::string line = requestLine(hostile.test.loader.addresses[i]);
        EXPECT_EQ(line.find_first_of(" \t\r\n"), std::string::npos);
        EXPECT_EQ(keysOf(line), keysOf(plain.test.loader.addresses[i]));
    }
}

// How many fields it tried.
std::size_t expectHarmless(const Fields& usually, const Print& print) {
    Fields fields = usually;
    for (auto& [name, value] : fields) {
        const std::string usual = value;
        for (const HostileText& hostile : hostileTexts()) {
            SCOPED_TRACE(name + " " + hostile.name);
            Outcome plain;
            Outcome tried;
            value = hostile.letters;
            run(plain, print, fields);
            value = hostile.xml;
            run(tried, print, fields);
            expectSame(plain, tried);
        }
        value = usual;
    }
    Outcome usual;
    run(usual, print, fields);
    EXPECT_FALSE(usual.error) << "the document as it should be";
    EXPECT_GT(usual.test.spooler.jobs.size() + usual.test.printer.operations.size(), 0U);
    return fields.size();
}

const Fields orderFields{{"CAB.RAZAO", "ANA"},      {"CAB.DT_EMS_NF", "05/03/2012"},
                         {"CAB.VENDEDOR", "ANA"},   {"CAB.NR_CTRL_INT", "7"},
                         {"ITEM.CD_PRO", "P"},      {"ITEM.DESCRICAO", "D"},
                         {"ITEM.QTDE", "1.5"},      {"ITEM.UNITARIO", "2"},
                         {"ITEM.VL_DSC", "0"},      {"ITEM.VL_IPI", "0"},
                         {"ITEM.VL_ICMS_RTD", "0"}, {"ITEM.VL_DSC_ICMS", "0"},
                         {"ITEM.VL_FRT", "0"},      {"ITEM.VL_DSP_ACS", "0"},
                         {"ITEM.VL_SEG", "0"},      {"PARCELA.DT_PRL", "05/04/2012"},
                         {"PARCELA.VL_PRL", "1"}};

Fields partOf(const Fields& all, const std::string& part) {
    Fields fields;
    for (const auto& [name, value] : all) {
        if (name.starts_with(part + ".")) {
            fields.emplace(name.substr(part.size() + 1), value);
        }
    }
    return fields;
}

TEST(HostileOrderSheet, NoneOfThe17FieldsOfBothSheetsMovesALine) {
    for (const std::int32_t company : {2041, 1361}) {
        Sessao session;
        session.NCOMPANYCODE = company;
        const std::size_t count =
            expectHarmless(orderFields, [&](Environment& environment, const Fields& fields) {
                XmlDocument order = loaded(
                    answers::declaration + "<PRINCIPAL>" + element("CAB", partOf(fields, "CAB")) +
                    element("ITEM", partOf(fields, "ITEM")) +
                    element("PARCELA", partOf(fields, "PARCELA")) + "</PRINCIPAL>");
                printOrder(environment, session, order);
            });
        EXPECT_EQ(count, 17U);
    }
}

const Fields slipDocument{{"TIPO_DOCTO", "DOCTO_COBRANCA"},
                          {"ID_PES_BAN", "1016"},
                          {"PES_JUR", "1"},
                          {"DC_REF_REC", "REF"}};

TEST(HostileSlip, NoneOfThe27FieldsOfADocumentMovesALineOrSplitsARequest) {
    for (const char* wallet : {"57", "101"}) {
        const Portfolio portfolio{.ID_CRT_COB = "5",
                                  .ID_PES_BAN = "1016",
                                  .NR_CRT_CNAB = wallet,
                                  .CD_AGE_BAN_CNAB = "112-3",
                                  .NR_CCOR_CNAB = "45678-9"};
        const std::size_t count = expectHarmless(
            gridFields(slipGrid(), slipDocument), [&](Environment& environment, const Fields& row) {
                std::vector<GridRow> rows = slipRows(rowsOfOne(row));
                rows.at(0).ticked = true;
                printSlips(environment, {}, portfolio, {.next = "1"}, rows,
                           {.untick = [](std::size_t) {}});
            });
        EXPECT_EQ(count, 27U);
    }
}

TEST(HostileSlip, NoneOfThe5FieldsOfAPortfolioMovesALineOrSplitsARequest) {
    const Fields portfolio{{"ID_CRT_COB", "5"},
                           {"ID_PES_BAN", "1016"},
                           {"NR_CRT_CNAB", "57"},
                           {"CD_AGE_BAN_CNAB", "112-3"},
                           {"NR_CCOR_CNAB", "45678-9"}};
    const std::size_t count =
        expectHarmless(portfolio, [&](Environment& environment, const Fields& fields) {
            std::vector<GridRow> rows = slipRows(rowsOfOne(gridFields(slipGrid(), slipDocument)));
            rows.at(0).ticked = true;
            printSlips(environment, {}, portfolioOf(rowsOfOne(fields)), {.next = "1"}, rows,
                       {.untick = [](std::size_t) {}});
        });
    EXPECT_EQ(count, 5U);
}

const Fields companyFields{{"DC_LG", "RUA"},
                           {"SG_UF", "SP"},
                           {"NM_BRR", "B"},
                           {"NM_MUN", "M"},
                           {"NM_UF", "U"},
                           {"NR_LG", "9"},
                           {"CD_CEP", "C"},
                           {"CD_ICR_EST", "I"},
                           {"DC_RAZ_SOC_ETB", "R"},
                           {"TELEFONE", "T"},
                           {"FAX", "F"},
                           {"EMAIL", "E"},
                           {"PES_JUR", "1"},
                           {"NR_CGC_CPL", "12345678000195"}};

const Fields billDocument{{"TIPO_DOCTO", "DOCTO_COBRANCA"}, {"ID_TIP_DOC", "1"}, {"PES_JUR", "1"}};

void printOneBill(Environment& environment, const Fields& company, const Fields& document) {
    std::vector<GridRow> rows = billRows(rowsOfOne(document));
    rows.at(0).ticked = true;
    printBills(environment, 2041, rowsOfOne(company), {.lines = rows, .pictures = {}}, {});
}

TEST(HostileBill, NoneOfThe22FieldsOfADocumentMovesATextOnBillOrReceipt) {
    for (const char* kind : {"1", "12"}) {
        Fields document = gridFields(billGrid(), billDocument);
        document["ID_TIP_DOC"] = kind;
        const std::size_t count =
            expectHarmless(document, [](Environment& environment, const Fields& fields) {
                printOneBill(environment, companyFields, fields);
            });
        EXPECT_EQ(count, 22U);
    }
}

TEST(HostileBill, NoneOfThe14FieldsOfTheCompanyMovesAText) {
    const std::size_t count =
        expectHarmless(companyFields, [](Environment& environment, const Fields& fields) {
            printOneBill(environment, fields, gridFields(billGrid(), billDocument));
        });
    EXPECT_EQ(count, 14U);
}

TEST(HostileCheque, NoneOfThe5FieldsMovesALine) {
    const Fields cheque{{"bank", "33"},
                        {"value", "1.234,56"},
                        {"payee", "ANA"},
                        {"date", "05/03/2012"},
                        {"town", "CAMPINAS"}};
    for (const char* bank : {"33", "1"}) {
        Fields fields = cheque;
        fields["bank"] = bank;
        const std::size_t count =
            expectHarmless(fields, [](Environment& environment, const Fields& values) {
                const XmlDocument typed = rowsOfOne(values);  // as texts again
                const auto row = typed.selectSingleNode("xml/rs:data").child(0).attributes();
                ImprimeCheque(environment, {.nNr_Ofi_Ban = bankCode(row.textOf("bank")),
                                            .sValor = row.textOf("value"),
                                            .sFavorecido = row.textOf("payee"),
                                            .sDataDeposito = row.textOf("date"),
                                            .sNmMun = row.textOf("town")});
            });
        EXPECT_EQ(count, 5U);
    }
}

const Fields labelFields{{"NOME", "ANA"},    {"ENDERECO", "RUA"},  {"SOMENTE_ENDERECO", "RUA"},
                         {"NUMERO", "5"},    {"COMPLEMENTO", "C"}, {"BAIRRO", "B"},
                         {"MUNICIPIO", "M"}, {"UF", "SP"},         {"CEP", "13010-001"},
                         {"CODIGO", "9"}};
const Fields senderFields{{"NOME", "ANA"},    {"ENDERECO", "RUA"}, {"BAIRRO", "B"},
                          {"MUNICIPIO", "M"}, {"UF", "SP"},        {"CEP", "1"},
                          {"DESCRICAO", "D"}, {"NUMERO", "5"}};
constexpr std::array labelForms{labels::LabelForm::Pimaco6280, labels::LabelForm::DotMatrix,
                                labels::LabelForm::A5, labels::LabelForm::A4WithSender};

TEST(HostileLabel, NoneOfThe10FieldsMovesAnythingOnTheFourForms) {
    for (const labels::LabelForm form : labelForms) {
        const std::size_t count =
            expectHarmless(labelFields, [form](Environment& environment, const Fields& fields) {
                const labels::PrintRun label{rowsOfOne(fields),
                                             labels::readSender(rowsOfOne(senderFields))};
                labels::printLabels(environment, form, label, {});
            });
        EXPECT_EQ(count, 10U);
    }
}

TEST(HostileLabel, NoneOfThe8FieldsOfTheSenderMovesAnything) {
    const std::size_t count = expectHarmless(senderFields, [](Environment& environment,
                                                              const Fields& fields) {
        const labels::PrintRun label{rowsOfOne(labelFields), labels::readSender(rowsOfOne(fields))};
        labels::printLabels(environment, labels::LabelForm::A4WithSender, label, {});
    });
    EXPECT_EQ(count, 8U);
}

TEST(HostileLabel, NoneOfThe6FieldsOfASelectedCustomerMovesAnything) {
    const std::size_t count = expectHarmless(gridFields(labels::selectionGrid(), {}),
                                             [](Environment& environment, const Fields& fields) {
                                                 std::vector<GridRow> rows =
                                                     labels::customersOf(rowsOfOne(fields));
                                                 rows.at(0).ticked = true;
                                                 labels::printSelection(environment, rows, {});
                                             });
    EXPECT_EQ(count, 6U);
}

}  // namespace

}  // namespace tarn::test
