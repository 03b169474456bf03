#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

constexpr const char* billKinds = "&ID_TIP_DOC=1,201,202,203,262,341,342,361";
constexpr const char* receiptKinds = "&ID_TIP_DOC=12";

std::string billQuery(const std::string& kinds, const std::string& filters) {
    return "comando=sel_duplicata&ID_EMP_TARN=1361" + kinds + filters +
           "&ID_PES_USU=101&ServerName=DADOS1361";
}

std::string customerQuery(const std::string& filter) {
    return "comando=Sel_Cliente&id_emp_tarn=1361&Filtro=" + filter + "&ServerName=DADOS1361";
}

std::vector<std::string> column(const XmlDocument& document, const char* name) {
    std::vector<std::string> values;
    for (const XmlNode& row : rowsOf(document)) {
        values.push_back(field(row, name));
    }
    return values;
}

std::set<std::string> kindsOf(const XmlDocument& document) {
    const std::vector<std::string> kinds = column(document, "ID_TIP_DOC");
    return {kinds.begin(), kinds.end()};
}

TEST(DocumentCommands, ListTheEstablishmentsOfTheUsersCompany) {
    Desk desk;
    const XmlDocument document =
        desk.ask("comando=sel_filiais&ID_EMP_TARN=1361&UserCode=101&ServerName=DADOS1361");
    EXPECT_EQ(column(document, "SG_FIL"),
              (std::vector<std::string>{"MATRIZ SP", "FILIAL CPS", "FILIAL FLN"}));
    EXPECT_EQ(column(document, "ID_ETB_TARN"), (std::vector<std::string>{"1361", "1362", "1363"}));
    for (const char* wrong :
         {"comando=sel_filiais&ID_EMP_TARN=141&UserCode=101&ServerName=DADOS1361",
          "comando=sel_filiais&ID_EMP_TARN=1361&UserCode=9&ServerName=DADOS1361",
          "comando=sel_filiais&ID_EMP_TARN=1361&UserCode=101&ServerName="}) {
        EXPECT_TRUE(rowsOf(desk.ask(wrong)).empty()) << wrong;
    }
}

TEST(DocumentCommands, FindDocumentsByTheirKind) {
    Desk desk;
    const XmlDocument bills = desk.ask(billQuery(billKinds, ""));
    EXPECT_EQ(kindsOf(bills),
              (std::set<std::string>{"1", "201", "202", "203", "262", "341", "342", "361"}));
    EXPECT_GT(rowsOf(bills).size(), 1000U);
    const XmlDocument receipts = desk.ask(billQuery(receiptKinds, ""));
    EXPECT_EQ(kindsOf(receipts), std::set<std::string>{"12"});
    EXPECT_GT(rowsOf(receipts).size(), 100U);
    EXPECT_EQ(kindsOf(desk.ask(billQuery("&ID_TIP_DOC=1,12", ""))),
              (std::set<std::string>{"1", "12"}));
    EXPECT_TRUE(rowsOf(desk.ask(billQuery("&ID_TIP_DOC=", ""))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(billQuery("&ID_TIP_DOC=1,x", ""))).empty());
}

TEST(DocumentCommands, GiveEveryFieldOfADocument) {
    Desk desk;
    const XmlDocument document = desk.ask(billQuery(billKinds, ""));
    bool receivables = false;
    for (const XmlNode& row : rowsOf(document)) {
        for (const char* name :
             {"SG_FIL", "DT_VNC_DOC_FMA", "DT_EMS_DOC", "NR_DOC", "NM_CLI_ETB", "DC_LG_CPL",
              "VL_PRN_DOC", "CD_CEP", "NM_MUN", "SG_UF", "PES_JUR", "NR_CGC_CPL", "TIPO_DOCTO",
              "ID_TIP_DOC", "EG_COB", "MUN_COB", "ES_COB", "CD_CEP_COB"}) {
            ASSERT_NE(field(row, name), "-") << name;
        }
        const bool receivable = field(row, "TIPO_DOCTO") == "DOCTO_RECEBER";
        receivables = receivables || receivable;
        ASSERT_TRUE(receivable || field(row, "TIPO_DOCTO") == "DOCTO_COBRANCA");
        EXPECT_EQ(field(row, "ID_NR_CTL") != "-", receivable);
        EXPECT_EQ(field(row, "NR_CGC_CPL").size(), field(row, "PES_JUR") == "0" ? 11U : 14U);
    }
    EXPECT_TRUE(receivables);
}

TEST(DocumentCommands, ShowTheCustomersBillingAddressOrItsOwn) {
    Desk desk;
    const XmlDocument own = desk.ask(billQuery(billKinds, "&ID_PES_CLI=1001"));
    ASSERT_FALSE(rowsOf(own).empty());
    EXPECT_EQ(field(rowsOf(own)[0], "EG_COB"), "RUA DAS PALMEIRAS, 45");
    EXPECT_EQ(field(rowsOf(own)[0], "DC_LG_CPL"), "RUA DAS PALMEIRAS, 45");
    const XmlDocument other = desk.ask(billQuery(billKinds, "&ID_PES_CLI=1008"));
    ASSERT_FALSE(rowsOf(other).empty());
    EXPECT_EQ(field(rowsOf(other)[0], "EG_COB"), "RUA DA CONTABILIDADE, 80");
    EXPECT_EQ(field(rowsOf(other)[0], "MUN_COB"), "BELO HORIZONTE");
    EXPECT_EQ(field(rowsOf(other)[0], "ES_COB"), "MG");
    EXPECT_EQ(field(rowsOf(other)[0], "CD_CEP_COB"), "30140080");
}

