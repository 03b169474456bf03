#include "billing/orders.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/test_environment.h"

namespace tarn {
namespace {

const std::string cabecalho = "<?xml version='1.0'?>";
const std::string falha6 =
    "ERRO Tarn0006 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";
const std::string falha3 =
    "ERRO Tarn0003 - Não foi possível obter os dados da Internet. Verifique a conexão com a "
    "Internet.";

Box critica(const std::string& texto) {
    return {.text = texto, .icon = BoxIcon::Critical, .title = "TarnEMISSAO - ERRO INESPERADO"};
}
Box exclamacao(const std::string& texto, const std::string& titulo = "TarnEmissao") {
    return {.text = texto, .icon = BoxIcon::Exclamation, .title = titulo};
}

class OrdensTest : public testing::Test {
protected:
    OrdensTest() {
        sessao_.ID_ETB_TARN = 3381;
        sessao_.SERVERNAME = "SRV";
        ordem_.celulas[0] = "12";
        ordem_.celulas[5] = "34";
    }

    std::vector<OrdemFaturamento> carrega(const std::string& linhas) {
        seams_.loader.on("sel_ordem_fatu", cabecalho + "<xml xmlns:rs='r' xmlns:z='z'><rs:data>" +
                                               linhas + "</rs:data></xml>");
        return carregaOrdens(seams_.environment, sessao_);
    }
    bool cancela() { return cancelaOrdem(seams_.environment, sessao_, ordem_); }

