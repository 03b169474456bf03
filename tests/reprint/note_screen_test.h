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
#include "tests/support/screen_test.h"

namespace tarn {

inline Box critica(const std::string& numero) {
    return {"ERRO Tarn" + numero +
                " - Não foi possível obter os dados da Internet. Verifique a conexão com a "
                "Internet.",
            BoxIcon::Critical, "TarnEMISSAO - ERRO INESPERADO"};
}
inline Box aviso(const std::string& texto) {
    return {texto, BoxIcon::Exclamation, "Aviso"};
}
inline Box semTitulo(const std::string& texto) {
    return {texto, BoxIcon::Exclamation, "TarnEmissao"};
}

inline std::string linhaDaNota(const std::string& tipo) {
    return "<z:row DC_TIP_NF='VENDA &lt;b&gt;' IC_TIP_NF='" + tipo +
           "' DT_EMS_NF='2012-03-05' NM_PES_CPL='JOSÉ &amp; &lt;b&gt;FILHOS'/>";
}

class TelaDeNota : public ScreenTest {
protected:
    // Queries at establishment 9 of company 1361.
    static constexpr char pedeSeries[] = "comando=SEL_SERIE_NF&ServerName=SRV1";
    static constexpr char pedeMotivos[] = "comando=SEL_MOT_CAN&ID_ETB_TARN=9&ServerName=SRV1";
    static constexpr char pedePesquisa[] =
        "comando=SEL_NF&ID_ETB_TARN=9&ID_NF_KESTO=4567&CD_SER_NF=U&ServerName=SRV1";
    static constexpr char pedeDocumento[] =
        "comando=sel_gera_nf&ID_ETB_TARN=9&ID_NF_KESTO=4567&CD_SER_NF=U&ServerName=SRV1";
    // Rows of the lists.
    static constexpr int serie1 = 0;
    static constexpr int serieUnica = 1;
    static constexpr int motivoErro = 0;  // its number is 12

    void SetUp() override {
        ScreenTest::SetUp();
        entered(1361, 9);
        server.on("sTransacao=EMI00", answers::status("OK"));
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }

    void listas() {
        server.on("SEL_SERIE_NF",
                  answers::rowset("<z:row DC_SER_NF='Série 1' CD_SER_NF=' 1 '/>"
                                  "<z:row DC_SER_NF='Série única' CD_SER_NF='U'/>"));
        server.on("SEL_MOT_CAN",
                  answers::rowset("<z:row DC_MOT_CAN='Erro de digitação' ID_MOT_CAN=' 12 '/>"
                                  "<z:row DC_MOT_CAN='Desistência' ID_MOT_CAN='7'/>"));
    }
    // Opens the screen by its menu entry, as the lists of the script stand.
    void abreVazia(const char* entrada) {
        choose(menu, "mnuNF", entrada);
        menu.activateWindow();  // off-screen an open menu takes the activation along
        ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &menu; }));
    }
    void abre(const char* entrada) {
        listas();
        abreVazia(entrada);
        server.addresses.clear();
    }
    // Finds note 4567 of series U.
    void encontra(const std::string& tipo = "S") {
        server.on("SEL_NF", answers::rowset(linhaDaNota(tipo)));
        escolhe("cboSerie", serieUnica);
        type(tela(), "txtNF", "4567");
        click(tela(), "cmdPesquisar");
        ASSERT_EQ(mostrado("LBLNOTA"), "4567");
        server.addresses.clear();
    }
    void escolhe(const char* lista, int linha) { pick(tela(), lista, linha); }

    FrmReImprimeNF& tela() { return named<FrmReImprimeNF>(menu, "FrmReImprimeNF"); }
    bool aberta() { return menu.findChild<FrmReImprimeNF*>() != nullptr; }
    std::string mostrado(const char* rotulo) {
        return named<QLabel>(tela(), rotulo).text().toStdString();
    }
    std::string codigo(const char* rotulo) {
        return named<QLabel>(tela(), rotulo).property("Tag").toString().toStdString();
    }
    std::vector<std::string> dados() {
        return {mostrado("LBLNOTA"), codigo("LBLNOTA"),   mostrado("LblTipoNf"),
                codigo("LblTipoNf"), mostrado("LblDtEm"), mostrado("LBLCliente")};
    }
    std::vector<std::string> achada(const std::string& tipo = "S") {
        return {"4567", "U", "VENDA <b>", tipo, "05/03/2012", "JOSÉ & <b>FILHOS"};
    }
    // The tag of the type is what LimpaDados leaves alone.
    std::vector<std::string> nada(const std::string& tipo = "S") {
        return {"", "", "", tipo, "", ""};
    }
    QRadioButton& opcao(int qual) {
        return named<QRadioButton>(tela(), qual == 0 ? "OptionReimp_0" : "OptionReimp_1");
    }
    // An option is clicked where its circle is.
    void marca(int qual) {
        QTest::mouseClick(&opcao(qual), Qt::LeftButton, {}, QPoint(8, opcao(qual).height() / 2));
    }
    int escolhido(const char* lista) { return named<QComboBox>(tela(), lista).currentIndex(); }
    bool menusLivres() {
        return named<QMenu>(menu, "mnuEtiquetas").isEnabled() &&
               named<QMenu>(menu, "mnuNF").isEnabled();
    }

    MDIMenu menu{desk};
};

}  // namespace tarn
