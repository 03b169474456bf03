// Opening and closing, the lists, the search: what both jobs share.
#include "reprint/frm_reimprime_nf.h"

#include <QButtonGroup>
#include <QStyledItemDelegate>

#include "tests/reprint/note_screen_test.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FrmReImprimeNFTest : public TelaDeNota {
protected:
    // The screen can be closed this way and opened again.
    void fechaPor(const std::function<void()>& fecha) {
        for (const char* entrada : {"mRINF", "mCNF"}) {
            abre(entrada);
            ASSERT_FALSE(menusLivres());
            fecha();
            EXPECT_TRUE(menusLivres());
            EXPECT_TRUE(QTest::qWaitFor([this] { return !aberta(); }));
            EXPECT_THAT(server.addresses, IsEmpty());
        }
        EXPECT_FALSE(fim.encerrado());
    }
};

TEST_F(FrmReImprimeNFTest, OpensForReprinting) {
    listas();
    abreVazia("mRINF");
    EXPECT_THAT(server.queries(),
                ElementsAre("Comando=verifica_direito_acesso&nId_Pes_Usu=77&ServerName=SRV1&"
                            "sTransacao=EMI002",
                            pedeSeries, pedeMotivos));
    EXPECT_EQ(mostrado("Label5"), "Reimpressão de Nota Fiscal");
    EXPECT_FALSE(named<QWidget>(tela(), "FrmCancelaNF").isVisible());
    EXPECT_EQ(focused(menu), "cboSerie");
    EXPECT_FALSE(named<QMenu>(menu, "mnuEtiquetas").isEnabled());
    EXPECT_FALSE(named<QMenu>(menu, "mnuNF").isEnabled());
    EXPECT_TRUE(named<QAction>(menu, "mnuDuplicata").isEnabled());
    EXPECT_THAT(boxes.shown, IsEmpty());
    EXPECT_FALSE(tela().isModal());
}

TEST_F(FrmReImprimeNFTest, OpensForCancelling) {
    listas();
    abreVazia("mCNF");
    EXPECT_THAT(server.queries(),
                ElementsAre("Comando=verifica_direito_acesso&nId_Pes_Usu=77&ServerName=SRV1&"
                            "sTransacao=EMI003",
                            pedeSeries, pedeMotivos));
    EXPECT_EQ(mostrado("Label5"), "Cancelamento de Nota Fiscal");
    EXPECT_TRUE(named<QWidget>(tela(), "FrmCancelaNF").isVisible());
    EXPECT_EQ(focused(menu), "cboSerie");
    EXPECT_FALSE(menusLivres());
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(FrmReImprimeNFTest, ADenialOpensNothing) {
    server.on("sTransacao=EMI003", answers::status("Sem direito"));
    choose(menu, "mnuNF", "mCNF");
    EXPECT_THAT(boxes.shown, ElementsAre(semTitulo("Sem direito")));
    EXPECT_EQ(server.addresses.size(), 1U);
    EXPECT_FALSE(aberta());
    EXPECT_TRUE(menusLivres());
}

TEST_F(FrmReImprimeNFTest, MenusAreDisabledBeforeTheFirstRequest) {
    server.failOn("SEL_SERIE_NF");
    boxes.onShow = [this](const Box&) { EXPECT_FALSE(menusLivres()); };
    abreVazia("mRINF");
    EXPECT_EQ(boxes.shown.size(), 2U);
}

TEST_F(FrmReImprimeNFTest, StandsInTheMiddleAtTheTop) {
    for (const char* entrada : {"mRINF", "mCNF"}) {
        abre(entrada);
        auto& area = named<QMdiArea>(menu, "mdiArea");
        QMdiSubWindow& janela = *area.subWindowList().at(0);
        EXPECT_EQ(janela.y(), 0);
        EXPECT_EQ(janela.x(), (area.viewport()->width() - janela.width()) / 2);
        click(tela(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !aberta(); }));
    }
}

