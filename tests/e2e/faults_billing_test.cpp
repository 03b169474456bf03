// A server that fails at the billing desk: the list of orders, the note that is made,
// the note's document.
#include <gmock/gmock.h>

#include "tests/e2e/note_faults.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

const Box checkByHand = notice(
    "Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido gerada, utilize a tela de "
    "Reimpressão de Nota Fiscal. ");

Box notTransferred(const std::string& note) {
    return notice("Houve um problema na transferência dos dados da Nota Fiscal nº " + note +
                  ". Utilize a tela de Reimpressão de Nota Fiscal.");
}

class BillingFaults : public NoteFaults {
protected:
    void SetUp() override {
        NoteFaults::SetUp();
        openOrders();
    }
    std::vector<FaultCase> lostAnswers() {
        std::vector<FaultCase> lost = leaving({Left::Nothing});
        lost.push_back(hugeAnswer);
        return lost;
    }
};

TEST_F(BillingFaults, AListThatDoesntComeIsEmptyAndTheNextTickTriesAgain) {
    under({"sel_ordem_fatu"}, leaving({Left::Nothing}), [this](const FaultCase&) {
        click(menu, "CmdAtualizar");
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0006")}));
        EXPECT_EQ(grid::rows(orders()), 0);
        EXPECT_TRUE(timerRuns());
        click(menu, "CmdCanOft");
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0006"),
                                      notice("Selecione a ordem de faturamento.     ")}));
        EXPECT_EQ(takeCommands(), (Texts{"sel_ordem_fatu"}));
    });
    click(menu, "CmdAtualizar");
    EXPECT_EQ(grid::rows(orders()), orderCount);
}

TEST_F(BillingFaults, AListOfNoRowsIsNoFailure) {
    under({"sel_ordem_fatu"}, leaving({Left::Refusal}), [this](const FaultCase&) {
        click(menu, "CmdAtualizar");
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_EQ(grid::rows(orders()), 0);
    });
    under({"sel_ordem_fatu"}, leaving({Left::NoDeclaration, Left::All}), [this](const FaultCase&) {
        click(menu, "CmdAtualizar");
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_EQ(grid::rows(orders()), orderCount);
        EXPECT_EQ(grid::cell(orders(), 1, 2), "PANIFICADORA E CONFEITARIA PÃO DE ARAÇÁS LTDA");
    });
}

TEST_F(BillingFaults, AGenerationWithoutAnAnswerIsToBeCheckedByHand) {
    under({"SP_GERA_NF"}, lostAnswers(), [this](const FaultCase& fault) {
        const std::string order = takeOrder();
        const std::size_t before = notes();
        generate(order);
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0004"), checkByHand}));
        EXPECT_EQ(takeCommands(), (Texts{"Seleciona_Obs_Vnd_X_Ord", "Seleciona_Obs_Ord_X_Est",
                                         "SP_GERA_NF", "sel_ordem_fatu"}));
        EXPECT_THAT(spooler.calls, testing::IsEmpty());
        EXPECT_EQ(notes(), before + (fault.carriedOut ? 1 : 0));
        EXPECT_EQ(rowOf(order) == -1, fault.carriedOut);
        EXPECT_TRUE(timerRuns());
    });
    EXPECT_FALSE(end.ended());
}

