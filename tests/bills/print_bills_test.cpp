// Bills and receipts as draw operations.
#include "bills/print_bills.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bills/bill_search.h"
#include "gateway/sessao.h"
#include "gateway/xml_document.h"
#include "runtime/runtime_error.h"
#include "tests/bills/expected_pages.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/sessions.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::Contains;
using testing::Not;

constexpr char wholeCompany[] =
    "<z:row DC_LG='AV. BRASIL' SG_UF='SP' NM_BRR='CENTRO' NM_MUN='SÃO PAULO' NM_UF='São Paulo' "
    "NR_LG='999' CD_CEP='01234-567' CD_ICR_EST='111.222.333' DC_RAZ_SOC_ETB='PEÇAS SÃO JOÃO LTDA' "
    "TELEFONE='(11)5555-0101' FAX='(11)5555-0102' EMAIL='a@b.example' PES_JUR='1' "
    "NR_CGC_CPL='1234567000189'/>";

constexpr char billRow[] =
    "<z:row SG_FIL='MATRIZ' DT_VNC_DOC_FMA='15/04/2012' DT_EMS_DOC='2012-03-15' NR_DOC='4567/A' "
    "NM_CLI_ETB='JOSÉ &amp; &lt;b>FILHOS' DC_LG_CPL='RUA DAS FLORES, 10' VL_PRN_DOC='1234.5' "
    "CD_CEP='13000-000' NM_MUN='CAMPINAS' SG_UF='SP' NR_CGC_CPL='98765432000110' "
    "CD_ICR_EST='ISENTO' PES_JUR='1' TIPO_DOCTO='DOCTO_COBRANCA' ID_TIP_DOC='1' "
    "DC_REF_REC='nota 4567' NR_DOC_NF='NF 88' EG_COB='RUA DO PORTO, 3' MUN_COB='SANTOS' "
    "ES_COB='RJ' CD_CEP_COB='11000-000'/>";

constexpr char receiptRow[] =
    "<z:row DT_VNC_DOC_FMA='15/04/2012' DT_EMS_DOC='15/03/2012' NR_DOC='77' NM_CLI_ETB='MARIA' "
    "DC_LG_CPL='RUA B, 2' VL_PRN_DOC='1' CD_CEP='13000-001' NM_MUN='ITU' SG_UF='SP' "
    "NR_CGC_CPL='12345678901' CD_ICR_EST='' PES_JUR='0' TIPO_DOCTO='DOCTO_COBRANCA' "
    "ID_TIP_DOC='12' DC_REF_REC='serviços de março' NR_DOC_NF='' EG_COB='RUA B, 2'/>";

// The line "UM MIL, ..." behind which the filler begins.
constexpr char words[] = "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA CENTAVOS";

Operations header(const std::string& label, const std::string& place, const std::string& issued) {
    return {ruledLine(1.1, 0.9, 20.3, 0.9, 15),
            picture(1.6, 1.3, "picLogo"),
            arial(11, 1.6, 9, "PEÇAS SÃO JOÃO LTDA"),
            arial(11, 2.0, 6, "AV. BRASIL -  - CENTRO"),
            arial(11, 2.4, 6, place),
            arial(11, 2.8, 6, "Inscrição CNPJ nº 01.234.567/0001-89"),
            arial(11, 3.2, 6, "Inscrição Estadual - 111.222.333"),
            arial(11, 3.6, 6, "TEL.:(11)5555-0101 - FAX.:(11)5555-0102 - E-MAIL:a@b.example"),
            arial(11, 4.0, 8, label),
            arial(14.3, 4.0, 8, issued)};
}

