// The cheque's screen, opened from the menu of a desk of the test's own.
#pragma once

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <functional>

#include "cheques/frm_cheque.h"
#include "desk/mdi_menu.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/entering.h"
#include "tests/support/screen_test.h"
#include "widgets/free_text_field.h"

namespace tarn::test {

inline constexpr char rightQuery[] =
    "Comando=verifica_direito_acesso&nId_Pes_Usu=77&ServerName=SRV1&sTransacao=EMI005";
inline constexpr char accountsQuery[] =
    "comando=sel_banco_agencia_conta&ID_EMP_TARN=2041&ID_ETB_TARN=6001&UserCode=77&IC_ATV_INA=A"
    "&ServerName=SRV1";
inline constexpr char companyQuery[] = "comando=sel_dados_empresa&Id_Etb_Tarn=6001&ServerName=SRV1";

inline std::string checkQuery(const std::string& number, const std::string& series,
                              const std::string& account =
                                  "&Id_Pes_Ban=901&Cd_Age_Ban=0123"
                                  "&Nr_Ccor=4567-8") {
    return "comando=seleciona_um_controle_cheque_emitido&ID_EMP_TARN=2041&ID_ETB_TARN=6001" +
           account + "&Nr_Che=" + number + "&Nr_Ser=" + series + "&ServerName=SRV1";
}
inline std::string recordQuery(const std::string& number, const std::string& amount,
                               const std::string& payee, const std::string& purpose) {
    return "comando=adiciona_controle_cheque_emitido&ID_EMP_TARN=2041&ID_ETB_TARN=6001&UserCode=77"
           "&ID_PES_BAN=901&CD_AGE_BAN=0123&NR_CCOR=4567-8&NR_CHE=" +
           number + "&NR_SER=AÇ1&VL_CH=" + amount + "&DC_FAV=" + payee +
           "&DT_DEP=15/03/2012&DC_OBS=" + purpose + "&ServerName=SRV1";
}
inline const std::string usualCheck = checkQuery("000123", "AÇ1");
inline const std::string usualRecord =
    recordQuery("000123", "1.234,22", "JOÃO & FILHOS", "COMPRA DE PEÇAS");

inline const Box success{"Cheque emitido com sucesso!     ", BoxIcon::Information, "TArn"};
inline const Box taken = exclamation(
    "Cheque com este número e série já foi emitido já emitido. \rNúmero: 000123\rSérie: AÇ1");

class FrmChequeTest : public ScreenTest {
protected:
    using Work = std::function<void(QWidget&)>;

    void SetUp() override {
        ScreenTest::SetUp();
        entered(2041, 6001);
        server.on("sTransacao=EMI005", answers::status("OK"))
            .on("sel_dados_empresa", answers::rowset("<z:row NM_FIL='F' NM_MUN='Campinas'/>"))
            .on("sel_banco_agencia_conta",
                answers::rowset("<z:row ID_PES_BAN='901' BANCO='ITAU' CD_AGE_BAN='0123' "
                                "NR_CCOR='4567-8' NR_OFI_BAN='341' DC_CCOR='MATRIZ'/>"
                                "<z:row ID_PES_BAN='902' BANCO='SANTANDER' CD_AGE_BAN='9' "
                                "NR_CCOR='1' NR_OFI_BAN='033'/>"))
            .on("seleciona_um_controle", answers::rowset(""))
            .on("adiciona_controle", answers::status("OK"));
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }
    // Opens the screen, works in it and closes it.
    void use(const Work& work) {
        modals.then("frmCheque", [&](QWidget& screen) {
            onOpening = server.queries();
            server.addresses.clear();
            work(screen);
            settle();
            if (screen.isVisible()) {
                screen.close();
            }
            EXPECT_FALSE(screen.isVisible());
        });
        choose(menu, "mnuCheque", "mnuChequeImpressao");
    }
    // The same with a cheque typed in that lacks nothing, and nothing asked yet.
    void useFilled(const Work& work) {
        use([&](QWidget& screen) {
            fill(screen);
            work(screen);
        });
    }
    static void chooseAccount(QWidget& screen, int row) {
        pick(screen, "cboBancoAgConta", row);
        screen.activateWindow();  // off-screen an open list takes the activation along
        EXPECT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &screen; }));
    }
    void fill(QWidget& screen) {
        chooseAccount(screen, 1);
        type(screen, "txtNumeroCheque", "000123");
        type(screen, "txtSerie", "aç1");
        type(screen, "txtValor", "1234,22");
        type(screen, "txtFavorecido", "João & Filhos");
        purpose(screen, "Compra de peças");
        settle();
        server.addresses.clear();
        boxes.shown.clear();
        machine.beeps = 0;
    }
    static void purpose(const QWidget& screen, const char* typed) {
        auto& field = named<FreeTextField>(screen, "txtObservacao");
        field.setFocus();
        field.selectAll();
        keys(field, typed);
    }
    static void clear(const QWidget& screen, const char* name) {
        auto& field = named<QLineEdit>(screen, name);
        atLeisure([&field] { field.setFocus(); });
        field.selectAll();
        QTest::keyClick(&field, Qt::Key_Delete);
    }
    static std::string text(const QWidget& screen, const char* name) {
        return named<QLineEdit>(screen, name).text().toStdString();
    }
    static std::string purposeOf(const QWidget& screen) {
        return named<FreeTextField>(screen, "txtObservacao").text();
    }
    static int account(const QWidget& screen) {
        return named<QComboBox>(screen, "cboBancoAgConta").currentIndex();
    }
    // Lets what was put off until the focus has settled happen.
    static void settle() {
        for (int turn = 0; turn < 4; ++turn) {
            QCoreApplication::processEvents();
        }
    }
    // The filled cheque as it was typed.
    static void expectFilled(const QWidget& screen) {
        EXPECT_EQ(account(screen), 1);
        EXPECT_EQ(text(screen, "txtNumeroCheque"), "000123");
        EXPECT_EQ(text(screen, "txtSerie"), "aç1");
        EXPECT_EQ(text(screen, "txtValor"), "1.234,22");
        EXPECT_EQ(text(screen, "txtFavorecido"), "João & Filhos");
        EXPECT_EQ(text(screen, "txtDtDeposito"), "15/03/2012");
        EXPECT_EQ(purposeOf(screen), "Compra de peças");
    }

    MDIMenu menu{desk};
    std::vector<std::string> onOpening;
};

}  // namespace tarn::test