TEST_F(BillingFaults, TheNoteWhoseAnswerWasLostComesOutOfTheReprintScreen) {
    const std::string order = takeOrder();
    page.fail("SP_GERA_NF", {FaultKind::CloseWithin, {}});
    generate(order);
    ASSERT_EQ(boxes.shown, (Boxes{transportFailure("0004"), checkByHand}));
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
    page.heal();
    close<FrmOFT>();
    forget();
    const std::string note = noteOf(order);
    ASSERT_NE(note, "");
    open("mRINF");
    search(note);
    EXPECT_EQ(shown("LBLNOTA"), note);
    EXPECT_EQ(shown("LBLCliente"), "PANIFICADORA E CONFEITARIA PÃO DE ARAÇÁS LTDA");
    click(reprint(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown, Boxes{});
    expectPrinted(note);
}

TEST_F(BillingFaults, ARefusedGenerationShowsTheServersWordsAndStops) {
    under({"SP_GERA_NF"}, leaving({Left::Refusal}), [this](const FaultCase&) {
        const std::string order = takeOrder();
        generate(order);
        EXPECT_EQ(boxes.shown, (Boxes{refusal}));
        EXPECT_EQ(takeCommands(),
                  (Texts{"Seleciona_Obs_Vnd_X_Ord", "Seleciona_Obs_Ord_X_Est", "SP_GERA_NF"}));
        EXPECT_EQ(grid::rows(orders()), orderCount);
        EXPECT_EQ(notes(), 0U);
        EXPECT_FALSE(timerRuns());
        EXPECT_THAT(spooler.calls, testing::IsEmpty());
    });
}

TEST_F(BillingFaults, AGenerationWithoutADeclarationEndsTheProgramWithTheWayToTheNote) {
    page.fail("SP_GERA_NF", {FaultKind::NoDeclaration, {}});
    const std::string order = takeOrder();
    generate(order);
    EXPECT_EQ(boxes.shown, (Boxes{endReportWithNote()}));
    EXPECT_EQ(end.status(), 3);
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
    EXPECT_TRUE(found(noteOf(order)));
    EXPECT_EQ(takeCommands(),
              (Texts{"Seleciona_Obs_Vnd_X_Ord", "Seleciona_Obs_Ord_X_Est", "SP_GERA_NF"}));
}

// Whoever clicks again while the server takes its time makes no second note.
TEST_F(BillingFaults, ASlowGenerationMakesOneNote) {
    under({"SP_GERA_NF", "sel_gera_nf"}, leaving({Left::All}), [this](const FaultCase&) {
        const std::string order = takeOrder();
        int impatience = 0;
        QTimer::singleShot(slowWait / 2, &menu, [this, &impatience] {
            EXPECT_NE(QGuiApplication::overrideCursor(), nullptr) << "the hourglass";
            EXPECT_THAT(spooler.calls, testing::IsEmpty());
            click(menu, "cmdSelecionar");
            ++impatience;
        });
        generate(order);
        EXPECT_EQ(impatience, 1);
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_EQ(notes(), 1U);
        expectPrinted(noteOf(order));
        EXPECT_EQ(rowOf(order), -1);
        EXPECT_TRUE(timerRuns());
    });
}

TEST_F(BillingFaults, ADocumentThatDoesntComeNamesTheNoteAndTheReprintScreen) {
    under({"sel_gera_nf"}, leaving({Left::Nothing}), [this](const FaultCase&) {
        const std::string order = takeOrder();
        generate(order);
        const std::string note = noteOf(order);
        EXPECT_TRUE(found(note));
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0005"), notTransferred(note)}));
        EXPECT_EQ(takeCommands(), (Texts{"Seleciona_Obs_Vnd_X_Ord", "Seleciona_Obs_Ord_X_Est",
                                         "SP_GERA_NF", "sel_gera_nf", "sel_ordem_fatu"}));
        EXPECT_THAT(spooler.calls, testing::IsEmpty());
        EXPECT_EQ(rowOf(order), -1);
        EXPECT_TRUE(timerRuns());
    });
}

// The order stays on the list, which isn't read anew.
TEST_F(BillingFaults, ARefusedDocumentShowsTheServersWordsAndStops) {
    under({"sel_gera_nf"}, leaving({Left::Refusal}), [this](const FaultCase&) {
        const std::string order = takeOrder();
        generate(order);
        EXPECT_EQ(boxes.shown, (Boxes{refusal}));
        EXPECT_TRUE(found(noteOf(order)));
        EXPECT_EQ(grid::rows(orders()), orderCount);
        EXPECT_FALSE(timerRuns());
        EXPECT_THAT(spooler.calls, testing::IsEmpty());
    });
    click(menu, "CmdAtualizar");
    EXPECT_EQ(grid::rows(orders()), orderCount - 1);
}

TEST_F(BillingFaults, ADocumentWithoutADeclarationEndsTheProgramWithTheWayToTheNote) {
    page.fail("sel_gera_nf", {FaultKind::NoDeclaration, {}});
    const std::string order = takeOrder();
    generate(order);
    EXPECT_EQ(boxes.shown, (Boxes{endReportWithNote()}));
    EXPECT_EQ(end.status(), 3);
    EXPECT_TRUE(found(noteOf(order)));
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

// An empty list has no order left to make a second note of.
TEST_F(BillingFaults, AListThatDoesntComeBehindAGenerationLeavesTheNotePrinted) {
    const std::string order = takeOrder();
    page.fail("sel_ordem_fatu", {FaultKind::ServerError, {}});
    generate(order);
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0006")}));
    expectPrinted(noteOf(order));
    EXPECT_EQ(grid::rows(orders()), 0);
    EXPECT_TRUE(timerRuns());
    click(menu, "cmdSelecionar");
    EXPECT_EQ(notes(), 1U);
}

}  // namespace
}  // namespace tarn::test
