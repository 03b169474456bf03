// A server that fails at what goes before a note: the observations, an order's
// cancellation, its correction, its sheet.
#include <gmock/gmock.h>

#include <QPlainTextEdit>

#include "tests/e2e/note_faults.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

const Box noObservation = notice(
    "Aconteceu um erro na busca da observação da(s) venda(s). Cancele esta tela e tente "
    "novamente.");
const Box notSaved = notice("Favor verificar se os dados da Ordem de Faturamento foi gravado. ");
constexpr char askedOrder[] = "45006";  // its sale has an observation

Box questionFor(const std::string& order) {
    return {"Confirma o cancelamento da Ordem de Faturamento nº " + order + " ?     ",
            BoxIcon::Question, "Aviso", BoxButtons::YesNo};
}

class OrderFaults : public NoteFaults {
protected:
    void SetUp() override {
        NoteFaults::SetUp();
        openOrders();
    }
    bool listed(const std::string& order) {
        return stored("SELECT state FROM billing_order WHERE id = " + order, 1) ==
               std::vector<std::string>{"A"};
    }
    // What the server keeps as the order's packages.
    std::string packages(const std::string& order) {
        return stored("SELECT packages FROM billing_order WHERE id = " + order, 1).front();
    }
    static void answer(QWidget& question, const char* button, std::string& text) {
        text = named<QPlainTextEdit>(question, "txtMensagem").toPlainText().toStdString();
        click(question, button);
    }
};

TEST_F(OrderFaults, ObservationsThatDontComeDontStopTheNote) {
    under({"Seleciona_Obs_Vnd_X_Ord", "Seleciona_Obs_Ord_X_Est"}, leaving({Left::Nothing}),
          [this](const FaultCase&) {
              const std::string order = takeOrder();
              generate(order);
              EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0004"), noObservation,
                                            transportFailure("0004"), noObservation}));
              expectPrinted(noteOf(order));
              EXPECT_TRUE(timerRuns());
          });
}

TEST_F(OrderFaults, TheObservationOfTheOrderBeforeIsShownAgain) {
    std::string first;
    modals.then("frmMensagemAlerta",
                [&](QWidget& question) { answer(question, "cmdCancelar", first); });
    generate(askedOrder);
    ASSERT_NE(first, "");
    under({"Seleciona_Obs_Vnd_X_Ord"}, leaving({Left::Nothing}), [&](const FaultCase&) {
        std::string again;
        modals.then("frmMensagemAlerta",
                    [&](QWidget& question) { answer(question, "cmdCancelar", again); });
        generate(takeOrder());
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0004"), noObservation}));
        EXPECT_EQ(again, first);
        EXPECT_EQ(takeCommands(), (Texts{"Seleciona_Obs_Vnd_X_Ord"}));
    });
    EXPECT_EQ(notes(), 0U);
}

TEST_F(OrderFaults, ARefusedObservationOrStockStopsTheNote) {
    for (const char* command : {"Seleciona_Obs_Vnd_X_Ord", "Seleciona_Obs_Ord_X_Est"}) {
        under({command}, leaving({Left::Refusal}), [&](const FaultCase&) {
            generate(takeOrder());
            EXPECT_EQ(boxes.shown, (Boxes{refusal}));
            EXPECT_THAT(takeCommands(), testing::Contains(command));
            EXPECT_EQ(notes(), 0U);
            EXPECT_FALSE(timerRuns());
        });
    }
}

// No note was asked for yet, and so none is spoken of.
TEST_F(OrderFaults, AStockWithoutADeclarationEndsTheProgram) {
    page.fail("Seleciona_Obs_Ord_X_Est", {FaultKind::NoDeclaration, {}});
    generate(takeOrder());
    EXPECT_EQ(boxes.shown, (Boxes{endReport()}));
    EXPECT_EQ(end.status(), 3);
    EXPECT_EQ(notes(), 0U);
}

