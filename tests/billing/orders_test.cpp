#include "billing/orders.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

class OrdersTest : public testing::Test {
protected:
    OrdersTest() {
        session_.ID_ETB_TARN = 3381;
        session_.SERVERNAME = "SRV";
        order_.text(OrderColumn::Order) = "12";
        order_.text(OrderColumn::LoadOrder) = "34";
    }

    std::vector<GridRow> load(const std::string& lines) {
        seams_.loader.on("sel_ordem_fatu",
                         "<?xml version='1.0'?><xml xmlns:rs='r' xmlns:z='z'><rs:data>" + lines +
                             "</rs:data></xml>");
        return loadOrders(seams_.environment, session_);
    }
    bool cancel() { return cancelOrder(seams_.environment, session_, order_); }

    const Box question_{.text = "Confirma o cancelamento da Ordem de Faturamento nº 12 ?     ",
                        .icon = BoxIcon::Question,
                        .title = "Aviso",
                        .buttons = BoxButtons::YesNo};
    const std::string request_ =
        "comando=sp_can_oft&id_etb_tarn=3381&id_ord_fat=12&id_ord_crg=34&ServerName=SRV";
    TestEnvironment seams_;
    Sessao session_;
    GridRow order_{.cells = std::vector<std::string>(orderGrid().size())};
};

TEST_F(OrdersTest, TwelveCellsARow) {
    const auto orders = load(
        "<z:row ID_ORD_FAT='0012' NM_PES_CPL='Jo&#227;o' NM_RDU='MATRIZ' DC_TIP_NF='VENDA' "
        "DT_GER_OFT='1/2/2012' ID_ORD_CRG='34' TRANSPORTADORA='T' NM_PES_MOT='M' DC_OBS='a&#10;b' "
        "QT_ESP='1234567.5' PESO_BRU='0.0005' PESO_LIQ='12,9'/>");
    ASSERT_EQ(orders.size(), 1U);
    const std::vector<std::string> expected{"0012",  "João",  "MATRIZ", "VENDA", "1/2/2012",
                                            "34",    "T",     "M",      "a\nb",  "1.234.567,500",
                                            "0,001", "12,000"};
    EXPECT_EQ(orders[0].cells, expected);
    EXPECT_EQ(orders[0].text(OrderColumn::Order), "0012");
    EXPECT_EQ(orders[0].text(OrderColumn::LoadOrder), "34");
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>{"comando=sel_ordem_fatu&ID_ETB_TARN=3381&ServerName=SRV"});
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(OrdersTest, NoValueOfARowBreaksTheList) {
    const std::string longText(100000, 'x');
    const auto orders = load("<z:row ID_ORD_FAT='1' NM_PES_CPL='" + longText +
                             "' QT_ESP='1e308' PESO_BRU='-1e999' PESO_LIQ='1.234.5'/>"
                             "<z:row z:ID_ORD_FAT='2' Nm_Pes_Cpl='y' QT_ESP='&#10; 1 2 &#9;x'/>"
                             "<outra ID_ORD_FAT='3'/>");
    ASSERT_EQ(orders.size(), 3U);
    EXPECT_EQ(orders[0].cells[1], longText);
    EXPECT_EQ(orders[0].cells[9].substr(0, 8), "100.000.");
    EXPECT_EQ(orders[0].cells[9].size(), 309U + 102U + 4U);
    EXPECT_EQ(orders[0].cells[10].substr(0, 20), "-179.769.313.486.232");
    EXPECT_EQ(orders[0].cells[11], "1,234");
    EXPECT_EQ(orders[1].cells[0], "") << "a prefixed name is another name";
    EXPECT_EQ(orders[1].cells[1], "") << "so is one in another case of letters";
    EXPECT_EQ(orders[1].cells[9], "12,000");
    EXPECT_EQ(orders[2].text(OrderColumn::Order), "3");
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(OrdersTest, AbsentAndEmptyFields) {
    const auto orders = load(
        "<z:row ID_ORD_FAT='1' id_ord_crg='9' QT_ESP='' PESO_BRU='S/N'/>"
        "<z:row/>");
    ASSERT_EQ(orders.size(), 2U);
    EXPECT_EQ(orders[0].cells[0], "1");
    EXPECT_EQ(orders[0].cells[5], "");  // another spelling counts as absent
    EXPECT_EQ(orders[0].cells[8], "");
    EXPECT_EQ(orders[0].cells[9], "0,000");
    EXPECT_EQ(orders[0].cells[10], "0,000");
    EXPECT_EQ(orders[0].cells[11], "");
    EXPECT_EQ(orders[1].cells, std::vector<std::string>(12));
}

TEST_F(OrdersTest, NoRowsAndNoMessage) {
    EXPECT_TRUE(load("").empty());
    TestEnvironment other;
    other.loader.on("sel_ordem_fatu", "<outra/>");
    EXPECT_TRUE(loadOrders(other.environment, session_).empty());
    EXPECT_TRUE(seams_.boxes.shown.empty());
    EXPECT_TRUE(other.boxes.shown.empty());
}

TEST_F(OrdersTest, AFailedRefreshLeavesAnEmptyList) {
    EXPECT_TRUE(loadOrders(seams_.environment, session_).empty());
    EXPECT_EQ(seams_.boxes.shown, std::vector<Box>{transportFailure("0006")});
}

TEST_F(OrdersTest, ACancelAnsweredWithNoSendsNothing) {
    seams_.boxes.answers = {BoxAnswer::No};
    EXPECT_FALSE(cancel());
    EXPECT_EQ(seams_.boxes.shown, std::vector<Box>{question_});
    EXPECT_TRUE(seams_.loader.addresses.empty());
}

TEST_F(OrdersTest, Cancelled) {
    seams_.loader.on("sp_can_oft", "<?xml version='1.0'?><R a='' s='OK'/>");
    EXPECT_TRUE(cancel());
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{question_,
                                {.text = "Ordem de Faturamento cancelada.      ",
                                 .icon = BoxIcon::Information,
                                 .title = "Aviso "}}));
    EXPECT_EQ(seams_.loader.queries(), std::vector<std::string>{request_});
}