Operations billPageOf(const std::string& kindName = "DUPLICATA",
                      const std::string& payee = "PEÇAS SÃO JOÃO LTDA") {
    Operations page = header("DATA DE EMISSÃO:", "CEP: 01234-567 - SÃO PAULO - SP", "2012-03-15");
    const Operations rest = {
        ruledLine(1.1, 4.05, 20.3, 4.05, 10), ruledLine(3.0, 4.3, 3.0, 13.5, 3),
        picture(3.2, 7.0, "picAss"), picture(1.1, 4.6, "picVert"), arial(6, 5, 9, "Fatura/NF"),
        arial(6.2, 5.5, 9, "NF 88"), arial(8.8, 4.8, 8, "Fatura/NF"),
        arial(8.8, 5.1, 8, "Valor R$"), arial(8.3, 5.5, 9, "R$ 1.234,50"),
        arial(11, 5, 8, " Duplicata Nº "), arial(11.4, 5.5, 9, "4567/A"),
        arial(14.1, 5, 8, "Vencimento"), arial(14.2, 5.5, 9, "15/04/2012"),
        thin(5.3, 6.2, 7, "Desconto de"), thin(5.3, 6.5, 7, "Condições Especiais"),
        thin(13, 6.2, 7, "Até"), ruledLine(4.8, 6.55, 20.3, 6.55, 10),
        arial(5.4, 7.5, 8, "Nome do Sacado"), arial(9, 7.5, 8, "JOSÉ & <b>FILHOS"),
        arial(5.4, 7.9, 8, "Endereço"), arial(9, 7.9, 8, "RUA DAS FLORES, 10"),
        arial(5.4, 8.3, 8, "Município"), arial(9, 8.3, 8, "CAMPINAS"), arial(13, 8.3, 8, "Estado"),
        arial(14.3, 8.3, 8, "SP"), arial(16.5, 8.3, 8, "CEP"), arial(18, 8.3, 8, "13000-000"),
        arial(5.4, 8.7, 8, "C.N.P.J. (M.F.) Nº"), arial(9, 8.7, 8, "98.765.432/0001-10"),
        arial(15, 8.7, 8, "I.E. Nº"), arial(16, 8.7, 8, "ISENTO"),
        arial(5.4, 9.5, 8, "Endereço de Cobrança"), arial(9, 9.5, 8, "RUA DO PORTO, 3"),
        arial(5.4, 9.9, 8, "Município"), arial(9, 9.9, 8, "SANTOS"), arial(13, 9.9, 8, "Estado"),
        arial(14.3, 9.9, 8, "RJ"), arial(16.5, 9.9, 8, "CEP"), arial(18, 9.9, 8, "11000-000"),
        arial(6, 11.2, 8, "VALOR"), arial(6.2, 11.6, 8, "POR"), arial(5.9, 12, 8, "EXTENSO"),
        // 61 characters of words, a blank, then the pairs.
        courier(9, 11.2, 10, "UM MIL, DUZENTOS E TRINTA E QUATRO REAIS E CINQUENTA "),
        courier(9, 11.6, 10, "CENTAVOS .X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X"),
        courier(9, 12, 10, ".X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X."),
        arial(5.4, 12.6, 7,
              "Reconheço(cemos) a exatidão desta " + kindName +
                  " DE VENDA MERCANTIL na importância acima, que pagarei(emos)"),
        arial(5.4, 12.9, 7,
              "à " + payee + ", ou à sua ordem na praça e vencimento acima indicado."),
        ruledLine(4.8, 13.2, 9, 13.2, 2), arial(6.2, 13.3, 10, " /          /"),
        arial(6.2, 13.7, 8, "DATA DE ACEITE"), ruledLine(14, 13.2, 19, 13.2, 2),
        arial(15.2, 13.7, 8, "ASSINATURA DO SACADO"), ruledLine(1.1, 13.8, 20.3, 13.8, 10),
        "newpage"};
    page.insert(page.end(), rest.begin(), rest.end());
    return page;
}

