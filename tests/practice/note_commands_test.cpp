#include <gtest/gtest.h>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

std::string findNoteQuery(const Generated& note) {
    return "comando=SEL_NF&ID_ETB_TARN=1361&ID_NF_KESTO=" + note.number +
           "&CD_SER_NF=" + note.series + "&ServerName=DADOS1361";
}

std::string cancelNoteQuery(const Generated& note, const char* option, const char* kind = "S",
                            const char* reason = "1") {
    return std::string("comando=sp_can_nf&ID_ETB_TARN=1361&IC_TIP_NF=") + kind +
           "&ID_NF_KESTO=" + note.number + "&CD_SER_NF=" + note.series + "&id_mot_can=" + reason +
           "&id_pes_usu=101&Tipo_Can=" + option + "&ServerName=DADOS1361";
}

bool isListed(Desk& desk, const std::string& order) {
    for (const std::string& listed : desk.orders()) {
        if (listed == order) {
            return true;
        }
    }
    return false;
}

std::string stockText(Desk& desk, const std::string& order) {
    const XmlDocument document =
        desk.ask("comando=Seleciona_Obs_Ord_X_Est&Id_Etb_Tarn=1361&Id_Ord_Fat=" + order +
                 "&ServerName=DADOS1361");
    return field(document.child(1).child(0), "OBSERVACAO");
}

TEST(NoteCommands, GenerateTakesTheOrderOffTheList) {
    Desk desk;
    const XmlDocument document = desk.ask(desk.generateQuery("45001"));
    ASSERT_EQ(statusOf(document), "OK");
    ASSERT_EQ(document.child(1).childCount(), 2U);
    EXPECT_FALSE(isListed(desk, "45001"));
    EXPECT_EQ(desk.orders().size(), 22U);
    EXPECT_EQ(desk.status(desk.generateQuery("45001")),
              "A Ordem de Faturamento nº 45001 já virou Nota Fiscal. Atualize a lista.");
}

TEST(NoteCommands, NumbersRunOnWithinASeries) {
    Desk desk;
    const Generated first = desk.generate("45001");
    const Generated second = desk.generate("45002");
    const Generated entry = desk.generate("45016");
    EXPECT_EQ(first.series, "1");
    EXPECT_EQ(entry.series, "2");
    EXPECT_EQ(std::stoi(second.number), std::stoi(first.number) + 1);
    EXPECT_EQ(std::stoi(desk.generate("45003").number), std::stoi(second.number) + 1);
}

TEST(NoteCommands, RefusalsSpendNoNumberAndKeepTheOrder) {
    Desk desk;
    const Generated first = desk.generate("45001");
    EXPECT_EQ(desk.status(desk.generateQuery("45008")),
              "Cliente com crédito bloqueado. A Nota Fiscal da Ordem de Faturamento nº 45008 não "
              "foi gerada. Procure o departamento financeiro.");
    EXPECT_EQ(desk.status(desk.generateQuery("45007")),
              "Produto(s) sem saldo no estoque. A Nota Fiscal não foi gerada.\n"
              "1020 - LUVA DE RASPA CANO CURTO: saldo 3, pedido 12");
    EXPECT_EQ(desk.status("COMANDO=SP_GERA_NF&ID_ETB_TARN=1361&ID_ORD_FAT=45002&ID_PES=999"
                          "&ServerName=DADOS1361"),
              "O usuário \"999\" não está cadastrado nesta empresa. Saia do sistema e entre de "
              "novo.");
    EXPECT_EQ(desk.orders().size(), 22U);
    EXPECT_EQ(std::stoi(desk.generate("45002").number), std::stoi(first.number) + 1);
}

TEST(NoteCommands, TheNoteCanBeFetchedAgain) {
    Desk desk;
    const Generated note = desk.generate("45001");
    const std::string query = "comando=sel_gera_nf&ID_ETB_TARN=1361&ID_NF_KESTO=" + note.number +
                              "&CD_SER_NF=" + note.series + "&ServerName=DADOS1361";
    const std::string first = desk.server().answer(query);
    EXPECT_EQ(desk.server().answer(query), first);
    const XmlDocument document = desk.note(note);
    EXPECT_EQ(statusOf(document), "OK");
    const XmlNode root = document.selectSingleNode("PRINCIPAL");
    ASSERT_EQ(root.childCount(), 3U + 4U);
    EXPECT_EQ(field(root.child(2), "QT_MAX_IT"), "13");
    for (std::size_t i = 3; i < root.childCount(); ++i) {
        EXPECT_EQ(root.child(i).baseName(), "ITEM");
    }
}

