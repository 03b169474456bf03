#include "customers/procura_cliente.h"

#include <gtest/gtest.h>

#include "gateway/sessao.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class ProcuraClienteTest : public testing::Test {
protected:
    ProcuraClienteTest() {
        session_.NCOMPANYCODE = 2041;
        session_.SERVERNAME = "S 1";
    }
    TestEnvironment seams_;
    Sessao session_;
    XmlDocument answer_;
};

TEST_F(ProcuraClienteTest, SendsTheTextWithBarsForAmpersands) {
    seams_.loader.on("Sel_Cliente", answers::rowset("<z:row NM_PES_CPL='A' ID_PES_CLI='1'/>"));
    EXPECT_TRUE(ProcuraCliente(seams_.environment, session_, answer_, " a&b&&c "));
    EXPECT_EQ(customerRows(answer_).size(), 1U);
    EXPECT_TRUE(ProcuraCliente(seams_.environment, session_, answer_, std::nullopt));
    EXPECT_EQ(seams_.loader.queries(),
              (Texts{"comando=Sel_Cliente&id_emp_tarn=2041&Filtro= a|b||c &ServerName=S 1",
                     "comando=Sel_Cliente&id_emp_tarn=2041&Filtro=&ServerName=S 1"}));
}

TEST_F(ProcuraClienteTest, AFailedRequestIsFalse) {
    EXPECT_FALSE(ProcuraCliente(seams_.environment, session_, answer_, "abc"));
    EXPECT_EQ(
        seams_.boxes.shown,
        (Boxes{requestFailure("Tarn0024 - Erro na pesquisa de cliente - Não foi possível obter "
                              "os dados da Internet. Verifique a conexão com a Internet.")}));
}

TEST_F(ProcuraClienteTest, AccentedLettersCountOnceAndOnlyBlanksAreTrimmed) {
    seams_.loader.on("Sel_Cliente", answers::rowset(""));
    const auto search = [this](const char* name) {
        return searchCustomer(seams_.environment, session_, name, [](const auto&) {});
    };
    EXPECT_FALSE(search("çã"));
    EXPECT_TRUE(search("çãé"));
    EXPECT_TRUE(search("\ta\t"));
    EXPECT_EQ(seams_.loader.addresses.size(), 2U);
}

}  // namespace
}  // namespace tarn::test
