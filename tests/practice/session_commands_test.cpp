#include <gtest/gtest.h>

#include "practice/data/practice_data.h"
#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

std::string logonQuery(const PracticeLogon& logon) {
    return "comando=LOGIN&EMPRESA=" + std::to_string(logon.company) +
           "&USUARIO=" + std::string(logon.user) + "&SENHA=" + std::string(logon.password);
}

std::string rightQuery(const std::string& user, const std::string& server, const char* right) {
    return "Comando=verifica_direito_acesso&nId_Pes_Usu=" + user + "&ServerName=" + server +
           "&sTransacao=" + right;
}

TEST(SessionCommands, AdmitTheCurrentVersionAndLaterOnes) {
    Desk desk;
    for (const char* date : {"07/01/2009", "08/01/2009", "01/02/2010"}) {
        const XmlDocument document =
            desk.ask(std::string("comando=VERSAO_TARN_EMISSAO&Versao=") + date);
        const XmlAttributes version = document.child(1).child(0).attributes();
        EXPECT_EQ(version.item(0).text(), "OK") << date;
        EXPECT_EQ(version.item(1).text(), "07/01/2009");
    }
}

TEST(SessionCommands, RefuseAnOlderOrUnreadableVersion) {
    Desk desk;
    for (const char* date : {"06/01/2009", "31/12/2008", "", "2009-01-07"}) {
        const XmlDocument document =
            desk.ask(std::string("comando=VERSAO_TARN_EMISSAO&Versao=") + date);
        EXPECT_NE(document.child(1).child(0).attributes().item(0).text(), "OK") << date;
    }
}

TEST(SessionCommands, LogEveryPracticeUserOn) {
    Desk desk;
    for (const PracticeLogon& logon : practiceLogons()) {
        const XmlDocument document = desk.ask(logonQuery(logon));
        ASSERT_EQ(statusOf(document), "OK") << logonQuery(logon);
        EXPECT_EQ(document.child(1).nodeName(), "PRINCIPAL");
        const XmlNode row = document.selectSingleNode("PRINCIPAL").child(0);
        EXPECT_EQ(field(row, "NCOMPANYCODE"), std::to_string(logon.company));
        EXPECT_EQ(field(row, "ID_ETB_TARN"), std::to_string(logon.establishment));
        EXPECT_EQ(field(row, "SERVERNAME"), "DADOS" + std::to_string(logon.company));
        EXPECT_EQ(field(row, "DATA"), "9/5/2012");
        EXPECT_NE(field(row, "USERCODE"), "-");
        EXPECT_NE(field(row, "COMPANYNAME"), "-");
    }
}

TEST(SessionCommands, TakeTheUserInAnyCaseButThePasswordExactly) {
    Desk desk;
    EXPECT_EQ(desk.status("comando=LOGIN&EMPRESA=01361&USUARIO=%20CLARA&SENHA=pratica"), "OK");
    const char* refusal = "Usuário ou senha inválidos. Confira e digite de novo.";
    EXPECT_EQ(desk.status("comando=LOGIN&EMPRESA=1361&USUARIO=clara&SENHA=PRATICA"), refusal);
    EXPECT_EQ(desk.status("comando=LOGIN&EMPRESA=1361&USUARIO=ninguem&SENHA=pratica"), refusal);
    EXPECT_EQ(desk.status("comando=LOGIN&EMPRESA=1361&USUARIO=' OR '1'='1&SENHA=x"), refusal);
}

TEST(SessionCommands, RefuseAnUnknownCompanyWithoutAHeaderRow) {
    Desk desk;
    for (const char* company : {"9999", "", "abc", "13610000000000000000000"}) {
        const XmlDocument document = desk.ask(std::string("comando=LOGIN&EMPRESA=") + company +
                                              "&USUARIO=clara&SENHA=pratica");
        EXPECT_EQ(statusOf(document), "Empresa não cadastrada. Confira o código da empresa.");
        EXPECT_EQ(document.child(1).childCount(), 0U);
    }
}

TEST(SessionCommands, GiveRightsByUser) {
    Desk desk;
    for (const char* right : {"EMI001", "EMI002", "EMI003", "EMI005"}) {
        EXPECT_EQ(desk.status(rightQuery("101", "DADOS1361", right)), "OK") << right;
    }
    EXPECT_EQ(desk.status(rightQuery("104", "DADOS1361", "EMI002")), "OK");
    EXPECT_EQ(desk.status(rightQuery("104", "DADOS1361", "EMI001")),
              "Você não tem direito de acesso à transação EMI001 (Impressão de Nota Fiscal). "
              "Peça o acesso ao administrador do sistema.");
    EXPECT_NE(desk.status(rightQuery("104", "DADOS1361", "EMI003")), "OK");
    EXPECT_NE(desk.status(rightQuery("101", "DADOS141", "EMI001")), "OK");
    EXPECT_NE(desk.status(rightQuery("101", "DADOSXXX", "EMI001")), "OK");
}

TEST(SessionCommands, GiveTheEstablishmentsRecord) {
    Desk desk;
    const XmlDocument document =
        desk.ask("comando=sel_dados_empresa&Id_Etb_Tarn=142&ServerName=DADOS141");
    ASSERT_EQ(rowsOf(document).size(), 1U);
    const XmlNode row = rowsOf(document).front();
    EXPECT_EQ(field(row, "NM_FIL"), "São José Alimentos - Matriz");
    EXPECT_EQ(field(row, "NM_MUN"), "Belo Horizonte");
    EXPECT_EQ(field(row, "DC_RAZ_SOC_ETB"), "Distribuidora São José de Alimentos S/A");
    EXPECT_EQ(field(row, "NR_CGC_CPL").size(), 14U);
    for (const char* name : {"DC_LG", "SG_UF", "NM_BRR", "NM_UF", "NR_LG", "CD_CEP", "CD_ICR_EST",
                             "TELEFONE", "FAX", "EMAIL", "PES_JUR"}) {
        EXPECT_NE(field(row, name), "-") << name;
    }
}

TEST(SessionCommands, ShowNoRowsOfAnotherCompany) {
    Desk desk;
    EXPECT_TRUE(
        rowsOf(desk.ask("comando=sel_dados_empresa&Id_Etb_Tarn=1361&ServerName=DADOS141")).empty());
}

TEST(SessionCommands, RefuseWhatIsNoCommand) {
    Desk desk;
    EXPECT_EQ(desk.status("comando=fa%E7a"),
              "O comando \"faça\" não existe neste servidor. Atualize o sistema.");
    EXPECT_EQ(desk.status(""), "O pedido não traz comando.");
}

}  // namespace
}  // namespace tarn::practice::test
