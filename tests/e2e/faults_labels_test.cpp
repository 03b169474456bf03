// A server that fails at the queue of labels: what is listed, printed and deleted.
#include <gmock/gmock.h>

#include <QComboBox>

#include "tests/e2e/fault_desk.h"
#include "tests/support/boxes.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

const Box deleted = information("Etiquetas excluídas com sucesso!     ");
const Box printed = information(" Etiquetas impressas com sucesso!   ");

class LabelFaults : public FaultDesk {
protected:
    static constexpr char reason[] = "COBRANÇA";
    static constexpr int reasonLabels = 31;
    static constexpr int form1 = 1;  // of cboTp_Form

    void SetUp() override {
        FaultDesk::SetUp();
        logOn();
    }
    // The queue with the labels of the reason.
    void inQueue(const Work& work) {
        modals.then("frmPesqEtiquetas", [work](QWidget& queue) {
            pickIn(queue, "cboMotivo",
                   named<QComboBox>(queue, "cboMotivo").findText(QString::fromUtf8(reason)));
            pickIn(queue, "cboTp_Form", form1);
            ASSERT_EQ(grid::rows(gridOf(queue)), reasonLabels);
            work(queue);
            click(queue, "cmdVoltar");
        });
        choose(menu, "mnuEtiquetas", "mnuImprClientes");
    }
    void deleting(QWidget& queue, const std::string& from, const std::string& to) {
        modals.then("frmExcluirEtiqueta", [from, to](QWidget& deletion) {
            type(deletion, "txtDe", from.c_str());
            type(deletion, "txtAte", to.c_str());
            click(deletion, "cmdOk");
            EXPECT_FALSE(deletion.isVisible());
        });
        click(queue, "cmdExcluir");
    }
    std::size_t kept() {
        return rowsOf("comando=sel_etiquetas&ID_EMP_TARN=1361&sDc_Mot_Imp=" + std::string(reason) +
                      "&nSeq_De=&nSeq_Ate=&ServerName=DADOS1361");
    }
};

TEST_F(LabelFaults, AQueueThatDoesntComeLeavesTheGrid) {
    inQueue([this](QWidget& queue) {
        under({"sel_etiquetas"}, leaving({Left::Nothing}), [&](const FaultCase&) {
            pickIn(queue, "cboMotivo", 0);
            EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
            EXPECT_EQ(takeCommands(), (Texts{"sel_etiquetas"}));
            EXPECT_EQ(grid::rows(gridOf(queue)), reasonLabels);
        });
        under({"sel_etiquetas"}, leaving({Left::Refusal}), [&](const FaultCase&) {
            pickIn(queue, "cboMotivo", 1);
            EXPECT_EQ(boxes.shown, Boxes{});
            EXPECT_EQ(grid::rows(gridOf(queue)), 0);
            click(queue, "cmdImprimir");
            EXPECT_EQ(boxes.shown,
                      (Boxes{information("É necessário escolher o Motivo de Impressão.     ")}));
        });
        under({"sel_etiquetas"}, leaving({Left::NoDeclaration, Left::All}), [&](const FaultCase&) {
            pickIn(queue, "cboMotivo", 2);
            EXPECT_EQ(boxes.shown, Boxes{});
            EXPECT_EQ(grid::rows(gridOf(queue)), reasonLabels);
        });
    });
}

TEST_F(LabelFaults, APrintWithoutItsLabelsOrItsSenderKeepsTheRange) {
    inQueue([this](QWidget& queue) {
        modals.then("frmImprimirEtiqueta", [this](QWidget& print) {
            type(print, "txtDe", "1");
            type(print, "txtAte", "2");
            for (const char* command : {"sel_etiquetas", "sel_dados_remetente"}) {
                under({command}, leaving({Left::Nothing}), [&](const FaultCase&) {
                    click(print, "cmdOk");
                    EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
                    EXPECT_THAT(printer.operations, testing::IsEmpty());
                    EXPECT_TRUE(print.isVisible());
                    EXPECT_EQ(text(print, "txtDe"), "1");
                    EXPECT_EQ(text(print, "txtAte"), "2");
                });
            }
            under({"sel_dados_remetente"}, leaving({Left::Refusal}), [&](const FaultCase&) {
                click(print, "cmdOk");
                ASSERT_EQ(boxes.shown.size(), 1U);
                EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
                EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
                EXPECT_THAT(boxes.shown[0].text,
                            testing::StartsWith("Erro em tempo de execução '91':\r\r"));
                EXPECT_THAT(printer.operations, testing::IsEmpty());
                EXPECT_TRUE(print.isVisible());
                EXPECT_FALSE(end.ended());
            });
            forget();
            click(print, "cmdOk");
            EXPECT_EQ(boxes.shown, (Boxes{printed}));
            EXPECT_TRUE(printer.ended());
        });
        click(queue, "cmdImprimir");
    });
}