TEST_F(FrmReImprimeNFTest, SaysWhatItsFieldsAre) {
    abre("mCNF");
    const std::pair<const char*, const char*> legendas[] = {
        {"Label1", "Série"},   {"Label6", "Nº Nota Fiscal"}, {"Label7", "Dt.Emissão"},
        {"Label4", "Tipo NF"}, {"Label2", "Cliente"},        {"Label3", "Motivo do Cancelamento "}};
    for (const auto& [nome, legenda] : legendas) {
        EXPECT_EQ(mostrado(nome), legenda);
    }
    EXPECT_EQ(opcao(0).text().toStdString(),
              "Cancelamento COM a opção de novo faturamento da venda.");
    EXPECT_EQ(opcao(1).text().toStdString(),
              "Cancelamento SEM a opção de novo faturamento da venda.");
    for (const char* nome :
         {"cboSerie", "txtNF", "CboMot_Can", "LBLNOTA", "LblTipoNf", "LblDtEm", "LBLCliente"}) {
        EXPECT_FALSE(named<QWidget>(tela(), nome).accessibleName().isEmpty()) << nome;
    }
    EXPECT_THAT(named<QButtonGroup>(tela(), "OptionReimp").buttons(),
                ElementsAre(&opcao(0), &opcao(1)));
    EXPECT_FALSE(opcao(0).isChecked() || opcao(1).isChecked());
    for (const char* nome : {"LBLNOTA", "LblTipoNf", "LblDtEm", "LBLCliente"}) {
        EXPECT_EQ(named<QLabel>(tela(), nome).textFormat(), Qt::PlainText);
        EXPECT_TRUE(named<QWidget>(tela(), "FrmDados").findChild<QLabel*>(nome)) << nome;
    }
}

TEST_F(FrmReImprimeNFTest, ButtonsSpeakByPictureToolTipAndName) {
    for (const char* entrada : {"mRINF", "mCNF"}) {
        abre(entrada);
        for (const char* nome : {"cmdPesquisar", "cmdSelecionar", "CmdFechar"}) {
            auto& botao = named<QPushButton>(tela(), nome);
            EXPECT_FALSE(botao.icon().pixmap(24).isNull()) << nome;
            EXPECT_FALSE(botao.toolTip().isEmpty()) << nome;
            EXPECT_EQ(botao.accessibleName(), botao.toolTip()) << nome;
            EXPECT_TRUE(botao.text().isEmpty()) << nome;
        }
        const QString faz = named<QPushButton>(tela(), "cmdSelecionar").toolTip();
        EXPECT_TRUE(faz.startsWith(entrada == std::string("mCNF") ? u"Cancelar" : u"Imprimir"));
        click(tela(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !aberta(); }));
    }
}

TEST_F(FrmReImprimeNFTest, TabFollowsTheEyeInReprinting) {
    abre("mRINF");
    EXPECT_THAT(tabOrder(menu, "cboSerie", 5),
                ElementsAre("cboSerie", "txtNF", "cmdPesquisar", "cmdSelecionar", "CmdFechar"));
}

TEST_F(FrmReImprimeNFTest, TabFollowsTheEyeInCancelling) {
    abre("mCNF");
    EXPECT_THAT(tabOrder(menu, "cboSerie", 7),
                ElementsAre("cboSerie", "txtNF", "cmdPesquisar", "OptionReimp_0", "CboMot_Can",
                            "cmdSelecionar", "CmdFechar"));
}

TEST_F(FrmReImprimeNFTest, ListsShowWhatWasReadWithNothingChosen) {
    abre("mCNF");
    auto& series = named<QComboBox>(tela(), "cboSerie");
    ASSERT_EQ(series.count(), 2);
    EXPECT_EQ(series.itemText(0).toStdString(), "Série 1" + std::string(50, ' ') + "|1");
    EXPECT_EQ(series.itemText(1).toStdString(), "Série única" + std::string(50, ' ') + "|U");
    EXPECT_EQ(series.currentIndex(), -1);
    EXPECT_EQ(static_cast<QStyledItemDelegate*>(series.itemDelegate())
                  ->displayText(series.itemText(1), QLocale()),
              QStringLiteral("Série única"))
        << "the open list doesn't show the code";
    auto& motivos = named<QComboBox>(tela(), "CboMot_Can");
    ASSERT_EQ(motivos.count(), 2);
    EXPECT_EQ(motivos.itemText(0).toStdString(), "Erro de digitação");
    EXPECT_EQ(motivos.itemData(0), QVariant(12));
    EXPECT_EQ(motivos.itemData(1), QVariant(7));
    EXPECT_EQ(motivos.currentIndex(), -1);
}

