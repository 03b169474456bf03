// The portfolio's record as it is read from the answer.
#include "slips/portfolio.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class PortfolioTest : public testing::Test {
protected:
    std::vector<std::string> read(const std::string& rows) {
        seams.loader.on("sel_carteira_cob", answers::rowset(rows));
        const auto portfolio = loadPortfolio(seams.environment, session, 12);
        EXPECT_TRUE(portfolio);
        return {portfolio->ID_CRT_COB, portfolio->ID_PES_BAN, portfolio->NR_CRT_CNAB,
                portfolio->CD_AGE_BAN_CNAB, portfolio->NR_CCOR_CNAB};
    }

    TestEnvironment seams;
    Sessao session{.NCOMPANYCODE = 2161,
                   .ID_ETB_TARN = 9,
                   .COMPANYNAME = {},
                   .UserCode = "77",
                   .SERVERNAME = "SRV1",
                   .DATA = {},
                   .VersaoServidor = {},
                   .TextoMensagem = {},
                   .ConfirmaMensagem = {},
                   .TipoEtiqueta = {},
                   .DirSistema = {},
                   .PrefixoArquivo = {}};
};

TEST_F(PortfolioTest, AllFieldsAreTexts) {
    EXPECT_EQ(read("<z:row ID_CRT_COB='012' ID_PES_BAN='1016' NR_CRT_CNAB='057' "
                   "CD_AGE_BAN_CNAB='112-3' NR_CCOR_CNAB='0456.78'/>"),
              (Texts{"012", "1016", "057", "112-3", "0456.78"}));
    EXPECT_EQ(seams.loader.queries(),
              (Texts{"comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=12"
                     "&ServerName=SRV1"}));
    EXPECT_EQ(seams.boxes.shown, Boxes{});
}

TEST_F(PortfolioTest, TheLastRowStandsEachFieldOnItsOwn) {
    EXPECT_EQ(read("<z:row ID_CRT_COB='1' ID_PES_BAN='1016' NR_CRT_CNAB='57' "
                   "CD_AGE_BAN_CNAB='1123' NR_CCOR_CNAB='456789'/>"
                   "<z:row ID_CRT_COB='2' NR_CRT_CNAB='101'/>"),
              (Texts{"2", "", "101", "", ""}));
}

TEST_F(PortfolioTest, WithoutRowsAllIsEmpty) {
    EXPECT_EQ(read(""), (Texts{"", "", "", "", ""}));
    seams.loader.on("sel_carteira_cob", "<xml/>");
    const auto portfolio = loadPortfolio(seams.environment, session, 0);
    ASSERT_TRUE(portfolio);
    EXPECT_EQ(portfolio->ID_PES_BAN, "");
    EXPECT_EQ(seams.loader.queries().back(),
              "comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=&ServerName=SRV1");
}

TEST_F(PortfolioTest, AFieldSpelledInAnotherCaseIsAFailure) {
    try {
        read("<z:row ID_CRT_COB='1' id_pes_ban='1016'/><z:row ID_CRT_COB='2'/>");
        FAIL() << "no error";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), RuntimeErrorCode::ObjectVariable);
    }
}

TEST_F(PortfolioTest, AFailedRequestIsTold) {
    seams.loader.failOn("sel_carteira_cob");
    EXPECT_FALSE(loadPortfolio(seams.environment, session, 12));
    EXPECT_EQ(seams.boxes.shown, (Boxes{noInternet9}));
}

}  // namespace
}  // namespace tarn::test