TEST(DocumentCommands, NarrowTheSearchByCustomerEstablishmentAndDays) {
    Desk desk;
    const XmlDocument branch = desk.ask(billQuery(billKinds, "&ID_ETB_TARN=1362"));
    ASSERT_FALSE(rowsOf(branch).empty());
    for (const XmlNode& row : rowsOf(branch)) {
        ASSERT_EQ(field(row, "SG_FIL"), "FILIAL CPS");
    }
    const XmlDocument narrowed =
        desk.ask(billQuery(billKinds,
                           "&DT_VNC_DE=01/09/2012&DT_VNC_ATE=30/09/2012&DT_EMS_DE=01/08/2012"
                           "&DT_EMS_ATE=31/08/2012"));
    ASSERT_FALSE(rowsOf(narrowed).empty());
    for (const XmlNode& row : rowsOf(narrowed)) {
        ASSERT_EQ(field(row, "DT_VNC_DOC_FMA").substr(2), "/09/2012");
        ASSERT_EQ(field(row, "DT_EMS_DOC").substr(2), "/08/2012");
    }
    const std::size_t all = rowsOf(desk.ask(billQuery(billKinds, ""))).size();
    EXPECT_EQ(rowsOf(desk.ask(billQuery(billKinds, "&ID_PES_CLI=&ID_ETB_TARN=&DT_VNC_DE="))).size(),
              all);
    EXPECT_TRUE(rowsOf(desk.ask(billQuery(billKinds, "&DT_VNC_ATE=31/02/2012"))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(billQuery(billKinds, "&ID_PES_CLI=2001"))).empty());
}

TEST(DocumentCommands, HaveTheBillsOfANoteUntilItIsCancelled) {
    Desk desk;
    const std::size_t before = rowsOf(desk.ask(billQuery(billKinds, "&ID_PES_CLI=1001"))).size();
    const Generated note = desk.generate("45001");  // three parcels
    const XmlDocument after = desk.ask(billQuery(billKinds, "&ID_PES_CLI=1001"));
    ASSERT_EQ(rowsOf(after).size(), before + 3);
    const std::vector<std::string> notes = column(after, "NR_DOC_NF");
    EXPECT_EQ(std::ranges::count(notes, note.number), 3);
    EXPECT_EQ(desk.status("comando=sp_can_nf&ID_ETB_TARN=1361&IC_TIP_NF=S&ID_NF_KESTO=" +
                          note.number + "&CD_SER_NF=" + note.series +
                          "&id_mot_can=1&id_pes_usu=101&Tipo_Can=C&ServerName=DADOS1361"),
              "OK");
    EXPECT_EQ(rowsOf(desk.ask(billQuery(billKinds, "&ID_PES_CLI=1001"))).size(), before);
}

TEST(DocumentCommands, FindCustomersByPartOfTheNameWhateverItsCaseAndAccents) {
    Desk desk;
    for (const char* filter : {"pao de ara%E7as", "P%C3O DE ARA", "%20PANIFICADORA E CONF%20"}) {
        const std::vector<std::string> names =
            column(desk.ask(customerQuery(filter)), "NM_PES_CPL");
        EXPECT_EQ(std::ranges::count(names, "PANIFICADORA E CONFEITARIA PÃO DE ARAÇÁS LTDA"), 1)
            << filter;
    }
    const XmlDocument document = desk.ask(customerQuery("ALBUQUERQUE"));
    ASSERT_EQ(rowsOf(document).size(), 1U);
    EXPECT_EQ(field(rowsOf(document)[0], "ID_PES_CLI"), "1002");
    EXPECT_EQ(field(rowsOf(document)[0], "DC_TIP_EMP"), "PESSOA FÍSICA");
}

TEST(DocumentCommands, TakeABarInTheCustomersNameForAnAmpersand) {
    Desk desk;
    const std::vector<std::string> names =
        column(desk.ask(customerQuery("MU%D1OZ%20%7C%20CIA")), "NM_PES_CPL");
    EXPECT_EQ(names, std::vector<std::string>{"OFICINA MECÂNICA IRMÃOS MUÑOZ & CIA LTDA"});
    EXPECT_TRUE(rowsOf(desk.ask(customerQuery("MU%D1OZ%20%7C%7C%20CIA"))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(customerQuery("100%"))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(customerQuery("___"))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(customerQuery("%20%20%20"))).empty());
}

TEST(DocumentCommands, HaveCustomersThatFillAScreen) {
    Desk desk;
    const std::size_t many = rowsOf(desk.ask(customerQuery("LTDA"))).size();
    EXPECT_GT(many, 300U);
    const std::vector<std::string> names =
        column(desk.ask(customerQuery("%20%7C%20")), "NM_PES_CPL");
    EXPECT_GT(names.size(), 20U);
}

}  // namespace
}  // namespace tarn::practice::test