TEST_F(FrmReImprimeNFTest, WithoutSeriesTheReasonsStillComeAndBothButtonsAskForASeries) {
    listas();
    ScriptedLoader semSeries;
    server = semSeries.on("sTransacao", answers::status("OK"))
                 .failOn("SEL_SERIE_NF")
                 .on("SEL_MOT_CAN", answers::rowset("<z:row DC_MOT_CAN='A' ID_MOT_CAN='1'/>"));
    abreVazia("mCNF");
    EXPECT_THAT(boxes.shown, ElementsAre(critica("0010")));
    EXPECT_EQ(named<QComboBox>(tela(), "CboMot_Can").count(), 1);
    server.addresses.clear();
    boxes.shown.clear();
    type(tela(), "txtNF", "4567");
    click(tela(), "cmdPesquisar");
    click(tela(), "cmdSelecionar");
    EXPECT_THAT(boxes.shown, ElementsAre(aviso("Selecione a série da Nota.     "),
                                         aviso("Selecione a série da Nota ")));
    EXPECT_THAT(server.addresses, IsEmpty());
}

TEST_F(FrmReImprimeNFTest, ListsWithoutRowsSayNothing) {
    server.on("SEL_SERIE_NF", answers::rowset("")).on("SEL_MOT_CAN", answers::rowset(""));
    abreVazia("mCNF");
    EXPECT_THAT(boxes.shown, IsEmpty());
    EXPECT_EQ(named<QComboBox>(tela(), "cboSerie").count(), 0);
    EXPECT_EQ(named<QComboBox>(tela(), "CboMot_Can").count(), 0);
}

TEST_F(FrmReImprimeNFTest, TheSearchWantsSeriesThenNumber) {
    abre("mRINF");
    click(tela(), "cmdPesquisar");
    escolhe("cboSerie", serieUnica);
    click(tela(), "cmdPesquisar");
    EXPECT_EQ(focused(menu), "cmdPesquisar") << "no box moves the focus";
    EXPECT_THAT(boxes.shown, ElementsAre(aviso("Selecione a série da Nota.     "),
                                         aviso("Digite o Nº Nota !!!    ")));
    EXPECT_THAT(server.addresses, IsEmpty());
}

TEST_F(FrmReImprimeNFTest, TheSearchFillsTheFields) {
    for (const char* entrada : {"mRINF", "mCNF"}) {
        abre(entrada);
        server.on("SEL_NF", answers::rowset(linhaDaNota("S")));
        escolhe("cboSerie", serieUnica);
        type(tela(), "txtNF", "4567");
        click(tela(), "cmdPesquisar");
        EXPECT_THAT(server.queries(), ElementsAre(pedePesquisa));
        EXPECT_EQ(dados(), achada());
        EXPECT_TRUE(opcao(0).isEnabled() && opcao(1).isEnabled());
        EXPECT_THAT(boxes.shown, IsEmpty());
        click(tela(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !aberta(); }));
    }
}

TEST_F(FrmReImprimeNFTest, AFailedSearchIsToldTwiceAndFillsNothing) {
    abre("mRINF");
    server.failOn("SEL_NF");
    escolhe("cboSerie", serieUnica);
    type(tela(), "txtNF", "4567");
    click(tela(), "cmdPesquisar");
    EXPECT_THAT(
        boxes.shown,
        ElementsAre(critica("0007"), aviso("Houve um problema na Pesquisa da Nota Fiscal !!!")));
    EXPECT_EQ(dados(), nada(""));
}

TEST_F(FrmReImprimeNFTest, NothingFoundLeavesTheNoteOfTheSearchBefore) {
    abre("mRINF");
    encontra();
    ScriptedLoader cancelada;
    server = cancelada.on("SEL_NF", answers::rowset(""));
    click(tela(), "cmdPesquisar");
    EXPECT_THAT(boxes.shown, ElementsAre(aviso("Nota Fiscal não encontrada ou Cancelada !!!    ")));
    EXPECT_EQ(dados(), achada());
}

TEST_F(FrmReImprimeNFTest, OneDigitMoreForgetsTheNote) {
    abre("mCNF");
    encontra();
    marca(1);
    escolhe("CboMot_Can", motivoErro);
    ASSERT_TRUE(opcao(1).isChecked());
    auto& campo = named<QLineEdit>(tela(), "txtNF");
    campo.setFocus();
    QTest::keyClick(&campo, Qt::Key_End);
    keys(campo, "8");
    EXPECT_EQ(campo.text(), QStringLiteral("45678"));
    EXPECT_EQ(dados(), nada());
    EXPECT_FALSE(opcao(0).isChecked() || opcao(1).isChecked());
    EXPECT_EQ(escolhido("CboMot_Can"), -1);
    EXPECT_EQ(escolhido("cboSerie"), serieUnica);
    click(tela(), "cmdSelecionar");
    EXPECT_THAT(
        boxes.shown,
        ElementsAre(aviso("Preencha o campo Nro da NF e a série e clique em pesquisar!!!")));
    EXPECT_THAT(server.addresses, IsEmpty());
}

