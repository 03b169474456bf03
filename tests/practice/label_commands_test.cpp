#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <set>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

// The label queue of company 141.
std::string labelQuery(const std::string& reason, const std::string& from = {},
                       const std::string& to = {}) {
    return "comando=sel_etiquetas&ID_EMP_TARN=141&sDc_Mot_Imp=" + reason + "&nSeq_De=" + from +
           "&nSeq_Ate=" + to + "&ServerName=DADOS141";
}

std::string deleteQuery(const std::string& reason, const std::string& from, const std::string& to) {
    return "comando=exclui_etiquetas&ID_EMP_TARN=141&nSeq_De=" + from + "&nSeq_Ate=" + to +
           "&nId_Motivo=" + reason + "&ServerName=DADOS141";
}

std::vector<std::string> reasons(Desk& desk, const char* kind) {
    std::vector<std::string> texts;
    const XmlDocument document = desk.ask(
        std::string("comando=sel_motivos&ID_EMP_TARN=141&ServerName=DADOS141&sIc_Ver_Eti=") + kind);
    for (const XmlNode& row : rowsOf(document)) {
        texts.push_back(field(row, "DC_MOT_IMP"));
    }
    return texts;
}

std::vector<std::string> sequences(Desk& desk, const std::string& query) {
    std::vector<std::string> numbers;
    const XmlDocument document = desk.ask(query);
    for (const XmlNode& row : rowsOf(document)) {
        numbers.push_back(field(row, "SEQUENCIAL"));
    }
    return numbers;
}

using Texts = std::vector<std::string>;

TEST(LabelCommands, ListTheReasonsOfClientsAndOfSuppliers) {
    Desk desk;
    EXPECT_EQ(reasons(desk, "C"), (Texts{"MALA DIRETA DE NATAL", "COBRANÇA", "ENVIO DE CATÁLOGO",
                                         "ANIVERSARIANTES DO MÊS", "NOTA DEVOLVIDA"}));
    EXPECT_EQ(reasons(desk, "F"), (Texts{"PEDIDO DE COTAÇÃO", "CONVITE PARA A FEIRA"}));
    EXPECT_TRUE(reasons(desk, "").empty());
}

TEST(LabelCommands, GiveTheQueueOfAReasonInItsOrder) {
    Desk desk;
    const XmlDocument document = desk.ask(labelQuery("COBRAN%C7A"));
    const std::vector<XmlNode> rows = rowsOf(document);
    ASSERT_EQ(rows.size(), 31U);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(field(rows[i], "SEQUENCIAL"), std::to_string(i + 1));
        for (const char* name : {"CEP", "NOME", "CODIGO", "ENDERECO", "SOMENTE_ENDERECO", "NUMERO",
                                 "BAIRRO", "MUNICIPIO", "UF", "PAIS"}) {
            ASSERT_NE(field(rows[i], name), "-") << name;
        }
    }
    EXPECT_EQ(field(rows[0], "ENDERECO"), "RUA DAS PALMEIRAS, 45");
    EXPECT_EQ(field(rows[0], "SOMENTE_ENDERECO"), "RUA DAS PALMEIRAS");
    EXPECT_EQ(field(rows[0], "NUMERO"), "45");
    EXPECT_EQ(field(rows[0], "COMPLEMENTO"), "LOJA B");
    EXPECT_EQ(field(rows[0], "PAIS"), "BRASIL");
    EXPECT_EQ(field(rows[2], "COMPLEMENTO"), "-");
    EXPECT_EQ(field(rows[4], "NUMERO"), "0");
    EXPECT_EQ(field(rows[4], "SOMENTE_ENDERECO"), "SÍTIO SÃO JOÃO, KM 12");
}

TEST(LabelCommands, GiveARangeWithBothItsEnds) {
    Desk desk;
    EXPECT_EQ(sequences(desk, labelQuery("COBRAN%C7A", "30", "40")), (Texts{"30", "31"}));
    EXPECT_EQ(sequences(desk, labelQuery("COBRAN%C7A", "1,5", "3,9")), (Texts{"2", "3"}));
    EXPECT_TRUE(sequences(desk, labelQuery("COBRAN%C7A", "9", "3")).empty());
    EXPECT_TRUE(sequences(desk, labelQuery("COBRAN%C7A", ",", "3")).empty());
    EXPECT_TRUE(sequences(desk, labelQuery("COBRAN%C7A", "1", "99999999999999999999")).empty());
    EXPECT_TRUE(sequences(desk, labelQuery("--------")).empty());
    EXPECT_TRUE(sequences(desk, labelQuery("ANIVERSARIANTES%20DO%20M%CAS")).empty());
}

