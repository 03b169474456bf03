#include "billing/order_maintenance.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

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
        (std::vector<Box>{{"ERRO Tarn0013 - Não foi possível obter os dados da Internet. Verifique "
                           "a conexão com a Internet.",
                           BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"},
                          {"Favor verificar se os dados da Ordem de Faturamento foi gravado. ",
                           BoxIcon::Exclamation, "Aviso"}}));
}

TEST_F(SaveOrderTest, AnAnswerWithoutAStatusRaisesTheError) {
    seams_.loader.on("MANUTENCAO_OFT", "<R a='0' s='OK'/>");
    EXPECT_THROW(write(), RuntimeError);
}

}  // namespace
}  // namespace tarn::test
