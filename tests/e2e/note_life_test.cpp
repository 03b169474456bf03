// The life of a note in the real screens over HTTP: issued, printed again, cancelled,
// no longer found.
#include <gmock/gmock.h>

#include <QComboBox>
#include <QLabel>
#include <QTableView>

#include "billing/frm_oft.h"
#include "desk/mdi_menu.h"
#include "notes/layouts/layouts.h"
#include "reprint/frm_reimprime_nf.h"
#include "tests/notes/note_fixture.h"
#include "tests/support/network_desk.h"
#include "tests/support/practice_page.h"
#include "tests/support/screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class NoteLife : public ScreenTest {
protected:
    void logOn(const char* company) {
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
        modals.then("FrmLogon", [company](QWidget& logon) {
            type(logon, "txtEmpresa", company);
            type(logon, "txtUsuario", "clara");
            type(logon, "txtSenha", "pratica");
            key(logon, Qt::Key_Return);
        });
        menu.load();
        ASSERT_EQ(boxes.shown, Boxes{});
    }
    void open(const char* entry) {
        choose(menu, "mnuNF", entry);
        menu.activateWindow();  // off-screen an open menu takes the activation along
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &menu; }));
    }
    template <typename Screen>
    void close() {
        click(*menu.findChild<Screen*>(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return menu.findChild<Screen*>() == nullptr; }));
    }
    int rowOf(const std::string& order) {
        const QAbstractItemModel& list = *named<QTableView>(menu, "sprDados").model();
        for (int row = 0; row < list.rowCount(); ++row) {
            if (list.index(row, 0).data().toString().toStdString() == order) {
                return row;
            }
        }
        return -1;
    }
    // Issues the order's note; its number as the paper has it, from the jobs that came out.
    std::string issue(const std::string& order) {
        open("mOFT");
        auto& grid = named<QTableView>(menu, "sprDados");
        const QModelIndex cell = grid.model()->index(rowOf(order), 1);
        grid.scrollTo(cell);
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
        click(menu, "cmdSelecionar");
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_EQ(spooler.jobs.size(), 2U);
        close<FrmOFT>();
        return spooler.jobs.empty() ? "" : spooler.jobs.back().bytes().substr(124, 6);
    }
    QWidget& screen() { return named<QWidget>(menu, "FrmReImprimeNF"); }
    void search(int series, const std::string& number) {
        pick(screen(), "cboSerie", series);
        type(screen(), "txtNF", number.c_str());
        click(screen(), "cmdPesquisar");
    }
    std::string shown(const char* label) {
        return named<QLabel>(screen(), label).text().toStdString();
    }

    static constexpr int series1 = 0;
    static constexpr int series2 = 1;
    const Box notFound{"Nota Fiscal não encontrada ou Cancelada !!!    ", BoxIcon::Exclamation,
                       "Aviso"};

    PracticePage page;
    NetworkDesk network{desk, page.baseUrl()};
    MDIMenu menu{network.desk};
};

TEST_F(NoteLife, IssuedPrintedAgainCancelledAndGone) {
    logOn("1361");
    const std::string number = issue("45001");
    ASSERT_FALSE(number.empty());
    ASSERT_EQ(number.find_first_not_of("0123456789"), std::string::npos) << number;

    open("mRINF");
    page.takeQueries();
    search(series1, number);
    EXPECT_EQ(shown("LBLNOTA"), number);
    EXPECT_EQ(shown("LblTipoNf"), "Venda de mercadoria");
    EXPECT_EQ(shown("LblDtEm"), "05/09/2012");
    EXPECT_EQ(shown("LBLCliente"), "PANIFICADORA E CONFEITARIA PÃO DE ARAÇÁS LTDA");
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(page.takeQueries(), (Texts{"comando=SEL_NF&ID_ETB_TARN=1361&ID_NF_KESTO=" + number +
                                             "&CD_SER_NF=1&ServerName=DADOS1361",
                                         "comando=sel_gera_nf&ID_ETB_TARN=1361&ID_NF_KESTO=" +
                                             number + "&CD_SER_NF=1&ServerName=DADOS1361"}));
    ASSERT_EQ(spooler.jobs.size(), 4U);
    EXPECT_EQ(spooler.bytes(2), spooler.bytes(0));
    EXPECT_EQ(spooler.bytes(3), spooler.bytes(1));
    EXPECT_EQ(boxes.shown, Boxes{});
    close<FrmReImprimeNF>();

    open("mCNF");
    search(series1, number);
    QTest::mouseClick(&named<QWidget>(screen(), "OptionReimp_0"), Qt::LeftButton, {}, {8, 8});
    pick(screen(), "CboMot_Can", 1);
    page.takeQueries();
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(page.takeQueries(),
              (Texts{"comando=sp_can_nf&ID_ETB_TARN=1361&IC_TIP_NF=S&ID_NF_KESTO=" + number +
                     "&CD_SER_NF=1&id_mot_can=2&id_pes_usu=101&Tipo_Can=C&ServerName="
                     "DADOS1361"}));
    EXPECT_EQ(shown("LBLNOTA"), "");
    click(screen(), "cmdPesquisar");
    EXPECT_EQ(
        boxes.shown,
        (Boxes{Box{"Nota fiscal cancelada com sucesso", BoxIcon::Information, "Aviso"}, notFound}));
    EXPECT_EQ(shown("LBLNOTA"), "");
    close<FrmReImprimeNF>();

    open("mOFT");
    EXPECT_GE(rowOf("45001"), 0) << "the sale can be billed again";
    EXPECT_EQ(spooler.jobs.size(), 4U);
}

TEST_F(NoteLife, ANoteOfTypeDPrintsAgainAndStays) {
    logOn("1361");
    const std::string number = issue("45016");
    open("mCNF");
    search(series2, number);
    EXPECT_EQ(shown("LblTipoNf"), "Devolução de venda");
    EXPECT_FALSE(named<QWidget>(screen(), "OptionReimp_0").isEnabled());
    pick(screen(), "CboMot_Can", 0);
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown,
              (Boxes{Box{"Selecione o Tipo de Cancelamento !!!", BoxIcon::Exclamation, "Aviso"}}));
    close<FrmReImprimeNF>();
    open("mRINF");
    search(series2, number);
    click(screen(), "cmdSelecionar");
    ASSERT_EQ(spooler.jobs.size(), 4U);
    EXPECT_EQ(spooler.bytes(3), spooler.bytes(1));
}

TEST_F(NoteLife, Company761IssuesOnOneFormAndReprintsOnTheDefaultOne) {
    logOn("761");
    const std::string number = issue("45001");
    open("mRINF");
    search(series1, number);
    click(screen(), "cmdSelecionar");
    const std::vector<test::Job> expected =
        test::print(notes::imprimeNF_Padrao.formFor(762),
                    page.ask("comando=sel_gera_nf&ID_ETB_TARN=762&ID_NF_KESTO=" + number +
                             "&CD_SER_NF=1&ServerName=DADOS761"),
                    nullptr, number);
    ASSERT_EQ(spooler.jobs.size(), 2 + expected.size());
    EXPECT_EQ(spooler.jobs.back().bytes(), expected.back().bytes());
    EXPECT_NE(spooler.jobs.back().bytes(), spooler.bytes(1));
    EXPECT_EQ(boxes.shown, Boxes{});
}

}  // namespace
}  // namespace tarn::test
