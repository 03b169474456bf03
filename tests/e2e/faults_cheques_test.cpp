// A server that fails around a cheque: the check of its number, the town, the record that
// comes behind the paper.
#include <gmock/gmock.h>

#include <QTimer>

#include "tests/e2e/cheque_faults.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST_F(ChequeFaults, ACheckWithoutAnAnswerLetsThePrintThrough) {
    inCheques([this] {
        under({"seleciona_um_controle_cheque_emitido"}, leaving({Left::Nothing}),
              [this](const FaultCase& fault) {
                  const std::string number = fresh();
                  issueUnder("seleciona_um_controle_cheque_emitido", fault, number);
                  EXPECT_EQ(boxes.shown, (Boxes{noCheck, success}));
                  EXPECT_EQ(takeCommands(),
                            (Texts{"seleciona_um_controle_cheque_emitido", "sel_dados_empresa",
                                   "adiciona_controle_cheque_emitido"}));
                  expectPaper(1);
                  EXPECT_TRUE(recorded(number));
                  expectEmptied();
              });
    });
}

// What the check could have shown comes from the record's answer, when the paper is out.
TEST_F(ChequeFaults, ANumberAlreadyIssuedPrintsAgainWhenItsCheckFails) {
    inCheques([this] {
        record("700");
        fill("701");
        forget();
        page.fail("seleciona_um_controle_cheque_emitido", {FaultKind::CloseBefore, {}});
        type(*screen, "txtNumeroCheque", "700");
        named<QLineEdit>(*screen, "txtFavorecido").setFocus();
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{noCheck})) << "on leaving the number";
        click(*screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown,
                  (Boxes{noCheck, noCheck,
                         exclamation("O cheque nº 700 da série AB1 já está registrado nesta conta. "
                                     "Confira o número do cheque.")}));
        expectPaper(1);
        expectFilled("700");
        page.heal();
        forget();
        click(*screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{taken("700")}));
        EXPECT_EQ(focused(*screen), "txtNumeroCheque");
        EXPECT_THAT(spooler.calls, testing::IsEmpty());
    });
}

TEST_F(ChequeFaults, ACheckIsReadWithoutADeclarationAndLateToo) {
    inCheques([this] {
        under({"seleciona_um_controle_cheque_emitido"},
              leaving({Left::NoDeclaration, Left::All, Left::Refusal}),
              [this](const FaultCase& fault) {
                  const std::string number = fresh();
                  issueUnder("seleciona_um_controle_cheque_emitido", fault, number);
                  EXPECT_EQ(boxes.shown, (Boxes{success}));
                  expectPaper(1);
                  EXPECT_TRUE(recorded(number));
                  fill(number);
                  EXPECT_THAT(boxes.shown,
                              fault.left == Left::Refusal
                                  ? testing::Matcher<std::vector<Box>>(ElementsAre(success))
                                  : testing::Matcher<std::vector<Box>>(
                                        ElementsAre(success, taken(number), taken(number))));
              });
    });
}

TEST_F(ChequeFaults, ARecordWithoutAnAnswerLeavesThePaperAndTheFields) {
    inCheques([this] {
        under({"adiciona_controle_cheque_emitido"}, leaving({Left::Nothing}),
              [this](const FaultCase& fault) {
                  const std::string number = fresh();
                  issueUnder("adiciona_controle_cheque_emitido", fault, number);
                  EXPECT_EQ(boxes.shown, (Boxes{noRecord}));
                  expectPaper(1);
                  expectFilled(number);
                  EXPECT_EQ(recorded(number), fault.carriedOut);
                  page.heal();
                  boxes.shown.clear();
                  click(*screen, "cmdImprimir");
                  if (fault.carriedOut) {
                      EXPECT_EQ(boxes.shown, (Boxes{taken(number)}));
                      expectPaper(1);
                      expectFilled(number);
                  } else {
                      EXPECT_EQ(boxes.shown, (Boxes{success}));
                      expectPaper(2);
                      EXPECT_TRUE(recorded(number));
                      expectEmptied();
                  }
              });
    });
}