TEST_F(FrmReImprimeNFTest, TheSameSeriesPickedAgainForgetsTheNote) {
    abre("mCNF");
    encontra();
    marca(0);
    escolhe("cboSerie", serieUnica);
    EXPECT_EQ(dados(), nada());
    EXPECT_FALSE(opcao(0).isChecked());
    EXPECT_EQ(named<QLineEdit>(tela(), "txtNF").text(), QStringLiteral("4567"));
}

TEST_F(FrmReImprimeNFTest, ASeriesChosenByArrowKeyForgetsTheNote) {
    abre("mRINF");
    encontra();
    auto& series = named<QComboBox>(tela(), "cboSerie");
    series.setFocus();
    QTest::keyClick(&series, Qt::Key_Up);
    EXPECT_EQ(escolhido("cboSerie"), serie1);
    EXPECT_EQ(dados(), nada());
}

TEST_F(FrmReImprimeNFTest, TheNumberTakesDigitsAndCommaAndEnterOnlyBeeps) {
    abre("mRINF");
    auto& campo = named<QLineEdit>(tela(), "txtNF");
    type(tela(), "txtNF", "1a,2.3-");
    EXPECT_EQ(campo.text(), QStringLiteral("1,23"));
    EXPECT_EQ(machine.beeps, 3);
    key(tela(), Qt::Key_Return);
    EXPECT_EQ(machine.beeps, 4);
    EXPECT_EQ(focused(menu), "txtNF");
    key(tela(), Qt::Key_Backspace);
    EXPECT_EQ(campo.text(), QStringLiteral("1,2"));
    EXPECT_EQ(machine.beeps, 4);
    EXPECT_THAT(server.addresses, IsEmpty());
}

TEST_F(FrmReImprimeNFTest, BothJobsWantSeriesNumberAndNote) {
    for (const char* entrada : {"mRINF", "mCNF"}) {
        abre(entrada);
        boxes.shown.clear();
        click(tela(), "cmdSelecionar");
        escolhe("cboSerie", serieUnica);
        click(tela(), "cmdSelecionar");
        type(tela(), "txtNF", "4567");
        click(tela(), "cmdSelecionar");
        EXPECT_EQ(focused(menu), "cmdSelecionar");
        EXPECT_THAT(
            boxes.shown,
            ElementsAre(aviso("Selecione a série da Nota "), aviso("Digite o Nº Nota !!!"),
                        aviso("Preencha o campo Nro da NF e a série e clique em pesquisar!!!")));
        EXPECT_THAT(server.addresses, IsEmpty());
        click(tela(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !aberta(); }));
    }
}

TEST_F(FrmReImprimeNFTest, AFieldOfTheNoteInAnotherCaseEndsTheProgramWithTheReport) {
    abre("mRINF");
    server.on("SEL_NF", answers::rowset("<z:row ic_tip_nf='S'/>"));
    escolhe("cboSerie", serieUnica);
    type(tela(), "txtNF", "4567");
    click(tela(), "cmdPesquisar");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '91':\r\r", 0), 0U);
    EXPECT_EQ(fim.status(), 3);
}

TEST_F(FrmReImprimeNFTest, FecharFreesTheMenus) {
    fechaPor([&] { click(tela(), "CmdFechar"); });
}

TEST_F(FrmReImprimeNFTest, EscFreesTheMenus) {
    fechaPor([&] { key(tela(), Qt::Key_Escape); });
}

TEST_F(FrmReImprimeNFTest, TheWindowsButtonFreesTheMenus) {
    fechaPor([&] { named<QMdiArea>(menu, "mdiArea").subWindowList().at(0)->close(); });
}

TEST_F(FrmReImprimeNFTest, TheDeskCanBeLeftWithTheScreenOpen) {
    abre("mCNF");
    menu.close();
    EXPECT_TRUE(fim.encerrado());
    EXPECT_THAT(server.addresses, IsEmpty());
    EXPECT_THAT(boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace tarn
