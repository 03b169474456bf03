#include "billing/order_sheet.h"

#include <gtest/gtest.h>

#include "runtime/runtime_error.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/test_environment.h"

namespace tarn::test {
namespace {

const std::string problem =
    "Houve um problema na transferência dos dados da Ordem de Faturamento nº 0012.";

class PrintSelectedOrderTest : public testing::Test {
protected:
    PrintSelectedOrderTest() {
        session_.ID_ETB_TARN = 9;
        session_.SERVERNAME = "SRV";
    }
    void answer(const std::string& body) { seams_.loader.on("sel_impr_ordem_fatu", body); }
    void print() { printSelectedOrder(seams_.environment, session_, "0012"); }
    // One request in any case, and not a byte to the printer.
    void expectNothingPrinted() {
        EXPECT_EQ(seams_.loader.queries(),
                  std::vector<std::string>{"comando=sel_impr_ordem_fatu&ID_ETB_TARN=9&ID_ORD_FAT="
                                           "0012&ServerName=SRV"});
        EXPECT_TRUE(seams_.spooler.calls.empty());
    }

    TestEnvironment seams_;
    Sessao session_;
};

TEST_F(PrintSelectedOrderTest, FetchesAndPrintsWithoutAWord) {
    answer(answers::declaration +
           "<PRINCIPAL cod='0' status='OK'><CAB RAZAO='CLIENTE'/></PRINCIPAL>");
    print();
    EXPECT_TRUE(seams_.boxes.shown.empty());
    ASSERT_EQ(seams_.spooler.jobs.size(), 1U);
    EXPECT_EQ(seams_.spooler.jobs[0].writes.at(3).substr(0, 18), " Cliente:  CLIENTE");
    EXPECT_TRUE(seams_.spooler.jobs[0].closed);
    EXPECT_EQ(seams_.loader.addresses.size(), 1U);
}

TEST_F(PrintSelectedOrderTest, AFailedLoadHasTwoBoxes) {
    print();
    EXPECT_EQ(seams_.boxes.shown, (std::vector<Box>{transportFailure("0012"),
                                                    {problem, BoxIcon::Exclamation, "Aviso"}}));
    expectNothingPrinted();
}

TEST_F(PrintSelectedOrderTest, ARefusalShowsTheServersText) {
    answer(answers::status("Ordem já faturada. "));
    print();
    EXPECT_EQ(seams_.boxes.shown,
              (std::vector<Box>{{"Ordem já faturada. ", BoxIcon::Exclamation, "TarnEmissao"}}));
    expectNothingPrinted();
}

TEST_F(PrintSelectedOrderTest, AStatusIsComparedExactly) {
    answer(answers::status("ok"));
    print();
    EXPECT_EQ(seams_.boxes.texts(), std::vector<std::string>{"ok"});
    expectNothingPrinted();
}

TEST_F(PrintSelectedOrderTest, AnAnswerWithoutAStatusRaisesTheError) {
    answer("<PRINCIPAL cod='0' status='OK'><CAB/></PRINCIPAL>");
    EXPECT_THROW(print(), RuntimeError);
    EXPECT_TRUE(seams_.boxes.shown.empty());
    expectNothingPrinted();
}

}  // namespace
}  // namespace tarn::test
