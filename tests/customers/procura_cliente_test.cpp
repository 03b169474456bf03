#include "customers/procura_cliente.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gateway/sessao.h"
#include "tests/support/answers.h"
#include "tests/support/test_environment.h"

namespace tarn {
namespace {

using testing::ElementsAre;

class ProcuraClienteTest : public testing::Test {
protected:
    ProcuraClienteTest() {
        sessao_.NCOMPANYCODE = 2041;
        sessao_.SERVERNAME = "S 1";
    }
    TestEnvironment seams_;
    Sessao sessao_;
    XmlDocument resposta_;
};

TEST_F(ProcuraClienteTest, SendsTheTextWithBarsForAmpersands) {
    seams_.loader.on("Sel_Cliente", answers::rowset("<z:row NM_PES_CPL='A' ID_PES_CLI='1'/>"));
    EXPECT_TRUE(ProcuraCliente(seams_.environment, sessao_, resposta_, " a&b&&c "));
    EXPECT_EQ(linhasDeClientes(resposta_).size(), 1U);
    EXPECT_TRUE(ProcuraCliente(seams_.environment, sessao_, resposta_, std::nullopt));
    EXPECT_THAT(seams_.loader.queries(),
                ElementsAre("comando=Sel_Cliente&id_emp_tarn=2041&Filtro= a|b||c &ServerName=S 1",
                            "comando=Sel_Cliente&id_emp_tarn=2041&Filtro=&ServerName=S 1"));
}

TEST_F(ProcuraClienteTest, AFailedRequestIsFalse) {
    EXPECT_FALSE(ProcuraCliente(seams_.environment, sessao_, resposta_, "abc"));
    EXPECT_THAT(seams_.boxes.shown,
                ElementsAre(Box{"Tarn0024 - Erro na pesquisa de cliente - Não foi possível obter "
                                "os dados da Internet. Verifique a conexão com a Internet.",
                                BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"}));
}

TEST_F(ProcuraClienteTest, AccentedLettersCountOnceAndOnlyBlanksAreTrimmed) {
    seams_.loader.on("Sel_Cliente", answers::rowset(""));
    const auto pesquisa = [this](const char* nome) {
        return pesquisaCliente(seams_.environment, sessao_, nome, [](const auto&) {});
    };
    EXPECT_FALSE(pesquisa("çã"));
    EXPECT_TRUE(pesquisa("çãé"));
    EXPECT_TRUE(pesquisa("\ta\t"));
    EXPECT_EQ(seams_.loader.addresses.size(), 2U);
}

}  // namespace
}  // namespace tarn
