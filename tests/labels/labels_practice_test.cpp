// The labels against the practice server itself, over a real connection.
#include "tests/labels/label_screens.h"
#include "tests/support/network_desk.h"
#include "tests/support/practice_page.h"

namespace tarn::test {

using namespace labels;
namespace {

class PracticeLabels : public LabelScreens {
protected:
    void SetUp() override {
        LabelScreens::SetUp();
        menu.hide();
        entered(1361, 1361);
        session.UserCode = "101";
        session.SERVERNAME = "DADOS1361";
        realMenu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&realMenu));
    }
    static int positionOf(const QWidget& screen, const char* list, const char* item) {
        return named<QComboBox>(screen, list).findText(QString::fromUtf8(item));
    }

    PracticePage page;
    NetworkDesk network{desk, page.baseUrl()};
    MDIMenu realMenu{network.desk};
};

TEST_F(PracticeLabels, AReasonIsPrintedAndItsLastLabelDeleted) {
    modals.then("frmPesqEtiquetas", [this](QWidget& queue) {
        pick(queue, "cboMotivo", positionOf(queue, "cboMotivo", "COBRANÇA"));
        ASSERT_EQ(rows(queue), 31);
        pick(queue, "cboTp_Form", 4);
        pick(queue, "CboFilialRemet", 1);
        pick(queue, "cboTp_Form", 1);
        printing(queue, [](QWidget& print) {
            range(print, "1", "31");
            click(print, "cmdOk");
            EXPECT_FALSE(print.isVisible());
        });
        EXPECT_EQ(boxes.shown, (Boxes{printedBox}));
        EXPECT_EQ(printer.operations.size(), 2U + 31U * 8U + 2U + 2U);
        boxes.shown.clear();
        deleting(queue, [](QWidget& deletion) {
            range(deletion, "31", "31");
            click(deletion, "cmdOk");
            EXPECT_FALSE(deletion.isVisible());
        });
        EXPECT_EQ(boxes.shown, (Boxes{information("Etiquetas excluídas com sucesso!     ")}));
        EXPECT_EQ(rows(queue), 30);
        click(queue, "cmdVoltar");
    });
    choose(realMenu, "mnuEtiquetas", "mnuImprClientes");
}

TEST_F(PracticeLabels, CustomersAreFoundByTheirPlaceAndPrinted) {
    modals.then("FrmImprEtiq", [this](QWidget& selection) {
        pick(selection, "cboPais", 1);
        pick(selection, "cboEstado", 1);
        pick(selection, "cboEstado", 0);
        click(selection, "cmdPesquisar");
        ASSERT_GT(rows(selection), 0);
        grid::click(gridOf(selection), 1, 1);
        boxes.shown.clear();
        click(selection, "cmdImprimir");
        EXPECT_EQ(boxes.shown,
                  (Boxes{Box{"Impressão Gerada com Sucesso !", BoxIcon::None, "Alerta"}}));
        EXPECT_EQ(printer.operations.size(), 2U + 4U + 1U);
        click(selection, "cmdVoltar");
    });
    realMenu.openLabelSelection();
}

}  // namespace
}  // namespace tarn::test