TEST_F(OrdersTest, CancelRefused) {
    seams_.loader.on("sp_can_oft", "<?xml version='1.0'?><R a='' s='Ordem em uso. '/>");
    EXPECT_FALSE(cancel());
    EXPECT_EQ(seams_.boxes.shown, (std::vector<Box>{question_, exclamation("Ordem em uso. ")}));
}

TEST_F(OrdersTest, CancelWithoutAnAnswerIsToBeCheckedByHandAndNotSentAgain) {
    EXPECT_FALSE(cancel());
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{
                  question_, transportFailure("0003"),
                  exclamation("Favor verificar se a Ordem de Faturamento nº 12 foi cancelada. ",
                              "Aviso")}));
    EXPECT_EQ(seams_.loader.queries(), std::vector<std::string>{request_});
}

TEST_F(OrdersTest, CancelWithoutAStatus) {
    seams_.loader.on("sp_can_oft", "<R a='' s='OK'/>");
    EXPECT_THROW(cancel(), RuntimeError);
}

commands::OrderData values(const std::string& quantity, const std::string& gross,
                           const std::string& net) {
    return {.order = "12",
            .observation = "50% & | já",
            .quantity = quantity,
            .grossWeight = gross,
            .netWeight = net};
}

std::string refused(const commands::OrderData& data, OrderField field) {
    const auto refusal = dataRefusal(data);
    if (!refusal) {
        return "-";
    }
    EXPECT_EQ(refusal->field, field);
    return std::string(refusal->text);
}

TEST(DataRefusal, ZeroAndMorePass) {
    EXPECT_FALSE(dataRefusal(values("0,000", "0", "1.234,500")));
    EXPECT_FALSE(dataRefusal(values("-0", "0,0", "99.999.999,999")));
}

TEST(DataRefusal, EachTestHasItsTextAndTheFirstCounts) {
    using enum OrderField;
    EXPECT_EQ(refused(values("", "", ""), Quantity), "Quantidade Espécie é obrigatório!     ");
    EXPECT_EQ(refused(values("-1", "", ""), Quantity), "Quantidade Espécie inválido!     ");
    EXPECT_EQ(refused(values("0", "", "-1"), GrossWeight), "Peso Bruto é obrigatório!     ");
    EXPECT_EQ(refused(values("0", "-0,001", ""), GrossWeight), "Peso Bruto inválido!     ");
    EXPECT_EQ(refused(values("0", "0", ""), NetWeight), "Peso Líquido é obrigatório!     ");
    EXPECT_EQ(refused(values("0", "0", "-1.000,5"), NetWeight), "Peso Líquido inválido!     ");
}

TEST(DataRefusal, ATextThatIsNoNumberRaisesTheError) {
    EXPECT_THROW(dataRefusal(values(" ", "", "")), RuntimeError);
    EXPECT_THROW(dataRefusal(values("0", "abc", "")), RuntimeError);
    EXPECT_FALSE(refused(values("", "abc", ""), OrderField::Quantity).empty());
}

class SaveOrderTest : public testing::Test {
protected:
    SaveOrderTest() {
        session_.ID_ETB_TARN = 9;
        session_.SERVERNAME = "SRV";
    }
    bool write() {
        const bool sent = saveOrder(seams_.environment, session_, values("1,000", "0,000", "2,5"));
        EXPECT_EQ(seams_.loader.queries(),
                  std::vector<std::string>{
                      "COMANDO=MANUTENCAO_OFT&ID_ETB_TARN=9&ID_ORD_FAT=12&ServerName=SRV&DC_OBS="
                      "50|| | | já&QT_ESP=1,000&PESO_BRU=0,000&PESO_LIQ=2,5"})
            << "once and never again";
        return sent;
    }

    TestEnvironment seams_;
    Sessao session_;
};

TEST_F(SaveOrderTest, Written) {
    seams_.loader.on("MANUTENCAO_OFT", answers::status("OK"));
    EXPECT_TRUE(write());
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(SaveOrderTest, Refused) {
    seams_.loader.on("MANUTENCAO_OFT", answers::status("Ordem em uso. "));
    EXPECT_FALSE(write());
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{{"Ordem em uso. ", BoxIcon::Exclamation, "TarnEmissao"}}));
}

TEST_F(SaveOrderTest, ALostAnswerIsToBeCheckedByHand) {
    EXPECT_TRUE(write());
    EXPECT_EQ(
        seams_.boxes.shown,
        (std::vector<Box>{transportFailure("0013"),
                          {"Favor verificar se os dados da Ordem de Faturamento foi gravado. ",
                           BoxIcon::Exclamation, "Aviso"}}));
}

TEST_F(SaveOrderTest, AnAnswerWithoutAStatusRaisesTheError) {
    seams_.loader.on("MANUTENCAO_OFT", "<R a='0' s='OK'/>");
    EXPECT_THROW(write(), RuntimeError);
}

}  // namespace
}  // namespace tarn::test