Operations receiptPageOf() {
    Operations page =
        header("DATA DE EMISSAO:", "CEP: 01234-567 - Estado de São Paulo", "15/03/2012");
    const std::string blanks60(60, ' ');
    const std::string hyphens60(60, '-');
    const Operations rest = {
        ruledLine(1.1, 4.05, 20.3, 4.05, 6),
        arial(2, 5, 14, "Nº 77"),
        arial(9.8, 5, 16, "RECIBO"),
        arial(16, 5, 14, "R$ 1,00"),
        ruledLine(1.1, 5.5, 20.3, 5.5, 6),
        arial(2, 6.5, 10, "Nome do Sacado"),
        arial(5, 6.5, 10, "MARIA"),
        arial(2, 7.2, 10, "Endereço"),
        arial(5, 7.2, 10, "RUA B, 2"),
        arial(2, 7.9, 10, "Município"),
        arial(5, 7.9, 10, "ITU"),
        arial(10, 7.9, 10, "Estado"),
        arial(11.5, 7.9, 10, "SP"),
        arial(16.5, 7.9, 10, "CEP"),
        arial(18, 7.9, 10, "13000-001"),
        arial(2, 8.6, 10, "CPF Nº"),
        arial(5, 8.6, 10, "123.456.789-01"),
        arial(14.5, 8.6, 10, "I.E. Nº"),
        arial(16, 8.6, 10, ""),
        arial(2, 9.3, 10, " VALOR "),
        arial(2, 9.7, 10, "  POR  "),
        arial(2, 10.1, 10, "EXTENSO"),
        courier(5, 9.3, 11, "UM REAL ----------------------------------------------------"),
        courier(5, 9.7, 11, hyphens60),
        courier(5, 10.1, 11, hyphens60),
        arial(2, 10.8, 10, "Referente a "),
        courier(5, 10.8, 11, "serviços de março" + std::string(43, ' ')),
        courier(5, 11.2, 11, blanks60),
        courier(5, 11.6, 11, blanks60),
        courier(5, 12, 11, blanks60),
        courier(5, 12.4, 11, blanks60),
        ruledLine(2.8, 13.2, 7, 13.2, 2),
        arial(4.2, 13.3, 10, " /          /"),
        arial(3.7, 13.7, 10, "DATA RECEBIMENTO"),
        ruledLine(13, 13.2, 19, 13.2, 3),
        arial(14.7, 13.7, 10, "ASSINATURA EMPRESA"),
        ruledLine(1.1, 13.8, 20.3, 13.8, 10),
        "newpage"};
    page.insert(page.end(), rest.begin(), rest.end());
    return page;
}

Operations job(std::initializer_list<Operations> pages) {
    Operations all{"scale\t7", "orientation\t1"};
    for (const Operations& page : pages) {
        all.insert(all.end(), page.begin(), page.end());
    }
    all.emplace_back("enddoc");
    return all;
}

std::string with(std::string line, const std::string& field, const std::string& value) {
    const std::size_t start = line.find(" " + field + "='") + field.size() + 3;
    return line.replace(start, line.find('\'', start) - start, value);
}
std::string without(std::string line, const std::string& field) {
    const std::size_t start = line.find(" " + field + "='");
    const std::size_t end = line.find('\'', start + field.size() + 3);
    return line.erase(start, end + 1 - start);
}

class PrintBillsTest : public testing::Test {
protected:
    PrintBillsTest() { seams_.loader.on("sel_dados_empresa", answers::rowset(wholeCompany)); }
    // The rows of the grid, all of them ticked.
    void findBill(const std::string& lines) {
        XmlDocument answer;
        ASSERT_TRUE(answer.loadXML(answers::rowset(lines)));
        lines_ = billRows(answer);
        for (GridRow& line : lines_) {
            line.ticked = true;
        }
    }
    void company(const std::string& line) {
        ScriptedLoader other;
        seams_.loader = other.on("sel_dados_empresa", answers::rowset(line));
    }
    void print() {
        printSelected(seams_.environment, session_,
                      {.lines = lines_, .triplicate = triplicate_, .pictures = pictures_},
                      progress_);
    }
    Operations drawn() const { return seams_.printer.lines(); }
    void forget() {
        seams_.printer.operations.clear();
        seams_.boxes.shown.clear();
    }
    static Box success(const std::string& kindName) {
        return information(kindName + " com sucesso!     ");
    }