TEST(NoteCommands, AnUnknownNoteIsRefused) {
    Desk desk;
    EXPECT_EQ(statusOf(desk.note({"1", "1"})),
              "A Nota Fiscal nº 1 da série 1 não existe ou foi cancelada.");
    EXPECT_EQ(statusOf(desk.note({"", ""})),
              "A Nota Fiscal nº  da série  não existe ou foi cancelada.");
    EXPECT_TRUE(rowsOf(desk.ask(findNoteQuery({"12,5", "1"}))).empty());
}

TEST(NoteCommands, FindGivesTheFourFields) {
    Desk desk;
    const Generated note = desk.generate("45002");
    const XmlDocument document = desk.ask(findNoteQuery({"000" + note.number, note.series}));
    const std::vector<XmlNode> rows = rowsOf(document);
    ASSERT_EQ(rows.size(), 1U);
    EXPECT_EQ(field(rows[0], "DC_TIP_NF"), "Venda de mercadoria");
    EXPECT_EQ(field(rows[0], "IC_TIP_NF"), "S");
    EXPECT_EQ(field(rows[0], "DT_EMS_NF"), "05/09/2012");
    EXPECT_EQ(field(rows[0], "NM_PES_CPL"), "MARIA DA CONCEIÇÃO ALBUQUERQUE D'ÁVILA");
    EXPECT_TRUE(rowsOf(desk.ask(findNoteQuery({note.number, "2"}))).empty());
}

TEST(NoteCommands, ACancelledNoteIsNoLongerFound) {
    Desk desk;
    const Generated note = desk.generate("45001");
    EXPECT_EQ(desk.status(cancelNoteQuery(note, "S")), "OK");
    EXPECT_TRUE(rowsOf(desk.ask(findNoteQuery(note))).empty());
    EXPECT_NE(statusOf(desk.note(note)), "OK");
    EXPECT_FALSE(isListed(desk, "45001"));
    EXPECT_EQ(desk.status(cancelNoteQuery(note, "S")),
              "A Nota Fiscal nº " + note.number + " da série 1 não existe ou foi cancelada.");
}

TEST(NoteCommands, WithTheOptionOfBillingAnewTheOrderComesBack) {
    Desk desk;
    const Generated note = desk.generate("45001");
    EXPECT_EQ(desk.status(cancelNoteQuery(note, "C")), "OK");
    EXPECT_TRUE(isListed(desk, "45001"));
    const Generated again = desk.generate("45001");
    EXPECT_EQ(std::stoi(again.number), std::stoi(note.number) + 1);
    EXPECT_TRUE(rowsOf(desk.ask(findNoteQuery(note))).empty());
    EXPECT_EQ(rowsOf(desk.ask(findNoteQuery(again))).size(), 1U);
}

TEST(NoteCommands, ABadCancellationLeavesTheNote) {
    Desk desk;
    const Generated note = desk.generate("45001");
    EXPECT_EQ(desk.status(cancelNoteQuery(note, "S", "S", "77")),
              "O motivo do cancelamento não está cadastrado. Escolha outro motivo.");
    EXPECT_EQ(desk.status(cancelNoteQuery(note, "X")),
              "O tipo do cancelamento não foi informado. Escolha COM ou SEM a opção de novo "
              "faturamento da venda.");
    EXPECT_NE(desk.status(cancelNoteQuery(note, "S", "D")), "OK");
    EXPECT_EQ(rowsOf(desk.ask(findNoteQuery(note))).size(), 1U);
    EXPECT_EQ(statusOf(desk.note(note)), "OK");
}

TEST(NoteCommands, StockLeavesWithTheNoteAndComesBackWithItsCancellation) {
    // Order 45001 is billed and cancelled so often that its goods would have run
    // out, did they not come back each time.
    Desk desk;
    constexpr int times = 600;
    for (int i = 0; i < times; ++i) {
        const Generated note = desk.generate("45001");
        ASSERT_EQ(desk.status(cancelNoteQuery(note, "C")), "OK");
    }
    EXPECT_EQ(stockText(desk, "45001"), "");
}

TEST(NoteCommands, ListTheSeriesOnceEach) {
    Desk desk;
    const XmlDocument document = desk.ask("comando=SEL_SERIE_NF&ServerName=DADOS1361");
    const std::vector<XmlNode> rows = rowsOf(document);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(field(rows[0], "DC_SER_NF"), "Série 1 - Nota Fiscal de Saída");
    EXPECT_EQ(field(rows[0], "CD_SER_NF"), "1");
    EXPECT_EQ(field(rows[1], "CD_SER_NF"), "2");
}

TEST(NoteCommands, ListTheReasons) {
    Desk desk;
    const XmlDocument document =
        desk.ask("comando=SEL_MOT_CAN&ID_ETB_TARN=1361&ServerName=DADOS1361");
    const std::vector<XmlNode> rows = rowsOf(document);
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(field(rows[0], "DC_MOT_CAN"), "Erro de digitação");
    EXPECT_EQ(field(rows[0], "ID_MOT_CAN"), "1");
}

}  // namespace
}  // namespace tarn::practice::test