TEST(LabelCommands, HaveSequencesBeyond16Bits) {
    Desk desk;
    EXPECT_EQ(sequences(desk, labelQuery("NOTA DEVOLVIDA")),
              (Texts{"32766", "32767", "32768", "32769", "32770"}));
}

TEST(LabelCommands, DeleteARangeOfOneReasonOnly) {
    Desk desk;
    EXPECT_EQ(desk.status(deleteQuery("COBRAN%C7A", "2", "30")), "OK");
    EXPECT_EQ(sequences(desk, labelQuery("COBRAN%C7A")), (Texts{"1", "31"}));
    EXPECT_EQ(sequences(desk, labelQuery("MALA DIRETA DE NATAL")).size(), 40U);
    EXPECT_EQ(desk.status(deleteQuery("COBRAN%C7A", "30", "2")), "OK");
    EXPECT_EQ(desk.status(deleteQuery("--------", "1", "99")), "OK");
    EXPECT_EQ(desk.status(deleteQuery("COBRAN%C7A", "", "99")),
              "O intervalo de etiquetas não foi informado. Nada foi excluído.");
    EXPECT_EQ(sequences(desk, labelQuery("COBRAN%C7A")), (Texts{"1", "31"}));
}

TEST(LabelCommands, LeaveTheQueueOfAnotherCompanyAlone) {
    Desk desk;
    EXPECT_EQ(desk.status(deleteQuery("COBRAN%C7A", "1", "99")), "OK");
    EXPECT_EQ(rowsOf(desk.ask("comando=sel_etiquetas&ID_EMP_TARN=761&sDc_Mot_Imp=COBRAN%C7A"
                              "&nSeq_De=&nSeq_Ate=&ServerName=DADOS761"))
                  .size(),
              31U);
}

TEST(LabelCommands, DropWhatWaitedLongerThanFifteenDays) {
    const QTemporaryDir directory;
    const std::string file = directory.filePath("pratica.db").toStdString();
    { Desk desk(optionsOf(file)); }
    PracticeOptions later = optionsOf(file);
    later.today = Date{16, 9, 2012};  // the newest label is eleven days old, the oldest fifteen
    {
        Desk desk(later);
        EXPECT_EQ(sequences(desk, labelQuery("MALA DIRETA DE NATAL")).size(), 40U);
    }
    later.today = Date{21, 9, 2012};
    Desk desk(later);
    EXPECT_TRUE(sequences(desk, labelQuery("MALA DIRETA DE NATAL")).empty());
}

TEST(LabelCommands, GiveTheSendingBranches) {
    Desk desk;
    const XmlDocument document = desk.ask(
        "comando=sel_filiais_remetente&ID_EMP_TARN=1361&nId_Pes_Usu=101&ServerName=DADOS1361");
    ASSERT_EQ(rowsOf(document).size(), 3U);
    EXPECT_EQ(field(rowsOf(document)[0], "FILIAL"), "Três Irmãos - Matriz São Paulo");
    EXPECT_EQ(field(rowsOf(document)[0], "ID_ETB"), "1361");
}

std::string senderQuery(const char* branch) {
    return std::string("comando=sel_dados_remetente&nId_Emp_Tarn=1361&nId_Etb_Tarn=") + branch +
           "&ServerName=DADOS1361";
}

TEST(LabelCommands, GiveTheSenderOfTheBranchOrTheFirstOne) {
    Desk desk;
    const XmlDocument document = desk.ask(senderQuery("1362"));
    ASSERT_EQ(rowsOf(document).size(), 1U);
    const XmlNode row = rowsOf(document)[0];
    EXPECT_EQ(field(row, "NOME"), "Comércio de Ferragens Três Irmãos Ltda");
    EXPECT_EQ(field(row, "ENDERECO"), "Avenida Francisco Glicério");
    EXPECT_EQ(field(row, "NUMERO"), "980");
    EXPECT_EQ(field(row, "DESCRICAO"), "GALPÃO B");
    EXPECT_EQ(field(row, "BAIRRO"), "Centro");
    EXPECT_EQ(field(row, "MUNICIPIO"), "Campinas");
    EXPECT_EQ(field(row, "UF"), "SP");
    EXPECT_EQ(field(row, "CEP"), "13012100");
    const XmlDocument unchosen = desk.ask(senderQuery("0"));
    ASSERT_EQ(rowsOf(unchosen).size(), 1U);
    EXPECT_EQ(field(rowsOf(unchosen)[0], "MUNICIPIO"), "São Paulo");
    EXPECT_TRUE(rowsOf(desk.ask(senderQuery("142"))).empty());
    EXPECT_TRUE(rowsOf(desk.ask(senderQuery(""))).empty());
}

}  // namespace
}  // namespace tarn::practice::test