    TestEnvironment seams_;
    Sessao session_ = sessionOf(1361, 9);
    std::vector<GridRow> lines_;
    bool triplicate_ = false;
    BillPictures pictures_{Picture("picLogo", "l"), Picture("picVert", "v"),
                           Picture("picAss", "a")};
    Progress progress_;
};

TEST_F(PrintBillsTest, DrawsABill) {
    findBill(billRow);
    print();
    EXPECT_EQ(seams_.loader.queries(),
              (Texts{"comando=sel_dados_empresa&Id_Etb_Tarn=9&ServerName=SRV1"}));
    EXPECT_EQ(drawn(), job({billPageOf()}));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{success("Duplicata(s)  impressa(s)")}));
}

TEST_F(PrintBillsTest, OneCopyIsSetAfterTheOrientation) {
    findBill(billRow);
    print();
    ASSERT_GE(seams_.printer.operations.size(), 3U);
    EXPECT_EQ(seams_.printer.operations[2], PrintOperation(Copies{1}));
}

// The same lines as bytes, not by way of this test's own arithmetic.
TEST_F(PrintBillsTest, WhereThingsLand) {
    findBill(billRow);
    print();
    EXPECT_THAT(drawn(),
                testing::IsSupersetOf({"text\t5.500\t4.500\tArial\t9\t1\tFatura/NF",
                                       "text\t4.800\t6.000\tArial\t7\t0\tCondições Especiais",
                                       "line\t4.800\t6.550\t20.300\t6.550\t10",
                                       "picture\t3.200\t7.000\tpicAss",
                                       "text\t8.500\t11.500\tCourier New\t10\t1\t.X.X.X.X.X.X.X.X."
                                       "X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X."}));
}

TEST_F(PrintBillsTest, DrawsATriplicate) {
    findBill(billRow);
    triplicate_ = true;
    print();
    EXPECT_EQ(drawn(), job({billPageOf("TRIPLICATA")}));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{success("Triplicata(s)  impressa(s)")}));
}

TEST_F(PrintBillsTest, DrawsAReceipt) {
    findBill(receiptRow);
    triplicate_ = true;  // has no say here
    print();
    EXPECT_EQ(drawn(), job({receiptPageOf()}));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{success("Recibo(s) impresso(s)")}));
}

TEST_F(PrintBillsTest, TwoCompaniesHaveAPayeeOfTheirOwn) {
    findBill(billRow);
    session_.NCOMPANYCODE = 1521;
    print();
    EXPECT_EQ(drawn(), job({billPageOf("DUPLICATA", "ORVALHO MÓVEIS LTDA.")}));
    forget();
    session_.NCOMPANYCODE = 2801;
    print();
    EXPECT_EQ(drawn(),
              job({billPageOf("DUPLICATA", "ZENTRA COM. E REPRES. DE PEÇAS HIDRÁULICAS LTDA.")}));
}

TEST_F(PrintBillsTest, NothingTickedStillAsksForTheCompany) {
    findBill(billRow);
    lines_[0].ticked = false;
    print();
    lines_.clear();
    print();
    EXPECT_EQ(seams_.loader.addresses.size(), 2U);
    EXPECT_THAT(seams_.printer.operations, testing::IsEmpty());
    EXPECT_EQ(seams_.boxes.shown, (Boxes{information("Selecione um documento.     "),
                                         information("Selecione um documento.     ")}));
}

TEST_F(PrintBillsTest, EachRowHasItsPageAndTheLastRowTheMessage) {
    findBill(std::string(billRow) + receiptRow + billRow);
    lines_[2].ticked = false;
    print();
    EXPECT_EQ(drawn(), job({billPageOf(), receiptPageOf()}));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{success("Duplicata(s)  impressa(s)")}));
    forget();
    findBill(std::string(receiptRow) + billRow + receiptRow);
    lines_[0].ticked = lines_[2].ticked = false;
    print();
    EXPECT_EQ(drawn(), job({billPageOf()}));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{success("Recibo(s) impresso(s)")}));
    EXPECT_TRUE(lines_[1].ticked) << "ticks stay";
}

