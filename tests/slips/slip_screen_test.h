// The desk with frmPesqBoleto opened from its menu.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "desk/mdi_menu.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/grid.h"
#include "tests/support/screen_test.h"

namespace tarn::test {

class SlipScreenTest : public ScreenTest {
protected:
    // Queries at establishment 9 of company 2161.
    static constexpr char branchesQuery[] =
        "comando=sel_filiais&ID_EMP_TARN=2161&UserCode=77&ServerName=SRV1";
    static constexpr char portfoliosQuery[] =
        "comando=sel_carteira&ID_EMP_TARN=2161&ServerName=SRV1";
    static constexpr char wallet57Query[] =
        "comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=5&ServerName=SRV1";
    // What the desk sends when a modal screen has closed.
    static constexpr char deskQuery[] = "comando=sel_dados_empresa&Id_Etb_Tarn=9&ServerName=SRV1";
    // Positions of the lists.
    static constexpr int south = 2;          // cboFilial; its number is 12
    static constexpr int wallet57Item = 1;   // cboCartCob; its number is 5
    static constexpr int wallet101Item = 2;  // its number is 6

    static Box nothingTicked() { return information("Selecione um item na Lista!     "); }

    // A bill of bank 1016, another one's where given.
    static std::string line(const std::string& number, const std::string& bank = "1016") {
        return "<z:row SG_FIL='SP' DT_VNC_DOC_FMA='10/04/2012' DC_TIP_DOC='DUPLICATA' NR_DOC='" +
               number +
               "' NM_CLI_ETB='JOSÉ &amp; &lt;b>FILHOS' DT_EMS_DOC='05/03/2012' DC_LG_CPL='RUA DO "
               "COMÉRCIO, 100' VL_PRN_DOC='1234.50' PES_JUR='1' NR_CGC_CPL='12345678000195' "
               "TIPO_DOCTO='DOCTO_COBRANCA' PC_MULTA='2' JUROS_AO_DIA='0.42' ID_ETB_TARN='3381' "
               "ID_TIP_DOC='201' ID_PES_BAN='" +
               bank + "'/>";
    }

    void SetUp() override {
        ScreenTest::SetUp();
        entered(2161, 9);
        server.on("sel_filiais", answers::rowset("<z:row SG_FIL='MATRIZ' ID_ETB_TARN='9'/>"
                                                 "<z:row SG_FIL='SUL' ID_ETB_TARN='12'/>"));
        server.on("sel_carteira&",
                  answers::rowset("<z:row DC_CRT_COB='Cobrança 57' ID_CRT_COB='5'/>"
                                  "<z:row DC_CRT_COB='Cobrança 101' "
                                  "ID_CRT_COB='6'/>"));
        server.on("sel_carteira_cob",
                  answers::rowset("<z:row ID_CRT_COB='5' ID_PES_BAN='1016' NR_CRT_CNAB='57' "
                                  "CD_AGE_BAN_CNAB='1123' NR_CCOR_CNAB='456789'/>"));
        server.on("sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=6",
                  answers::rowset("<z:row ID_CRT_COB='6' ID_PES_BAN='1084' NR_CRT_CNAB='101'/>"));
        server.on("sel_dados_empresa", answers::branch("F"));
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }

    // Opens the screen by its menu entry; it is closed again behind `use`.
    void withScreen(const std::function<void(QWidget&)>& use) {
        modals.then("frmPesqBoleto", [use](QWidget& screen) {
            use(screen);
            if (screen.isVisible()) {
                click(screen, "cmdVoltar");
            }
        });
        choose(menu, "mnuBoleto");
    }
    static QTableView& grid(const QWidget& screen) { return named<QTableView>(screen, "sprDados"); }
    static QComboBox& list(const QWidget& screen, const char* name) {
        return named<QComboBox>(screen, name);
    }
    static std::string shown(const QWidget& screen, const char* field) {
        return named<QLineEdit>(screen, field).text().toStdString();
    }
    // A check box is clicked where its square is.
    static void clickCheckBox(const QWidget& screen) {
        auto& box = named<QCheckBox>(screen, "chkInc_Carteira");
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
    }
    // The two dates and the portfolio that a search needs.
    static void fillIn(const QWidget& screen, int portfolio = wallet57Item) {
        type(screen, "txtDtEmsDe", "01022012");
        type(screen, "txtDtVncAte", "31032012");
        pick(screen, "cboCartCob", portfolio);
    }
    // Finds these rows.
    void find(const QWidget& screen, const std::string& lines, int portfolio = wallet57Item) {
        server.on("sel_boleto", answers::rowset(lines));
        fillIn(screen, portfolio);
        ::tarn::test::click(screen, "cmdPesquisar");
        server.addresses.clear();
    }

    MDIMenu menu{desk};
};

}  // namespace tarn::test
