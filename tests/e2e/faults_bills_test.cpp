// A server that fails at the search of bills and of customers.
#include <gmock/gmock.h>

#include <QComboBox>

#include "tests/e2e/fault_desk.h"
#include "tests/support/boxes.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

const Box noCustomers = requestFailure(
    "Tarn0024 - Erro na pesquisa de cliente - Não foi possível obter os dados da Internet. "
    "Verifique a conexão com a Internet.");
const Box noCustomerFound{"Pesquisa nao encontrou nenhum registro.     ", BoxIcon::Information,
                          "Aviso"};

const Box companyMissing = endReport(": os dados da empresa (sel_dados_empresa) não vieram");

class BillFaults : public FaultDesk {
protected:
    static constexpr int bills = 1;  // of cboTpDocto

    void SetUp() override {
        FaultDesk::SetUp();
        logOn();
    }
    void inBills(const Work& work) {
        modals.then("FrmPesqDupli", [work](QWidget& screen) {
            work(screen);
            click(screen, "cmdVoltar");
        });
        choose(menu, "mnuDuplicata");
    }
    // Searches all bills that are due in the year; how many there are.
    static int search(QWidget& screen) {
        pickIn(screen, "cboTpDocto", bills);
        type(screen, "txtDtVncAte", "31122012");
        click(screen, "cmdPesquisar");
        return grid::rows(gridOf(screen));
    }
    static void searchCustomer(QWidget& dialog, const char* name) {
        type(dialog, "txtNmCli", name);
        click(dialog, "cmdPesquisar");
    }
};

TEST_F(BillFaults, ASearchWithoutAnAnswerLeavesTheGridAndTheFields) {
    inBills([this](QWidget& screen) {
        const int found = search(screen);
        ASSERT_GT(found, 0);
        grid::click(gridOf(screen), 1, 1);
        under({"sel_duplicata"}, leaving({Left::Nothing}), [&](const FaultCase&) {
            click(screen, "cmdPesquisar");
            EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
            EXPECT_EQ(takeCommands(), (Texts{"sel_duplicata"}));
            EXPECT_EQ(grid::rows(gridOf(screen)), found);
            EXPECT_THAT(grid::ticks(gridOf(screen)), testing::Contains(true));
            EXPECT_EQ(named<QComboBox>(screen, "cboTpDocto").currentIndex(), bills);
            EXPECT_EQ(text(screen, "txtDtVncAte"), "31/12/2012");
        });
    });
}

TEST_F(BillFaults, ASearchOfNoRowsEmptiesTheGridInSilence) {
    inBills([this](QWidget& screen) {
        const int found = search(screen);
        under({"sel_duplicata"}, leaving({Left::Refusal}), [&](const FaultCase&) {
            click(screen, "cmdPesquisar");
            EXPECT_EQ(boxes.shown, Boxes{});
            EXPECT_EQ(grid::rows(gridOf(screen)), 0);
        });
        under({"sel_duplicata"}, leaving({Left::NoDeclaration, Left::All}), [&](const FaultCase&) {
            click(screen, "cmdPesquisar");
            EXPECT_EQ(boxes.shown, Boxes{});
            EXPECT_EQ(grid::rows(gridOf(screen)), found);
        });
    });
}

TEST_F(BillFaults, BranchesThatDontComeLeaveTheFirstItem) {
    under({"sel_filiais"}, leaving({Left::Nothing}), [this](const FaultCase&) {
        inBills([this](QWidget& screen) {
            auto& list = named<QComboBox>(screen, "cboFilial");
            EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide}));
            EXPECT_EQ(list.count(), 1);
            EXPECT_EQ(list.currentText(), QStringLiteral("<-TODAS->"));
            page.heal();
            EXPECT_GT(search(screen), 0);
        });
    });
}

// The company stands on every page: without it none is drawn, and the program ends.
TEST_F(BillFaults, WithoutTheCompanyNothingIsDrawnAndTheProgramEnds) {
    inBills([this](QWidget& screen) {
        search(screen);
        grid::click(gridOf(screen), 1, 1);
        forget();
        page.fail("sel_dados_empresa", {FaultKind::CutXml, {}});
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9, companyMissing}));
        EXPECT_THAT(printer.operations, testing::IsEmpty());
    });
    EXPECT_EQ(end.status(), 3);
}

TEST_F(BillFaults, ACompanyOfNoRowsEndsTheProgramToo) {
    inBills([this](QWidget& screen) {
        search(screen);
        grid::click(gridOf(screen), 1, 1);
        forget();
        page.fail("sel_dados_empresa", {FaultKind::Refuse, {}});
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{companyMissing}));
        EXPECT_THAT(printer.operations, testing::IsEmpty());
    });
    EXPECT_EQ(end.status(), 3);
}

TEST_F(BillFaults, CustomersThatDontComeLeaveTheOnesFoundBefore) {
    inBills([this](QWidget& screen) {
        modals.then("FrmPesqCliente", [this](QWidget& dialog) {
            searchCustomer(dialog, "panif");
            const int found = grid::rows(gridOf(dialog));
            ASSERT_GT(found, 0);
            const std::string name = grid::cell(gridOf(dialog), 1, 1);
            under({"Sel_Cliente"}, leaving({Left::Nothing}), [&](const FaultCase&) {
                searchCustomer(dialog, "outro nome");
                EXPECT_EQ(boxes.shown, (Boxes{noCustomers}));
                EXPECT_EQ(takeCommands(), (Texts{"Sel_Cliente"}));
                EXPECT_EQ(grid::rows(gridOf(dialog)), found);
                EXPECT_EQ(grid::cell(gridOf(dialog), 1, 1), name);
                EXPECT_EQ(text(dialog, "txtNmCli"), "outro nome");
            });
            under({"Sel_Cliente"}, leaving({Left::NoDeclaration, Left::All}),
                  [&](const FaultCase&) {
                      searchCustomer(dialog, "panif");
                      EXPECT_EQ(boxes.shown, Boxes{});
                      EXPECT_EQ(grid::rows(gridOf(dialog)), found);
                  });
            under({"Sel_Cliente"}, leaving({Left::Refusal}), [&](const FaultCase&) {
                searchCustomer(dialog, "panif");
                EXPECT_EQ(boxes.shown, (Boxes{noCustomerFound}));
                EXPECT_EQ(grid::rows(gridOf(dialog)), 0);
                click(dialog, "cmdSelecionar");
                EXPECT_EQ(boxes.shown,
                          (Boxes{noCustomerFound,
                                 Box{"Faça uma pesquisa para selecionar um cliente.     ",
                                     BoxIcon::Information, "Aviso"}}));
                EXPECT_TRUE(dialog.isVisible());
            });
            click(dialog, "cmdVoltar");
        });
        click(screen, "cmdPesqCli");
        EXPECT_EQ(text(screen, "txtCliente"), "");
    });
}

}  // namespace
}  // namespace tarn::test