TEST_F(PrintBillsTest, TypesAreNumbers) {
    const struct {
        const char* kind;
        bool bill;
        const char* message;
    } cases[] = {
        {"1", true, "Duplicata(s)  impressa(s)"},     {"001", true, "Duplicata(s)  impressa(s)"},
        {" 1,0 ", true, "Duplicata(s)  impressa(s)"}, {"201", true, "Duplicata(s)  impressa(s)"},
        {"202", true, "Duplicata(s)  impressa(s)"},   {"203", true, "Duplicata(s)  impressa(s)"},
        {"262", true, "Recibo(s) impresso(s)"},       {"341", false, "Recibo(s) impresso(s)"},
        {"342", false, "Recibo(s) impresso(s)"},      {"361", false, "Recibo(s) impresso(s)"},
        {"12", false, "Recibo(s) impresso(s)"},       {"", false, "Recibo(s) impresso(s)"},
        {"1A", false, "Recibo(s) impresso(s)"}};
    for (const auto& testCase : cases) {
        findBill(with(billRow, "ID_TIP_DOC", testCase.kind));
        print();
        EXPECT_EQ(testing::Value(drawn(), Contains(arial(9.8, 5, 16, "RECIBO"))), !testCase.bill)
            << testCase.kind;
        EXPECT_EQ(seams_.boxes.shown, (Boxes{success(testCase.message)})) << testCase.kind;
        forget();
    }
}

TEST_F(PrintBillsTest, ABillToAPerson) {
    findBill(with(with(billRow, "PES_JUR", "0"), "NR_CGC_CPL", "12345678901"));
    print();
    EXPECT_THAT(drawn(), Contains(arial(5.4, 8.7, 8, "CPF Nº")));
    EXPECT_THAT(drawn(), Contains(arial(9, 8.7, 8, "123.456.789-01")));
}

TEST_F(PrintBillsTest, AReceiptToACompany) {
    findBill(with(receiptRow, "PES_JUR", "1"));
    print();
    EXPECT_THAT(drawn(), Contains(arial(2, 8.6, 10, "CNPJ Nº")));
    EXPECT_THAT(drawn(), Contains(arial(5, 8.6, 10, "00.012.345/6789-01")));
}

TEST_F(PrintBillsTest, TheBillingAddress) {
    const auto towns = [this] {
        return std::ranges::count(drawn(), arial(5.4, 9.9, 8, "Município"));
    };
    findBill(with(billRow, "EG_COB", "RUA DAS FLORES, 10"));
    print();
    EXPECT_THAT(drawn(), Contains(arial(9, 9.5, 8, "O MESMO")));
    EXPECT_EQ(towns(), 0);
    forget();
    findBill(with(with(billRow, "EG_COB", ""), "DC_LG_CPL", ""));
    print();
    EXPECT_THAT(drawn(), Contains(arial(9, 9.5, 8, "O MESMO"))) << "both empty";
    forget();
    findBill(with(billRow, "EG_COB", ""));
    print();
    EXPECT_THAT(drawn(), Contains(arial(9, 9.5, 8, "")));
    EXPECT_EQ(towns(), 1);
    forget();
    findBill(with(billRow, "EG_COB", "RUA DAS FLORES, 10 "));
    print();
    EXPECT_EQ(towns(), 1) << "a blank makes another address";
}

TEST_F(PrintBillsTest, AReceivableHasNoReference) {
    findBill(with(receiptRow, "TIPO_DOCTO", "DOCTO_RECEBER"));
    print();
    const std::string blanks60(60, ' ');
    EXPECT_THAT(drawn(), Contains(arial(2, 10.8, 10, "Referente a ")));
    EXPECT_THAT(drawn(), Contains(courier(5, 10.8, 11, blanks60)));
}