TEST_F(ChequeFaults, ARefusedRecordShowsTheServersWordsBehindThePaper) {
    inCheques([this] {
        under({"adiciona_controle_cheque_emitido"}, leaving({Left::Refusal}),
              [this](const FaultCase& fault) {
                  issueUnder("adiciona_controle_cheque_emitido", fault, "801");
                  EXPECT_EQ(boxes.shown, (Boxes{refusal}));
                  expectPaper(1);
                  expectFilled("801");
                  EXPECT_FALSE(recorded("801"));
              });
        under({"adiciona_controle_cheque_emitido"}, leaving({Left::All}),
              [this](const FaultCase& fault) {
                  bool printedBefore = false;
                  QTimer watch;
                  QObject::connect(&watch, &QTimer::timeout, screen, [&] {
                      const std::vector<std::string> asked = takeCommands();
                      if (!asked.empty() && asked.back() == "adiciona_controle_cheque_emitido") {
                          printedBefore = spooler.jobs.size() == 1 && boxes.shown.empty();
                      }
                  });
                  watch.start(0);
                  issueUnder("adiciona_controle_cheque_emitido", fault, "802");
                  EXPECT_TRUE(printedBefore);
                  EXPECT_EQ(boxes.shown, (Boxes{success}));
                  EXPECT_TRUE(recorded("802"));
              });
    });
}

TEST_F(ChequeFaults, ARecordWithoutADeclarationEndsTheProgramBehindThePaper) {
    inCheques([this] {
        fill("901");
        forget();
        page.fail("adiciona_controle_cheque_emitido", {FaultKind::NoDeclaration, {}});
        click(*screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown,
                  (Boxes{endReport(": o cheque nº 901 foi impresso e talvez não esteja gravado "
                                   "no servidor; confira-o pelo número e série antes de "
                                   "imprimir outro")}));
        expectPaper(1);
        expectFilled("901");
    });
    EXPECT_TRUE(recorded("901"));
    EXPECT_EQ(end.status(), 3);
    EXPECT_EQ(takeCommands(), (Texts{"seleciona_um_controle_cheque_emitido", "sel_dados_empresa",
                                     "adiciona_controle_cheque_emitido"}))
        << "the desk asks for nothing any more";
}

// Without a list nothing is chosen, and the check asks for account 0.
TEST_F(ChequeFaults, AccountsThatDontComeLeaveNothingToChoose) {
    page.fail("sel_banco_agencia_conta", {FaultKind::CloseWithin, {}});
    modals.then("frmCheque", [this](QWidget& opened) {
        screen = &opened;
        EXPECT_EQ(boxes.shown, (Boxes{noCheck}));
        EXPECT_EQ(named<QComboBox>(opened, "cboBancoAgConta").count(), 0);
        EXPECT_EQ(text(opened, "txtDtDeposito"), "05/09/2012");
        page.heal();
        forget();
        fill("555");
        const std::vector<std::string> checks = page.takeQueries();
        EXPECT_EQ(checks.size(), 1U);
        EXPECT_THAT(
            checks,
            testing::Each(HasSubstr("&Id_Pes_Ban=0&Cd_Age_Ban=&Nr_Ccor=&Nr_Che=555&Nr_Ser=AB1&")));
        click(opened, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{exclamation("Banco/Ag./Conta é um campo obrigatório. ")}));
        EXPECT_EQ(focused(opened), "cboBancoAgConta");
        EXPECT_THAT(spooler.calls, testing::IsEmpty());
        click(opened, "cmdCancelar");
    });
    choose(menu, "mnuCheque", "mnuChequeImpressao");
}

TEST_F(ChequeFaults, WithoutTheTownNothingIsPrintedAndNothingRecorded) {
    inCheques([this] {
        under({"sel_dados_empresa"}, leaving({Left::Nothing}), [this](const FaultCase& fault) {
            issueUnder("sel_dados_empresa", fault, "601");
            EXPECT_EQ(boxes.shown, (Boxes{noRecord}));
            EXPECT_THAT(spooler.calls, testing::IsEmpty());
            EXPECT_FALSE(recorded("601"));
            expectFilled("601");
        });
    });
    EXPECT_FALSE(end.ended());
}

TEST_F(ChequeFaults, ATownOfNoRowsEndsTheProgramBeforeThePaper) {
    inCheques([this] {
        fill("602");
        forget();
        page.fail("sel_dados_empresa", {FaultKind::Refuse, {}});
        click(*screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{endReport()}));
        EXPECT_THAT(spooler.calls, testing::IsEmpty());
    });
    EXPECT_FALSE(recorded("602"));
    EXPECT_EQ(end.status(), 3);
}

}  // namespace
}  // namespace tarn::test
