// The desk with FrmPesqDupli opened from its menu.
#pragma once

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>

#include "desk/mdi_menu.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/screen_test.h"

namespace tarn::test {

class BillScreenTest : public ScreenTest {
protected:
    static constexpr char branchesQuery[] =
        "comando=sel_filiais&ID_EMP_TARN=1361&UserCode=77&ServerName=SRV1";
    // What the desk sends when a modal screen has closed.
    static constexpr char deskQuery[] = "comando=sel_dados_empresa&Id_Etb_Tarn=9&ServerName=SRV1";
    // Positions of cboTpDocto.
    static constexpr int bill = 1;
    static constexpr int receipt = 2;

    void SetUp() override {
        ScreenTest::SetUp();
        entered(1361, 9);
        server.on("sel_filiais", answers::rowset("<z:row SG_FIL='MATRIZ' ID_ETB_TARN='9'/>"
                                                 "<z:row SG_FIL='SUL' ID_ETB_TARN='12'/>"));
        server.on("sel_dados_empresa", answers::branch("F"));
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }

    // Opens the screen by its menu entry; it is closed again behind `use`.
    void withScreen(const std::function<void(QWidget&)>& use) {
        modals.then("FrmPesqDupli", [use](QWidget& screen) {
            use(screen);
            if (screen.isVisible()) {
                click(screen, "cmdVoltar");
            }
        });
        choose(menu, "mnuDuplicata");
    }
    // Opens the customer dialog from a screen.
    void withCustomers(QWidget& screen, const std::function<void(QWidget&)>& use) {
        modals.then("FrmPesqCliente", use);
        click(screen, "cmdPesqCli");
    }

    // Off-screen an open list takes the activation along.
    static void pickFrom(QWidget& screen, const char* list, int line) {
        pick(screen, list, line);
        screen.activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([&screen] { return QApplication::activeWindow() == &screen; }));
    }
    static std::string shown(const QWidget& screen, const char* field) {
        return named<QLineEdit>(screen, field).text().toStdString();
    }
    static int lines(const QWidget& screen) {
        return named<QTableView>(screen, "sprDados").model()->rowCount();
    }
    // Text of a cell; row and column from 1.
    static std::string cell(const QWidget& screen, int line, int column) {
        const QAbstractItemModel& model = *named<QTableView>(screen, "sprDados").model();
        return model.index(line - 1, column - 1).data().toString().toStdString();
    }
    static bool ticked(const QWidget& screen, int line) {
        const QAbstractItemModel& model = *named<QTableView>(screen, "sprDados").model();
        return model.index(line - 1, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked;
    }
    static void clickCell(const QWidget& screen, int line, int column) {
        auto& grid = named<QTableView>(screen, "sprDados");
        const QModelIndex cell = grid.model()->index(line - 1, column - 1);
        grid.scrollTo(cell);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
    }
    static void clickHeading(const QWidget& screen, int column) {
        QHeaderView& header = *named<QTableView>(screen, "sprDados").horizontalHeader();
        const int middle =
            header.sectionViewportPosition(column - 1) + header.sectionSize(column - 1) / 2;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(middle, header.height() / 2));
    }

    MDIMenu menu{desk};
};

}  // namespace tarn::test
