// The desk with FrmReImprimeNF open in it, for the tests of both jobs.
#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QRadioButton>

#include "desk/mdi_menu.h"
#include "reprint/frm_reimprime_nf.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/screen_test.h"

namespace tarn::test {

inline std::string noteRow(const std::string& kind) {
    return "<z:row DC_TIP_NF='VENDA &lt;b&gt;' IC_TIP_NF='" + kind +
           "' DT_EMS_NF='2012-03-05' NM_PES_CPL='JOSÉ &amp; &lt;b&gt;FILHOS'/>";
}

class NoteScreenTest : public ScreenTest {
protected:
    // Queries at establishment 9 of company 1361.
    static constexpr char seriesQuery[] = "comando=SEL_SERIE_NF&ServerName=SRV1";
    static constexpr char reasonsQuery[] = "comando=SEL_MOT_CAN&ID_ETB_TARN=9&ServerName=SRV1";
    static constexpr char searchQuery[] =
        "comando=SEL_NF&ID_ETB_TARN=9&ID_NF_KESTO=4567&CD_SER_NF=U&ServerName=SRV1";
    static constexpr char documentQuery[] =
        "comando=sel_gera_nf&ID_ETB_TARN=9&ID_NF_KESTO=4567&CD_SER_NF=U&ServerName=SRV1";
    // Rows of the lists.
    static constexpr int series1 = 0;
    static constexpr int singleSeries = 1;
    static constexpr int errorReason = 0;  // its number is 12

    void SetUp() override {
        ScreenTest::SetUp();
        entered(1361, 9);
        server.on("sTransacao=EMI00", answers::status("OK"));
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }

    void lists() {
        server.on("SEL_SERIE_NF",
                  answers::rowset("<z:row DC_SER_NF='Série 1' CD_SER_NF=' 1 '/>"
                                  "<z:row DC_SER_NF='Série única' CD_SER_NF='U'/>"));
        server.on("SEL_MOT_CAN",
                  answers::rowset("<z:row DC_MOT_CAN='Erro de digitação' ID_MOT_CAN=' 12 '/>"
                                  "<z:row DC_MOT_CAN='Desistência' ID_MOT_CAN='7'/>"));
    }
    // Opens the screen by its menu entry, as the lists of the script stand.
    void openEmpty(const char* input) {
        choose(menu, "mnuNF", input);
        menu.activateWindow();  // off-screen an open menu takes the activation along
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &menu; }));
    }
    void open(const char* input) {
        lists();
        openEmpty(input);
        server.addresses.clear();
    }
    // Finds note 4567 of series U.
    void find(const std::string& kind = "S") {
        server.on("SEL_NF", answers::rowset(noteRow(kind)));
        pickFrom("cboSerie", singleSeries);
        type(screen(), "txtNF", "4567");
        click(screen(), "cmdPesquisar");
        ASSERT_EQ(shown("LBLNOTA"), "4567");
        server.addresses.clear();
    }
    void pickFrom(const char* list, int line) { pick(screen(), list, line); }

    FrmReImprimeNF& screen() { return named<FrmReImprimeNF>(menu, "FrmReImprimeNF"); }
    bool isOpen() { return menu.findChild<FrmReImprimeNF*>() != nullptr; }
    std::string shown(const char* label) {
        return named<QLabel>(screen(), label).text().toStdString();
    }
    std::string code(const char* label) {
        return named<QLabel>(screen(), label).property("Tag").toString().toStdString();
    }
    std::vector<std::string> data() {
        return {shown("LBLNOTA"),  code("LBLNOTA"),  shown("LblTipoNf"),
                code("LblTipoNf"), shown("LblDtEm"), shown("LBLCliente")};
    }
    std::vector<std::string> found(const std::string& kind = "S") {
        return {"4567", "U", "VENDA <b>", kind, "05/03/2012", "JOSÉ & <b>FILHOS"};
    }
    // The tag of the type is what LimpaDados leaves alone.
    std::vector<std::string> nothing(const std::string& kind = "S") {
        return {"", "", "", kind, "", ""};
    }
    QRadioButton& option(int which) {
        return named<QRadioButton>(screen(), which == 0 ? "OptionReimp_0" : "OptionReimp_1");
    }
    // An option is clicked where its circle is.
    void tick(int which) {
        QTest::mouseClick(&option(which), Qt::LeftButton, {},
                          QPoint(8, option(which).height() / 2));
    }
    int chosen(const char* list) { return named<QComboBox>(screen(), list).currentIndex(); }
    bool menusEnabled() {
        return named<QMenu>(menu, "mnuEtiquetas").isEnabled() &&
               named<QMenu>(menu, "mnuNF").isEnabled();
    }

    MDIMenu menu{desk};
};

}  // namespace tarn::test
