// A server that fails around a cheque: the check of its number, the town, the record that
// comes behind the paper.
#include <QComboBox>
#include <QTimer>

#include "common/free_text_field.h"
#include "fault_desk.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const Box success = information("Cheque emitido com sucesso!     ");
const Box noCheck = noInternet("ERRO    Tarn0009");
const Box noRecord = noInternet("ERRO Tarn0009");

Box exclamation(const std::string& text) {
    return {text, BoxIcon::Exclamation, "TarnEmissao"};
}
Box taken(const std::string& number) {
    return exclamation("Cheque com este número e série já foi emitido já emitido. \rNúmero: " +
                       number + "\rSérie: AB1");
}

class ChequeFaults : public FaultDesk {
protected:
    void SetUp() override {
        FaultDesk::SetUp();
        logOn();
    }
    void inCheques(const std::function<void()>& work) {
        modals.then("frmCheque", [this, work](QWidget& opened) {
            screen = &opened;
            pickIn(opened, "cboBancoAgConta",
                   position("BANCO DO VALE DO IPÊ - 1123 - 45678-9 - "
                            "FOLHA & ENCARGOS"));
            work();
            settle();
            if (opened.isVisible()) {
                click(opened, "cmdCancelar");
            }
        });
        choose(menu, "mnuCheque", "mnuChequeImpressao");
    }
    int position(const char* account) {
        return named<QComboBox>(*screen, "cboBancoAgConta").findText(QString::fromUtf8(account));
    }
    // Lets the check happen that waits for the focus to settle.
    static void settle() {
        for (int turn = 0; turn < 4; ++turn) {
            QCoreApplication::processEvents();
        }
    }
    void fill(const std::string& number) {
        type(*screen, "txtNumeroCheque", number.c_str());
        named<QLineEdit>(*screen, "txtSerie").setFocus();
        settle();
        type(*screen, "txtSerie", "ab1");
        named<QLineEdit>(*screen, "txtValor").setFocus();
        settle();
        type(*screen, "txtValor", "1234,22");
        type(*screen, "txtFavorecido", "Maria da Silva");
        auto& purpose = named<FreeTextField>(*screen, "txtObservacao");
        purpose.setFocus();
        purpose.selectAll();
        keys(purpose, "Aluguel");
        settle();
    }
    // Fills in a cheque while the server still answers, then lets it fail and clicks.
    void issueUnder(const std::string& command, const FaultCase& fault, const std::string& number) {
        page.heal();
        fill(number);
        forget();
        fail(command, fault);
        click(*screen, "cmdImprimir");
    }
    std::string fresh() { return std::to_string(next_++); }
    void expectFilled(const std::string& number) {
        EXPECT_GT(named<QComboBox>(*screen, "cboBancoAgConta").currentIndex(), 0);
        EXPECT_EQ(text(*screen, "txtNumeroCheque"), number);
        EXPECT_EQ(text(*screen, "txtSerie"), "ab1");
        EXPECT_EQ(text(*screen, "txtValor"), "1.234,22");
        EXPECT_EQ(text(*screen, "txtFavorecido"), "Maria da Silva");
        EXPECT_EQ(text(*screen, "txtDtDeposito"), "05/09/2012");
        EXPECT_EQ(named<FreeTextField>(*screen, "txtObservacao").text(), "Aluguel");
    }
    void expectEmptied() {
        for (const char* field : {"txtNumeroCheque", "txtValor", "txtFavorecido"}) {
            EXPECT_EQ(text(*screen, field), "") << field;
        }
        EXPECT_EQ(text(*screen, "txtSerie"), "ab1");
        EXPECT_EQ(named<FreeTextField>(*screen, "txtObservacao").text(), "");
        EXPECT_EQ(focused(*screen), "txtNumeroCheque");
    }
    // So many cheques on paper, each whole.
    void expectPaper(std::size_t cheques) {
        ASSERT_EQ(spooler.jobs.size(), cheques);
        for (const RecordingSpooler::Job& job : spooler.jobs) {
            EXPECT_THAT(job.bytes(), HasSubstr(" " + std::string(64, ' ') + "      1.234,22\r\n"));
            EXPECT_THAT(job.bytes(), HasSubstr("\r\n     MARIA DA SILVA\r\n"));
            EXPECT_TRUE(job.ended && job.closed);
        }
    }
    bool recorded(const std::string& number) {
        return rowsOf(
                   "comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=1361"
                   "&ID_ETB_TARN=1361&Id_Pes_Ban=1016&Cd_Age_Ban=1123&Nr_Ccor=45678-9&Nr_Che=" +
                   number + "&Nr_Ser=AB1&ServerName=DADOS1361") == 1;
    }
    void record(const std::string& number) {
        asked(
            "comando=adiciona_controle_cheque_emitido&ID_EMP_TARN=1361&ID_ETB_TARN=1361"
            "&UserCode=101&ID_PES_BAN=1016&CD_AGE_BAN=1123&NR_CCOR=45678-9&NR_CHE=" +
            number +
            "&NR_SER=AB1&VL_CH=1,00&DC_FAV=X&DT_DEP=05/09/2012&DC_OBS=&ServerName="
            "DADOS1361");
        ASSERT_TRUE(recorded(number));
    }