TEST_F(LabelFaults, ADeletionIsAlwaysASuccessAndTheListTellsTheTruth) {
    inQueue([this](QWidget& queue) {
        int left = reasonLabels;
        under({"exclui_etiquetas"}, allFaults(), [&](const FaultCase& fault) {
            const std::string last = std::to_string(left);
            deleting(queue, last, last);
            if (fault.left == Left::Nothing) {
                EXPECT_EQ(boxes.shown, (Boxes{noInternet9, deleted}));
            } else {
                EXPECT_EQ(boxes.shown, (Boxes{deleted})) << "its answer isn't read";
            }
            EXPECT_EQ(takeCommands(), (Texts{"exclui_etiquetas", "sel_etiquetas"}));
            left -= fault.carriedOut ? 1 : 0;
            EXPECT_EQ(kept(), static_cast<std::size_t>(left));
            EXPECT_EQ(grid::rows(gridOf(queue)), left);
            EXPECT_EQ(grid::cell(gridOf(queue), left, 1), std::to_string(left));
        });
    });
    EXPECT_FALSE(end.ended());
}

TEST_F(LabelFaults, AServerGoneAtTheDeletionLeavesTheListAsItWas) {
    inQueue([this](QWidget& queue) {
        under({"exclui_etiquetas", "sel_etiquetas"}, leaving({Left::Nothing}),
              [&](const FaultCase&) {
                  deleting(queue, "1", "0");
                  EXPECT_EQ(boxes.shown, (Boxes{noInternet9, deleted, noInternet9}));
                  EXPECT_EQ(grid::rows(gridOf(queue)), reasonLabels);
              });
    });
}

TEST_F(LabelFaults, ReasonsThatDontComeLeaveTheFirstItem) {
    under({"sel_motivos", "sel_filiais_remetente"}, leaving({Left::Nothing}),
          [this](const FaultCase&) {
              modals.then("frmPesqEtiquetas", [this](QWidget& queue) {
                  EXPECT_EQ(boxes.shown, (Boxes{noInternet9, noInternet9Wide}));
                  EXPECT_EQ(takeCommands(),
                            (Texts{"sel_filiais_remetente", "sel_motivos", "sel_etiquetas"}));
                  auto& reasons = named<QComboBox>(queue, "cboMotivo");
                  EXPECT_EQ(reasons.count(), 1);
                  EXPECT_EQ(reasons.currentText(), QStringLiteral("--------"));
                  EXPECT_EQ(named<QComboBox>(queue, "CboFilialRemet").count(), 0);
                  click(queue, "cmdVoltar");
              });
              choose(menu, "mnuEtiquetas", "mnuImprClientes");
          });
}

TEST_F(LabelFaults, ASelectionWithoutItsListsOrItsRowsStaysOpenAndEmpty) {
    modals.then("FrmImprEtiq", [&](QWidget& selection) {
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide, noInternet9Wide}));
        for (const char* list : {"cboPais", "cboFilial", "cboEstado", "cboCidade"}) {
            EXPECT_EQ(named<QComboBox>(selection, list).count(), 0) << list;
        }
        page.heal();
        under({"sel_dados_etq"}, leaving({Left::Nothing}), [&](const FaultCase&) {
            click(selection, "cmdPesquisar");
            ASSERT_EQ(boxes.shown.size(), 2U) << "the command, then its failure";
            EXPECT_EQ(boxes.shown[0].icon, BoxIcon::None);
            EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("comando=sel_dados_etq&"));
            EXPECT_EQ(boxes.shown[1], noInternet9Wide);
            EXPECT_EQ(grid::rows(gridOf(selection)), 0);
            EXPECT_TRUE(selection.isVisible());
        });
        click(selection, "cmdVoltar");
    });
    page.fail("sel_pais", {FaultKind::ServerError, {}});
    page.fail("sel_filias", {FaultKind::Html, {}});
    menu.openLabelSelection();
}

}  // namespace
}  // namespace tarn::test
