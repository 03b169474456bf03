// The list of billing orders on a desk of the test's own, and the boxes it shows.
#pragma once

#include <QMdiArea>
#include <QPlainTextEdit>
#include <QTableView>
#include <functional>
#include <string>

#include "billing/frm_oft.h"
#include "desk/mdi_menu.h"
#include "platform/qt/tick.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/screen_test.h"

namespace tarn::test {

inline constexpr char listQuery[] = "comando=sel_ordem_fatu&ID_ETB_TARN=6001&ServerName=SRV1";
inline constexpr char obsQuery[] =
    "comando=Seleciona_Obs_Vnd_X_Ord&Id_Etb_Tarn=6001&Id_Ord_Fat=1001&ServerName=SRV1";
inline constexpr char stockQuery[] =
    "comando=Seleciona_Obs_Ord_X_Est&Id_Etb_Tarn=6001&Id_Ord_Fat=1001&ServerName=SRV1";
inline constexpr char noteQuery[] =
    "COMANDO=SP_GERA_NF&ID_ETB_TARN=6001&ID_ORD_FAT=1001&ID_PES=77&ServerName=SRV1";
inline constexpr char documentQuery[] =
    "comando=sel_gera_nf&ID_ETB_TARN=6001&ID_NF_KESTO=555&CD_SER_NF=U&ServerName=SRV1";
inline const std::string twoOrders = answers::rowset(
    "<z:row ID_ORD_FAT='1001' NM_PES_CPL='JOSÉ &lt;b&gt;' NM_RDU='MATRIZ' DC_TIP_NF='VENDA' "
    "DT_GER_OFT='12/03/2012' ID_ORD_CRG='77' TRANSPORTADORA='TT' NM_PES_MOT='MM' DC_OBS='obs' "
    "QT_ESP='12.5' PESO_BRU='1234567.8916' PESO_LIQ=''/>"
    "<z:row ID_ORD_FAT='1002' NM_PES_CPL='B' ID_ORD_CRG='78' QT_ESP='1'/>");

inline const Box selectOne = notice("Selecione a ordem de faturamento.     ");

class FrmOFTTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        entered(2161, 6001);  // no form there: nothing is printed
        server.on("sTransacao=EMI001", answers::status("OK"));
        server.on("sel_dados_empresa", answers::branch("F"));
        server.on("Seleciona_Obs_", answers::observation(""));
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }
    FrmOFT& open(const std::string& orders = twoOrders) {
        server.on("sel_ordem_fatu", orders);
        choose(menu, "mnuNF", "mOFT");
        menu.activateWindow();  // off-screen an open menu takes the activation along
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &menu; }));
        server.addresses.clear();
        return screen();
    }
    FrmOFT& screen() { return named<FrmOFT>(menu, "FrmOFT"); }
    QTableView& grid() { return named<QTableView>(menu, "sprDados"); }
    Tick& timer() { return *screen().findChild<Tick*>(QStringLiteral("Timer")); }
    void tick() { QMetaObject::invokeMethod(&timer(), "ticked"); }
    std::string cell(int row, int column) {
        return grid().model()->index(row, column - 1).data().toString().toStdString();
    }
    int rows() { return grid().model()->rowCount(); }
    bool menusEnabled() {
        return named<QMenu>(menu, "mnuEtiquetas").isEnabled() &&
               named<QMenu>(menu, "mnuNF").isEnabled();
    }
    bool closed() {
        return QTest::qWaitFor([this] { return menu.findChild<FrmOFT*>() == nullptr; });
    }
    // The screen can be closed this way and opened again.
    void closesBy(const std::function<void()>& close) {
        for (int time = 0; time < 2; ++time) {
            open();
            ASSERT_FALSE(menusEnabled());
            close();
            EXPECT_TRUE(menusEnabled());
            EXPECT_TRUE(closed());
            EXPECT_TRUE(server.addresses.empty());
        }
        EXPECT_FALSE(end.ended());
    }
    void observation(const std::string& text) {
        server.on("Seleciona_Obs_Vnd_X_Ord", answers::observation(text));
    }
    void stock(const std::string& text) {
        server.on("Seleciona_Obs_Ord_X_Est", answers::observation(text));
    }
    void noteComesOut() {
        server.on("SP_GERA_NF", answers::generatedNote("555", "U"));
        server.on("sel_gera_nf", answers::status("OK"));
    }
    void answerAlert(const char* button, const std::string& text) {
        modals.then("frmMensagemAlerta", [button, text](QWidget& alert) {
            EXPECT_EQ(named<QPlainTextEdit>(alert, "txtMensagem").toPlainText().toStdString(),
                      text);
            click(alert, button);
        });
    }

    MDIMenu menu{desk};
};

}  // namespace tarn::test