TEST_F(PrintBillsTest, ALongReferenceTakesFiveLines) {
    const std::string reference = std::string(59, 'a') + "çb" + std::string(238, 'c') + "dE" + "F";
    findBill(with(receiptRow, "DC_REF_REC", reference));  // 302 characters
    print();
    EXPECT_THAT(drawn(), testing::IsSupersetOf({courier(5, 10.8, 11, std::string(59, 'a') + "ç"),
                                                courier(5, 11.2, 11, "b" + std::string(59, 'c')),
                                                courier(5, 12.4, 11, std::string(59, 'c') + "d")}));
}

TEST_F(PrintBillsTest, WordsThatAreTooLongAreCut) {
    constexpr char value[] = "777777777777.77";
    findBill(with(billRow, "VL_PRN_DOC", value));
    print();
    std::string strip;
    for (const double y : {11.2, 11.6, 12.0}) {
        for (const std::string& line : drawn()) {
            const std::string start = courier(9, y, 10, "");
            if (line.rfind(start, 0) == 0) {
                strip += line.substr(start.size());
            }
        }
    }
    EXPECT_EQ(strip.size(), 159U);
    EXPECT_EQ(strip.rfind("SETECENTOS E SETENTA E SETE BILHOES, SETECENTOS E SETENTA E SETE ", 0),
              0U);
    EXPECT_EQ(strip.find(".X"), std::string::npos) << "no room for the filler";
    EXPECT_THAT(drawn(), Not(Contains(testing::HasSubstr("CENTAVOS"))));
}

TEST_F(PrintBillsTest, ZeroHasNoWords) {
    findBill(with(billRow, "VL_PRN_DOC", "0") + with(receiptRow, "VL_PRN_DOC", ""));
    print();
    EXPECT_THAT(drawn(), Contains(courier(9, 11.2, 10,
                                          " .X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X.X."
                                          "X.X")));
    EXPECT_THAT(drawn(), Contains(courier(5, 9.3, 11, " " + std::string(59, '-'))));
    EXPECT_THAT(drawn(), Contains(arial(16, 5, 14, "R$ 0,00"))) << "present but empty";
}

TEST_F(PrintBillsTest, ARowWithoutAnAmountStopsBeforeItsPage) {
    findBill(std::string(billRow) + without(billRow, "VL_PRN_DOC"));
    try {
        print();
        FAIL() << "no failure";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::TypeMismatch);
        EXPECT_NE(error.description().find("4567/A"), std::string::npos) << error.description();
    }
    Operations first = job({billPageOf()});
    first.pop_back();
    EXPECT_EQ(drawn(), first) << "not ended";
    EXPECT_EQ(seams_.boxes.shown, Boxes{});
    forget();
    lines_[1].ticked = false;
    print();
    EXPECT_EQ(drawn(), job({billPageOf()}));
}

TEST_F(PrintBillsTest, EmptyFieldsOfTheCompanyKeepTheirLabels) {
    company("<z:row/>");
    findBill(billRow);
    print();
    const Operations all = drawn();
    const Operations start(all.begin() + 4, all.begin() + 10);
    EXPECT_EQ(start, (Texts{arial(11, 1.6, 9, ""), arial(11, 2.0, 6, " -  - "),
                            arial(11, 2.4, 6, "CEP:  -  - "),
                            arial(11, 2.8, 6, "Inscrição CNPJ nº 00.000.000/0000-00"),
                            arial(11, 3.2, 6, "Inscrição Estadual - "),
                            arial(11, 3.6, 6, "TEL.: - FAX.: - E-MAIL:")}));
}

TEST_F(PrintBillsTest, ACompanyThatIsAPerson) {
    company("<z:row PES_JUR='0' NR_CGC_CPL='54321'/><z:row PES_JUR='1'/>");
    findBill(billRow);
    print();
    EXPECT_THAT(drawn(), Contains(arial(11, 2.8, 6, "Inscrição CPF nº 000.000.543-21")));
}