    QWidget* screen = nullptr;

private:
    int next_ = 501;
};

TEST_F(ChequeFaults, ACheckWithoutAnAnswerLetsThePrintThrough) {
    inCheques([this] {
        under({"seleciona_um_controle_cheque_emitido"}, leaving({Left::Nothing}),
              [this](const FaultCase& fault) {
                  const std::string number = fresh();
                  issueUnder("seleciona_um_controle_cheque_emitido", fault, number);
                  EXPECT_THAT(boxes.shown, ElementsAre(noCheck, success));
                  EXPECT_THAT(takeCommands(),
                              ElementsAre("seleciona_um_controle_cheque_emitido",
                                          "sel_dados_empresa", "adiciona_controle_cheque_emitido"));
                  expectPaper(1);
                  EXPECT_TRUE(recorded(number));
                  expectEmptied();
              });
    });
}

// What the check could have told comes from the record's answer, when the paper is out.
TEST_F(ChequeFaults, ANumberAlreadyIssuedPrintsAgainWhenItsCheckFails) {
    inCheques([this] {
        record("700");
        fill("701");
        forget();
        page.fail("seleciona_um_controle_cheque_emitido", {FaultKind::CloseBefore, {}});
        type(*screen, "txtNumeroCheque", "700");
        named<QLineEdit>(*screen, "txtFavorecido").setFocus();
        settle();
        EXPECT_THAT(boxes.shown, ElementsAre(noCheck)) << "on leaving the number";
        click(*screen, "cmdImprimir");
        EXPECT_THAT(
            boxes.shown,
            ElementsAre(noCheck, noCheck,
                        exclamation("O cheque nº 700 da série AB1 já está registrado nesta conta. "
                                    "Confira o número do cheque.")));
        expectPaper(1);
        expectFilled("700");
        page.heal();
        forget();
        click(*screen, "cmdImprimir");
        EXPECT_THAT(boxes.shown, ElementsAre(taken("700")));
        EXPECT_EQ(focused(*screen), "txtNumeroCheque");
        EXPECT_THAT(spooler.calls, IsEmpty());
    });
}

TEST_F(ChequeFaults, ACheckIsReadWithoutADeclarationAndLateToo) {
    inCheques([this] {
        under({"seleciona_um_controle_cheque_emitido"},
              leaving({Left::NoDeclaration, Left::All, Left::Refusal}),
              [this](const FaultCase& fault) {
                  const std::string number = fresh();
                  issueUnder("seleciona_um_controle_cheque_emitido", fault, number);
                  EXPECT_THAT(boxes.shown, ElementsAre(success));
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
                  EXPECT_THAT(boxes.shown, ElementsAre(noRecord));
                  expectPaper(1);
                  expectFilled(number);
                  EXPECT_EQ(recorded(number), fault.carriedOut);
                  page.heal();
                  boxes.shown.clear();
                  click(*screen, "cmdImprimir");
                  if (fault.carriedOut) {
                      EXPECT_THAT(boxes.shown, ElementsAre(taken(number)));
                      expectPaper(1);
                      expectFilled(number);
                  } else {
                      EXPECT_THAT(boxes.shown, ElementsAre(success));
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
                  EXPECT_THAT(boxes.shown, ElementsAre(refusal));
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
                  EXPECT_THAT(boxes.shown, ElementsAre(success));
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
        EXPECT_THAT(boxes.shown, ElementsAre(endReport));
        expectPaper(1);
        expectFilled("901");
    });
    EXPECT_TRUE(recorded("901"));
    EXPECT_EQ(fim.status(), 3);
    EXPECT_THAT(takeCommands(),
                ElementsAre("seleciona_um_controle_cheque_emitido", "sel_dados_empresa",
                            "adiciona_controle_cheque_emitido"))
        << "the desk asks for nothing any more";
}

TEST_F(ChequeFaults, WithoutTheTownNothingIsPrintedAndNothingRecorded) {
    inCheques([this] {
        under({"sel_dados_empresa"}, leaving({Left::Nothing}), [this](const FaultCase& fault) {
            issueUnder("sel_dados_empresa", fault, "601");
            EXPECT_THAT(boxes.shown, ElementsAre(noRecord));
            EXPECT_THAT(spooler.calls, IsEmpty());
            EXPECT_FALSE(recorded("601"));
            expectFilled("601");
        });
    });
    EXPECT_FALSE(fim.encerrado());
}

TEST_F(ChequeFaults, ATownOfNoRowsEndsTheProgramBeforeThePaper) {
    inCheques([this] {
        fill("602");
        forget();
        page.fail("sel_dados_empresa", {FaultKind::Refuse, {}});
        click(*screen, "cmdImprimir");
        EXPECT_THAT(boxes.shown, ElementsAre(endReport));
        EXPECT_THAT(spooler.calls, IsEmpty());
    });
    EXPECT_FALSE(recorded("602"));
    EXPECT_EQ(fim.status(), 3);
}

}  // namespace
}  // namespace tarn
