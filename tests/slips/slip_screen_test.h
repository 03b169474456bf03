// The desk with frmPesqBoleto opened from its menu.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "desk/mdi_menu.h"
#include "tests/support/answers.h"
#include "tests/support/grid.h"
#include "tests/support/screen_test.h"

namespace tarn {

class TelaDeBoletos : public ScreenTest {
protected:
    // Queries at establishment 9 of company 2161.
    static constexpr char pedeFiliais[] =
        "comando=sel_filiais&ID_EMP_TARN=2161&UserCode=77&ServerName=SRV1";
    static constexpr char pedeCarteiras[] = "comando=sel_carteira&ID_EMP_TARN=2161&ServerName=SRV1";
    static constexpr char pedeCarteira57[] =
        "comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=5&ServerName=SRV1";
    // What the desk sends when a modal screen has closed.
    static constexpr char pedeDaMesa[] = "comando=sel_dados_empresa&Id_Etb_Tarn=9&ServerName=SRV1";
    // Positions of the lists.
    static constexpr int sul = 2;       // cboFilial; its number is 12
    static constexpr int cobra57 = 1;   // cboCartCob; its number is 5
    static constexpr int cobra101 = 2;  // its number is 6

    static Box informa(const std::string& texto) { return {texto, BoxIcon::Information, "TArn"}; }
    static Box critica(const std::string& texto) {
        return {texto, BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"};
    }
    static Box falhaLarga() {
        return critica(
            "ERRO    Tarn0009 - Não foi possível obter os dados da Internet. Verifique a conexão "
            "com a Internet.");
    }
    static Box falha() {
        return critica(
            "ERRO Tarn0009 - Não foi possível obter os dados da Internet. Verifique a conexão com "
            "a Internet.");
    }
    static Box nenhumMarcado() { return informa("Selecione um item na Lista!     "); }

    // A bill of bank 1016, another one's where told.
    static std::string linha(const std::string& numero, const std::string& banco = "1016") {
        return "<z:row SG_FIL='SP' DT_VNC_DOC_FMA='10/04/2012' DC_TIP_DOC='DUPLICATA' NR_DOC='" +
               numero +
               "' NM_CLI_ETB='JOSÉ &amp; &lt;b>FILHOS' DT_EMS_DOC='05/03/2012' DC_LG_CPL='RUA DO "
               "COMÉRCIO, 100' VL_PRN_DOC='1234.50' PES_JUR='1' NR_CGC_CPL='12345678000195' "
               "TIPO_DOCTO='DOCTO_COBRANCA' PC_MULTA='2' JUROS_AO_DIA='0.42' ID_ETB_TARN='3381' "
               "ID_TIP_DOC='201' ID_PES_BAN='" +
               banco + "'/>";
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

    // Opens the screen by its menu entry; it is closed again behind `usa`.
    void comATela(const std::function<void(QWidget&)>& usa) {
        modals.then("frmPesqBoleto", [usa](QWidget& tela) {
            usa(tela);
            if (tela.isVisible()) {
                click(tela, "cmdVoltar");
            }
        });
        choose(menu, "mnuBoleto");
    }
    static QTableView& grade(const QWidget& tela) { return named<QTableView>(tela, "sprDados"); }
    static QComboBox& lista(const QWidget& tela, const char* nome) {
        return named<QComboBox>(tela, nome);
    }
    static std::string mostrado(const QWidget& tela, const char* campo) {
        return named<QLineEdit>(tela, campo).text().toStdString();
    }
    // A check box is clicked where its square is.
    static void clicaCaixa(const QWidget& tela) {
        auto& caixa = named<QCheckBox>(tela, "chkInc_Carteira");
        QTest::mouseClick(&caixa, Qt::LeftButton, {}, QPoint(8, caixa.height() / 2));
    }
    // The two dates and the portfolio that a search needs.
    static void preenche(const QWidget& tela, int carteira = cobra57) {
        type(tela, "txtDtEmsDe", "01022012");
        type(tela, "txtDtVncAte", "31032012");
        pick(tela, "cboCartCob", carteira);
    }
    // Finds these rows.
    void encontra(const QWidget& tela, const std::string& linhas, int carteira = cobra57) {
        server.on("sel_boleto", answers::rowset(linhas));
        preenche(tela, carteira);
        ::tarn::click(tela, "cmdPesquisar");
        server.addresses.clear();
    }

    MDIMenu menu{desk};
};

}  // namespace tarn
