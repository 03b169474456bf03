#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "tests/practice/practice_desk.h"

namespace tarn::practice::test {
namespace {

constexpr const char* listQuery = "comando=sel_ordem_fatu&ID_ETB_TARN=1361&ServerName=DADOS1361";

// The orders of establishment 1361, by what is special about them.
constexpr const char* observed = "45006";
constexpr const char* lacksStock = "45007";
constexpr const char* withoutLoadOrder = "45015";
constexpr const char* withCharges = "45017";

std::string obsQuery(const char* command, const std::string& order) {
    return std::string("comando=") + command + "&Id_Etb_Tarn=1361&Id_Ord_Fat=" + order +
           "&ServerName=DADOS1361";
}

std::string maintainQuery(const std::string& order, const std::string& rest) {
    return "COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=1361&ID_ORD_FAT=" + order + "&ServerName=DADOS1361" +
           rest;
}

std::string cancelQuery(const std::string& order, const std::string& loadOrder) {
    return "comando=sp_can_oft&id_etb_tarn=1361&id_ord_fat=" + order + "&id_ord_crg=" + loadOrder +
           "&ServerName=DADOS1361";
}

std::string listed(Desk& desk, const std::string& order, const char* name) {
    const XmlDocument document = desk.ask(listQuery);
    for (const XmlNode& row : rowsOf(document)) {
        if (field(row, "ID_ORD_FAT") == order) {
            return field(row, name);
        }
    }
    return "not listed";
}

TEST(OrderCommands, ListTheOpenOrders) {
    Desk desk;
    const XmlDocument document = desk.ask(listQuery);
    const std::vector<XmlNode> rows = rowsOf(document);
    ASSERT_EQ(rows.size(), 23U);
    EXPECT_EQ(field(rows[0], "ID_ORD_FAT"), "45001");
    EXPECT_EQ(field(rows[0], "NM_PES_CPL"), "PANIFICADORA E CONFEITARIA PÃO DE ARAÇÁS LTDA");
    EXPECT_EQ(field(rows[0], "NM_RDU"), "MATRIZ SP");
    EXPECT_EQ(field(rows[0], "DC_TIP_NF"), "Venda de mercadoria");
    EXPECT_EQ(field(rows[0], "NM_PES_MOT"), "ANTÔNIO CARLOS");
    EXPECT_EQ(field(rows[0], "DC_OBS"), "-");
    for (const XmlNode& row : rows) {
        const std::string date = field(row, "DT_GER_OFT");
        ASSERT_EQ(date.size(), 10U);
        EXPECT_EQ(date.substr(2, 1) + date.substr(5), "//2012");
    }
}

TEST(OrderCommands, EveryEstablishmentHasItsOwnOrders) {
    Desk desk;
    std::set<std::string> numbers;
    std::size_t total = 0;
    const std::pair<const char*, const char*> places[] = {
        {"1361", "1361"}, {"1362", "1361"}, {"1363", "1361"}, {"142", "141"},
        {"143", "141"},   {"762", "761"},   {"763", "761"}};
    for (const auto& [establishment, company] : places) {
        const XmlDocument document = desk.ask(std::string("comando=sel_ordem_fatu&ID_ETB_TARN=") +
                                              establishment + "&ServerName=DADOS" + company);
        for (const XmlNode& row : rowsOf(document)) {
            numbers.insert(field(row, "ID_ORD_FAT"));
            ++total;
        }
    }
    constexpr std::size_t longList = 300;  // more, in establishment 1363
    EXPECT_EQ(total, 7U * 23U + longList);
    EXPECT_EQ(numbers.size(), total);
}

TEST(OrderCommands, GiveTheSalesObservationInTheFirstChild) {
    Desk desk;
    const XmlDocument with = desk.ask(obsQuery("Seleciona_Obs_Vnd_X_Ord", observed));
    EXPECT_EQ(statusOf(with), "OK");
    EXPECT_EQ(field(with.child(1).child(0), "OBSERVACAO"),
              "Cliente pediu entrega após as 14:00.\nConfirmar o endereço por telefone.\n\n"
              "Desconto de 5% já concedido nos preços & no frete.");
    const XmlDocument without = desk.ask(obsQuery("Seleciona_Obs_Vnd_X_Ord", "45001"));
    EXPECT_EQ(statusOf(without), "OK");
    EXPECT_EQ(field(without.child(1).child(0), "OBSERVACAO"), "");
}

TEST(OrderCommands, TellWhatTheStockLacks) {
    Desk desk;
    const XmlDocument lacking = desk.ask(obsQuery("Seleciona_Obs_Ord_X_Est", lacksStock));
    EXPECT_EQ(statusOf(lacking), "OK");
    EXPECT_EQ(field(lacking.child(1).child(0), "OBSERVACAO"),
              "1020 - LUVA DE RASPA CANO CURTO: saldo 3, pedido 12");
    for (const std::string& order : desk.orders()) {
        if (order != lacksStock) {
            const XmlDocument enough = desk.ask(obsQuery("Seleciona_Obs_Ord_X_Est", order));
            EXPECT_EQ(field(enough.child(1).child(0), "OBSERVACAO"), "") << order;
        }
    }
}

TEST(OrderCommands, RefuseAnUnknownOrder) {
    Desk desk;
    EXPECT_EQ(desk.status(obsQuery("Seleciona_Obs_Vnd_X_Ord", "1")),
              "A Ordem de Faturamento nº 1 não existe neste estabelecimento. Atualize a lista.");
    // An order of another establishment is none of this one's.
    EXPECT_NE(desk.status(obsQuery("Seleciona_Obs_Vnd_X_Ord", "45101")), "OK");
}

TEST(OrderCommands, KeepWhatMaintenanceSends) {
    Desk desk;
    const std::string rest =
        "&DC_OBS=Desconto%20de%2010%7C%7C%20p/%20Jo%E3o%7CMaria%20+%20frete"
        "&QT_ESP=1.234,500&PESO_BRU=10,250&PESO_LIQ=0,000";
    EXPECT_EQ(desk.status(maintainQuery("45001", rest)), "OK");
    EXPECT_EQ(listed(desk, "45001", "DC_OBS"), "Desconto de 10% p/ João&Maria + frete");
    EXPECT_EQ(listed(desk, "45001", "QT_ESP"), "1234.5");
    EXPECT_EQ(listed(desk, "45001", "PESO_BRU"), "10.25");
    EXPECT_EQ(listed(desk, "45001", "PESO_LIQ"), "0");
    EXPECT_EQ(desk.status(maintainQuery("45001", "&DC_OBS=&QT_ESP=1&PESO_BRU=1&PESO_LIQ=1")), "OK");
    EXPECT_EQ(listed(desk, "45001", "DC_OBS"), "-");
}

TEST(OrderCommands, RefuseBadMaintenanceAndChangeNothing) {
    Desk desk;
    const std::string before = desk.server().answer(listQuery);
    EXPECT_EQ(desk.status(maintainQuery("45001", "&DC_OBS=x&QT_ESP=abc&PESO_BRU=1&PESO_LIQ=1")),
              "Quantidade Espécie sem valor válido. Digite um valor de 0,000 a 9.999.999,999.");
    EXPECT_EQ(desk.status(
                  maintainQuery("45001", "&DC_OBS=x&QT_ESP=1&PESO_BRU=10.000.000,000&PESO_LIQ=1")),
              "Peso Bruto sem valor válido. Digite um valor de 0,000 a 9.999.999,999.");
    EXPECT_EQ(desk.status(maintainQuery(
                  "45001", "&DC_OBS=" + std::string(501, 'a') + "&QT_ESP=1&PESO_BRU=1&PESO_LIQ=1")),
              "A observação passa de 500 caracteres. Diminua o texto.");
    EXPECT_EQ(desk.server().answer(listQuery), before);
    const std::string accents(500, '\xE7');
    EXPECT_EQ(desk.status(
                  maintainQuery("45001", "&DC_OBS=" + accents + "&QT_ESP=1&PESO_BRU=1&PESO_LIQ=1")),
              "OK");
}

TEST(OrderCommands, CancelAnOrderOnce) {
    Desk desk;
    const std::string loadOrder = listed(desk, "45001", "ID_ORD_CRG");
    EXPECT_EQ(desk.status(cancelQuery("45001", "1")),
              "A ordem de carga da Ordem de Faturamento nº 45001 mudou. Atualize a lista.");
    EXPECT_EQ(listed(desk, "45001", "ID_ORD_CRG"), loadOrder);
    EXPECT_EQ(desk.status(cancelQuery("45001", loadOrder)), "OK");
    EXPECT_EQ(listed(desk, "45001", "ID_ORD_CRG"), "not listed");
    EXPECT_EQ(desk.status(cancelQuery("45001", loadOrder)),
              "A Ordem de Faturamento nº 45001 já foi cancelada. Atualize a lista.");
    EXPECT_EQ(desk.status(desk.generateQuery("45001")),
              "A Ordem de Faturamento nº 45001 já foi cancelada. Atualize a lista.");
}

TEST(OrderCommands, CancelAnOrderWithoutALoadOrder) {
    Desk desk;
    EXPECT_EQ(listed(desk, withoutLoadOrder, "ID_ORD_CRG"), "-");
    EXPECT_EQ(desk.status(cancelQuery(withoutLoadOrder, "")), "OK");
    EXPECT_EQ(listed(desk, withoutLoadOrder, "ID_ORD_CRG"), "not listed");
}

TEST(OrderCommands, GiveTheSheetOfEveryOrder) {
    Desk desk;
    for (const std::string& order : desk.orders()) {
        const XmlDocument document =
            desk.ask("comando=sel_impr_ordem_fatu&ID_ETB_TARN=1361&ID_ORD_FAT=" + order +
                     "&ServerName=DADOS1361");
        ASSERT_EQ(statusOf(document), "OK");
        const XmlNode root = document.selectSingleNode("PRINCIPAL");
        EXPECT_NE(field(root.child(0), "RAZAO"), "-");
        EXPECT_NE(field(root.child(0), "DT_EMS_NF"), "-");
        EXPECT_NE(field(root.child(0), "VENDEDOR"), "-");
        const XmlNodeList items = root.selectNodes("//ITEM");
        ASSERT_GT(items.length(), 0U);
        for (std::size_t i = 0; i < items.length(); ++i) {
            for (const char* name :
                 {"QTDE", "CD_PRO", "DESCRICAO", "UNITARIO", "VL_DSC", "VL_IPI", "VL_ICMS_RTD",
                  "VL_DSC_ICMS", "VL_FRT", "VL_DSP_ACS", "VL_SEG"}) {
                EXPECT_NE(field(items.item(i), name), "-") << order << ' ' << name;
            }
        }
    }
}

TEST(OrderCommands, PartTheChargesAmongTheItemsOfTheSheet) {
    Desk desk;
    const XmlDocument document =
        desk.ask(std::string("comando=sel_impr_ordem_fatu&ID_ETB_TARN=1361&ID_ORD_FAT=") +
                 withCharges + "&ServerName=DADOS1361");
    const XmlNodeList items = document.selectNodes("//ITEM");
    std::int64_t freight = 0;
    std::int64_t insurance = 0;
    std::int64_t expenses = 0;
    for (std::size_t i = 0; i < items.length(); ++i) {
        freight += cents(items.item(i), "VL_FRT");
        insurance += cents(items.item(i), "VL_SEG");
        expenses += cents(items.item(i), "VL_DSP_ACS");
    }
    EXPECT_EQ(freight, 12550);
    EXPECT_EQ(insurance, 1833);
    EXPECT_EQ(expenses, 707);
}

}  // namespace
}  // namespace tarn::practice::test