    const Box pergunta_{.text = "Confirma o cancelamento da Ordem de Faturamento nº 12 ?     ",
                        .icon = BoxIcon::Question,
                        .title = "Aviso",
                        .buttons = BoxButtons::YesNo};
    const std::string pedido_ =
        "comando=sp_can_oft&id_etb_tarn=3381&id_ord_fat=12&id_ord_crg=34&ServerName=SRV";
    TestEnvironment seams_;
    Sessao sessao_;
    OrdemFaturamento ordem_;
};

TEST_F(OrdensTest, TwelveCellsARow) {
    const auto ordens = carrega(
        "<z:row ID_ORD_FAT='0012' NM_PES_CPL='Jo&#227;o' NM_RDU='MATRIZ' DC_TIP_NF='VENDA' "
        "DT_GER_OFT='1/2/2012' ID_ORD_CRG='34' TRANSPORTADORA='T' NM_PES_MOT='M' DC_OBS='a&#10;b' "
        "QT_ESP='1234567.5' PESO_BRU='0.0005' PESO_LIQ='12,9'/>");
    ASSERT_EQ(ordens.size(), 1U);
    const std::array<std::string, 12> esperadas{
        "0012", "João", "MATRIZ", "VENDA",         "1/2/2012", "34",
        "T",    "M",    "a\nb",   "1.234.567,500", "0,001",    "12,000"};
    EXPECT_EQ(ordens[0].celulas, esperadas);
    EXPECT_EQ(ordens[0].ordem(), "0012");
    EXPECT_EQ(ordens[0].ordemCarga(), "34");
    EXPECT_EQ(seams_.loader.queries(),
              std::vector<std::string>{"comando=sel_ordem_fatu&ID_ETB_TARN=3381&ServerName=SRV"});
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(OrdensTest, NoValueOfARowBreaksTheList) {
    const std::string longText(100000, 'x');
    const auto ordens = carrega("<z:row ID_ORD_FAT='1' NM_PES_CPL='" + longText +
                                "' QT_ESP='1e308' PESO_BRU='-1e999' PESO_LIQ='1.234.5'/>"
                                "<z:row z:ID_ORD_FAT='2' Nm_Pes_Cpl='y' QT_ESP='&#10; 1 2 &#9;x'/>"
                                "<outra ID_ORD_FAT='3'/>");
    ASSERT_EQ(ordens.size(), 3U);
    EXPECT_EQ(ordens[0].celulas[1], longText);
    EXPECT_EQ(ordens[0].celulas[9].substr(0, 8), "100.000.");
    EXPECT_EQ(ordens[0].celulas[9].size(), 309U + 102U + 4U);
    EXPECT_EQ(ordens[0].celulas[10].substr(0, 20), "-179.769.313.486.232");
    EXPECT_EQ(ordens[0].celulas[11], "1,234");
    EXPECT_EQ(ordens[1].celulas[0], "") << "a prefixed name is another name";
    EXPECT_EQ(ordens[1].celulas[1], "") << "so is one in another case of letters";
    EXPECT_EQ(ordens[1].celulas[9], "12,000");
    EXPECT_EQ(ordens[2].ordem(), "3");
    EXPECT_TRUE(seams_.boxes.shown.empty());
}

TEST_F(OrdensTest, AbsentAndEmptyFields) {
    const auto ordens = carrega(
        "<z:row ID_ORD_FAT='1' id_ord_crg='9' QT_ESP='' PESO_BRU='S/N'/>"
        "<z:row/>");
    ASSERT_EQ(ordens.size(), 2U);
    EXPECT_EQ(ordens[0].celulas[0], "1");
    EXPECT_EQ(ordens[0].celulas[5], "");  // another spelling counts as absent
    EXPECT_EQ(ordens[0].celulas[8], "");
    EXPECT_EQ(ordens[0].celulas[9], "0,000");
    EXPECT_EQ(ordens[0].celulas[10], "0,000");
    EXPECT_EQ(ordens[0].celulas[11], "");
    EXPECT_EQ(ordens[1].celulas, (std::array<std::string, 12>{}));
}

TEST_F(OrdensTest, NoRowsAndNoMessage) {
    EXPECT_TRUE(carrega("").empty());
    TestEnvironment outro;
    outro.loader.on("sel_ordem_fatu", "<outra/>");
    EXPECT_TRUE(carregaOrdens(outro.environment, sessao_).empty());
    EXPECT_TRUE(seams_.boxes.shown.empty());
    EXPECT_TRUE(outro.boxes.shown.empty());
}

TEST_F(OrdensTest, AFailedRefreshLeavesAnEmptyList) {
    EXPECT_TRUE(carregaOrdens(seams_.environment, sessao_).empty());
    EXPECT_EQ(seams_.boxes.shown, std::vector<Box>{critica(falha6)});
}

TEST_F(OrdensTest, ACancelAnsweredWithNoSendsNothing) {
    seams_.boxes.answers = {BoxAnswer::No};
    EXPECT_FALSE(cancela());
    EXPECT_EQ(seams_.boxes.shown, std::vector<Box>{pergunta_});
    EXPECT_TRUE(seams_.loader.addresses.empty());
}

TEST_F(OrdensTest, Cancelled) {
    seams_.loader.on("sp_can_oft", cabecalho + "<R a='' s='OK'/>");
    EXPECT_TRUE(cancela());
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{pergunta_,
                                {.text = "Ordem de Faturamento cancelada.      ",
                                 .icon = BoxIcon::Information,
                                 .title = "Aviso "}}));
    EXPECT_EQ(seams_.loader.queries(), std::vector<std::string>{pedido_});
}

TEST_F(OrdensTest, CancelRefused) {
    seams_.loader.on("sp_can_oft", cabecalho + "<R a='' s='Ordem em uso. '/>");
    EXPECT_FALSE(cancela());
    EXPECT_EQ(seams_.boxes.shown, (std::vector<Box>{pergunta_, exclamacao("Ordem em uso. ")}));
}

TEST_F(OrdensTest, CancelWithoutAnAnswerIsToBeCheckedByHandAndNotSentAgain) {
    EXPECT_FALSE(cancela());
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{
                  pergunta_, critica(falha3),
                  exclamacao("Favor verificar se a Ordem de Faturamento nº 12 foi cancelada. ",
                             "Aviso")}));
    EXPECT_EQ(seams_.loader.queries(), std::vector<std::string>{pedido_});
}

TEST_F(OrdensTest, CancelWithoutAStatus) {
    seams_.loader.on("sp_can_oft", "<R a='' s='OK'/>");
    EXPECT_THROW(cancela(), ErroExecucao);
}

}  // namespace
}  // namespace tarn