TEST_F(OrderFaults, ACancellationThatFailsIsToBeCheckedByHand) {
    under({"sp_can_oft"}, leaving({Left::Nothing, Left::Refusal}), [this](const FaultCase& fault) {
        const std::string order = takeOrder();
        press(order, "CmdCanOft");
        const Box question = questionFor(order);
        if (fault.left == Left::Refusal) {
            EXPECT_EQ(boxes.shown, (Boxes{question, refusal}));
        } else {
            EXPECT_EQ(boxes.shown, (Boxes{question, transportFailure("0003"),
                                          notice("Favor verificar se a Ordem de Faturamento nº " +
                                                 order + " foi cancelada. ")}));
        }
        EXPECT_EQ(takeCommands(), (Texts{"sp_can_oft"}));
        EXPECT_GE(rowOf(order), 1) << "the list isn't read anew";
        EXPECT_EQ(listed(order), !fault.carriedOut);
    });
}

TEST_F(OrderFaults, ACancellationWithoutADeclarationEndsTheProgram) {
    page.fail("sp_can_oft", {FaultKind::NoDeclaration, {}});
    const std::string order = takeOrder();
    press(order, "CmdCanOft");
    EXPECT_EQ(boxes.shown, (Boxes{questionFor(order), endReport()}));
    EXPECT_EQ(end.status(), 3);
    EXPECT_FALSE(listed(order));
}

TEST_F(OrderFaults, ACorrectionWithoutAnAnswerClosesAndTheListTellsTheTruth) {
    under({"MANUTENCAO_OFT"}, leaving({Left::Nothing}), [this](const FaultCase& fault) {
        const std::string order = takeOrder();
        const std::string before = grid::cell(orders(), rowOf(order), 10);
        modals.then("frmManutDetOFT", [](QWidget& dialog) {
            type(dialog, "txtQtde", "4321");
            click(dialog, "cmdOk");
            EXPECT_FALSE(dialog.isVisible());
        });
        press(order, "cmdDetOFT");
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0013"), notSaved}));
        EXPECT_EQ(takeCommands(),
                  (Texts{"Seleciona_Obs_Vnd_X_Ord", "MANUTENCAO_OFT", "sel_ordem_fatu"}));
        ASSERT_NE(before, "4.321,000");
        EXPECT_EQ(grid::cell(orders(), rowOf(order), 10), fault.carriedOut ? "4.321,000" : before);
        EXPECT_EQ(packages(order) == "4321000", fault.carriedOut);
        EXPECT_TRUE(timerRuns());
    });
}

TEST_F(OrderFaults, ARefusedCorrectionStaysAsTypedAndCanBeSentAgain) {
    under({"MANUTENCAO_OFT"}, leaving({Left::Refusal}), [this](const FaultCase&) {
        const std::string order = takeOrder();
        modals.then("frmManutDetOFT", [this, &order](QWidget& dialog) {
            type(dialog, "txtQtde", "4321");
            click(dialog, "cmdOk");
            EXPECT_EQ(boxes.shown, (Boxes{refusal}));
            EXPECT_TRUE(dialog.isVisible());
            EXPECT_EQ(text(dialog, "txtQtde"), "4.321,000");
            EXPECT_NE(packages(order), "4321000");
            page.heal();
            click(dialog, "cmdOk");
            EXPECT_FALSE(dialog.isVisible());
        });
        press(order, "cmdDetOFT");
        EXPECT_EQ(packages(order), "4321000");
    });
}

TEST_F(OrderFaults, ASheetWithoutItsOrderIsntPrinted) {
    under({"sel_impr_ordem_fatu"}, leaving({Left::Nothing, Left::Refusal}),
          [this](const FaultCase& fault) {
              const std::string order = takeOrder();
              press(order, "cmdImprimirOF");
              if (fault.left == Left::Refusal) {
                  EXPECT_EQ(boxes.shown, (Boxes{refusal}));
              } else {
                  EXPECT_EQ(boxes.shown,
                            (Boxes{transportFailure("0012"),
                                   notice("Houve um problema na transferência dos dados "
                                          "da Ordem de Faturamento nº " +
                                          order + ".")}));
              }
              EXPECT_THAT(spooler.calls, testing::IsEmpty());
              EXPECT_GE(rowOf(order), 1);
          });
    page.fail("sel_impr_ordem_fatu", {FaultKind::NoDeclaration, {}});
    forget();
    press(takeOrder(), "cmdImprimirOF");
    EXPECT_EQ(boxes.shown, (Boxes{endReport()}));
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
    EXPECT_EQ(end.status(), 3);
}

}  // namespace
}  // namespace tarn::test