TEST_F(PrintBillsTest, WithoutTheCompanyTheRunFailsBeforeTheTicksAreLookedAt) {
    ScriptedLoader outside;
    ScriptedLoader empty;
    outside.failOn("sel_dados_empresa");
    empty.on("sel_dados_empresa", answers::rowset(""));
    for (const ScriptedLoader& server : {outside, empty}) {
        seams_.loader = server;
        try {
            print();
            FAIL() << "no failure";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), RuntimeErrorCode::ObjectVariable);
        }
        EXPECT_THAT(seams_.printer.operations, testing::IsEmpty());
    }
    EXPECT_EQ(seams_.boxes.shown, (Boxes{noInternet9}));
}

TEST_F(PrintBillsTest, AFieldOfTheCompanyInAnotherCaseFails) {
    company("<z:row dc_lg='x'/>");
    findBill(billRow);
    EXPECT_THROW(print(), RuntimeError);
    EXPECT_THAT(seams_.printer.operations, testing::IsEmpty());
}

TEST_F(PrintBillsTest, PicturesThatAreMissingLeaveTheRestInPlace) {
    pictures_ = {};
    findBill(std::string(billRow) + receiptRow);
    print();
    Operations expected = job({billPageOf(), receiptPageOf()});
    std::erase_if(expected, [](const std::string& line) { return line.starts_with("picture"); });
    EXPECT_EQ(drawn(), expected);
}

TEST_F(PrintBillsTest, ControlCharactersMoveNothing) {
    findBill(with(with(billRow, "NM_CLI_ETB", "A&#10;B&#9;C"), "EG_COB", "RUA&#13;X"));
    print();
    EXPECT_THAT(drawn(), Contains(arial(9, 7.5, 8, "A B C")));
    EXPECT_THAT(drawn(), Contains(arial(9, 9.5, 8, "RUA X")));
}

TEST_F(PrintBillsTest, ATextThatFailsIsDroppedInSilence) {
    findBill(billRow);
    seams_.printer.failAt = 5;  // the company's name: unit, orientation, copies, line, logo
    ASSERT_EQ(job({billPageOf()})[4], arial(11, 1.6, 9, "PEÇAS SÃO JOÃO LTDA"));
    print();
    EXPECT_EQ(drawn(), job({billPageOf()}));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{success("Duplicata(s)  impressa(s)")}));
}

TEST_F(PrintBillsTest, WhatElseThePrinterRefusesIsToldInsteadOfTheSuccess) {
    const std::size_t end = job({billPageOf()}).size();  // one more with the copies
    for (const std::size_t where : {std::size_t{3}, std::size_t{4}, end - 1, end}) {
        findBill(billRow);
        seams_.printer.failAt = where;
        print();
        EXPECT_EQ(drawn(), job({billPageOf()})) << where;
        EXPECT_EQ(seams_.boxes.shown, (Boxes{printerRefused})) << where;
        forget();
    }
}

TEST_F(PrintBillsTest, APrinterThatRefusesEverythingIsToldOnce) {
    findBill(std::string(billRow) + receiptRow);
    seams_.printer.refuses = [](const PrintOperation&) { return true; };
    print();
    EXPECT_EQ(drawn(), job({billPageOf(), receiptPageOf()}));
    EXPECT_EQ(seams_.boxes.shown, (Boxes{printerRefused}));
}

TEST_F(PrintBillsTest, TellsItsProgress) {
    std::string many;
    for (int i = 0; i < 3; ++i) {
        many += receiptRow;
    }
    findBill(many);
    lines_[1].ticked = false;
    std::vector<std::pair<std::size_t, std::size_t>> notices;
    progress_ = [&](std::size_t doneRows, std::size_t total) {
        notices.emplace_back(doneRows, total);
    };
    print();
    EXPECT_THAT(notices, testing::ElementsAre(std::pair(0U, 2U), std::pair(2U, 2U)));
    EXPECT_FALSE(seams_.printer.progress) << "no longer told";
}

}  // namespace
}  // namespace tarn::test
