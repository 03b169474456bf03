// Opening and closing, the lists, the search: what both jobs share.
#include "reprint/frm_reimprime_nf.h"

#include <QAccessible>
#include <QButtonGroup>
#include <QStyledItemDelegate>

#include "tests/reprint/note_screen_test.h"
#include "tests/support/entering.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class FrmReImprimeNFTest : public NoteScreenTest {
protected:
    // The screen can be closed this way and opened again.
    void closeBy(const std::function<void()>& close) {
        for (const char* input : {"mRINF", "mCNF"}) {
            open(input);
            ASSERT_FALSE(menusEnabled());
            close();
            EXPECT_TRUE(menusEnabled());
            EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
            EXPECT_EQ(server.addresses, Texts{});
        }
        EXPECT_FALSE(end.ended());
    }
};

TEST_F(FrmReImprimeNFTest, OpensForReprinting) {
    lists();
    openEmpty("mRINF");
    EXPECT_EQ(server.queries(),
              (Texts{"Comando=verifica_direito_acesso&nId_Pes_Usu=77&ServerName=SRV1&"
                     "sTransacao=EMI002",
                     seriesQuery, reasonsQuery}));
    EXPECT_EQ(shown("Label5"), "Reimpressão de Nota Fiscal");
    EXPECT_FALSE(named<QWidget>(screen(), "FrmCancelaNF").isVisible());
    EXPECT_EQ(focused(menu), "cboSerie");
    EXPECT_FALSE(named<QMenu>(menu, "mnuEtiquetas").isEnabled());
    EXPECT_FALSE(named<QMenu>(menu, "mnuNF").isEnabled());
    EXPECT_TRUE(named<QAction>(menu, "mnuDuplicata").isEnabled());
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_FALSE(screen().isModal());
}

TEST_F(FrmReImprimeNFTest, OpensForCancelling) {
    lists();
    openEmpty("mCNF");
    EXPECT_EQ(server.queries(),
              (Texts{"Comando=verifica_direito_acesso&nId_Pes_Usu=77&ServerName=SRV1&"
                     "sTransacao=EMI003",
                     seriesQuery, reasonsQuery}));
    EXPECT_EQ(shown("Label5"), "Cancelamento de Nota Fiscal");
    EXPECT_TRUE(named<QWidget>(screen(), "FrmCancelaNF").isVisible());
    EXPECT_EQ(focused(menu), "cboSerie");
    EXPECT_FALSE(menusEnabled());
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmReImprimeNFTest, ADenialOpensNothing) {
    server.on("sTransacao=EMI003", answers::status("Sem direito"));
    choose(menu, "mnuNF", "mCNF");
    EXPECT_EQ(boxes.shown, (Boxes{exclamation("Sem direito")}));
    EXPECT_EQ(server.addresses.size(), 1U);
    EXPECT_FALSE(isOpen());
    EXPECT_TRUE(menusEnabled());
}

TEST_F(FrmReImprimeNFTest, MenusAreDisabledBeforeTheFirstRequest) {
    server.failOn("SEL_SERIE_NF");
    boxes.onShow = [this](const Box&) { EXPECT_FALSE(menusEnabled()); };
    openEmpty("mRINF");
    EXPECT_EQ(boxes.shown.size(), 2U);
}

TEST_F(FrmReImprimeNFTest, StandsInTheMiddleAtTheTop) {
    for (const char* input : {"mRINF", "mCNF"}) {
        open(input);
        auto& area = named<QMdiArea>(menu, "mdiArea");
        QMdiSubWindow& window = *area.subWindowList().at(0);
        EXPECT_EQ(window.y(), 0);
        EXPECT_EQ(window.x(), (area.viewport()->width() - window.width()) / 2);
        click(screen(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    }
}

TEST_F(FrmReImprimeNFTest, SaysWhatItsFieldsAre) {
    open("mCNF");
    const std::pair<const char*, const char*> captions[] = {
        {"Label1", "Série"},   {"Label6", "Nº Nota Fiscal"}, {"Label7", "Dt.Emissão"},
        {"Label4", "Tipo NF"}, {"Label2", "Cliente"},        {"Label3", "Motivo do Cancelamento "}};
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(shown(name), caption);
    }
    EXPECT_EQ(option(0).text().toStdString(),
              "Cancelamento COM a opção de novo faturamento da venda.");
    EXPECT_EQ(option(1).text().toStdString(),
              "Cancelamento SEM a opção de novo faturamento da venda.");
    for (const char* name : {"cboSerie", "txtNF", "CboMot_Can"}) {
        EXPECT_FALSE(named<QWidget>(screen(), name).accessibleName().isEmpty()) << name;
    }
    EXPECT_EQ(named<QButtonGroup>(screen(), "OptionReimp").buttons(),
              (QList<QAbstractButton*>{&option(0), &option(1)}));
    EXPECT_FALSE(option(0).isChecked() || option(1).isChecked());
    for (const char* name : {"LBLNOTA", "LblTipoNf", "LblDtEm", "LBLCliente"}) {
        EXPECT_EQ(named<QLabel>(screen(), name).textFormat(), Qt::PlainText);
        EXPECT_TRUE(named<QWidget>(screen(), "FrmDados").findChild<QLabel*>(name)) << name;
    }
}

TEST_F(FrmReImprimeNFTest, ButtonsSpeakByPictureToolTipAndName) {
    for (const char* input : {"mRINF", "mCNF"}) {
        open(input);
        for (const char* name : {"cmdPesquisar", "cmdSelecionar", "CmdFechar"}) {
            auto& button = named<QPushButton>(screen(), name);
            EXPECT_FALSE(button.icon().pixmap(24).isNull()) << name;
            EXPECT_FALSE(button.toolTip().isEmpty()) << name;
            EXPECT_FALSE(button.accessibleName().isEmpty()) << name;
            EXPECT_TRUE(button.toolTip().startsWith(button.accessibleName())) << name;
            EXPECT_TRUE(button.text().isEmpty()) << name;
        }
        const QString run = named<QPushButton>(screen(), "cmdSelecionar").toolTip();
        EXPECT_TRUE(run.startsWith(input == std::string("mCNF") ? u"Cancelar" : u"Imprimir"));
        click(screen(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    }
}

TEST_F(FrmReImprimeNFTest, TabFollowsTheEyeInReprinting) {
    open("mRINF");
    EXPECT_EQ(tabOrder(menu, "cboSerie", 5),
              (Texts{"cboSerie", "txtNF", "cmdPesquisar", "cmdSelecionar", "CmdFechar"}));
}

TEST_F(FrmReImprimeNFTest, TabFollowsTheEyeInCancelling) {
    open("mCNF");
    EXPECT_EQ(tabOrder(menu, "cboSerie", 7),
              (Texts{"cboSerie", "txtNF", "cmdPesquisar", "OptionReimp_0", "CboMot_Can",
                     "cmdSelecionar", "CmdFechar"}));
}

TEST_F(FrmReImprimeNFTest, ListsShowWhatWasReadWithNothingChosen) {
    open("mCNF");
    auto& series = named<QComboBox>(screen(), "cboSerie");
    ASSERT_EQ(series.count(), 2);
    EXPECT_EQ(series.itemText(0).toStdString(), "Série 1" + std::string(50, ' ') + "|1");
    EXPECT_EQ(series.itemText(1).toStdString(), "Série única" + std::string(50, ' ') + "|U");
    EXPECT_EQ(series.currentIndex(), -1);
    EXPECT_EQ(static_cast<QStyledItemDelegate*>(series.itemDelegate())
                  ->displayText(series.itemText(1), QLocale()),
              QStringLiteral("Série única"))
        << "the open list doesn't show the code";
    auto& reasons = named<QComboBox>(screen(), "CboMot_Can");
    ASSERT_EQ(reasons.count(), 2);
    EXPECT_EQ(reasons.itemText(0).toStdString(), "Erro de digitação");
    EXPECT_EQ(reasons.itemData(0), QVariant(12));
    EXPECT_EQ(reasons.itemData(1), QVariant(7));
    EXPECT_EQ(reasons.currentIndex(), -1);
}

TEST_F(FrmReImprimeNFTest, WithoutSeriesTheReasonsStillComeAndBothButtonsAskForASeries) {
    lists();
    ScriptedLoader noSeries;
    server = noSeries.on("sTransacao", answers::status("OK"))
                 .failOn("SEL_SERIE_NF")
                 .on("SEL_MOT_CAN", answers::rowset("<z:row DC_MOT_CAN='A' ID_MOT_CAN='1'/>"));
    openEmpty("mCNF");
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0010")}));
    EXPECT_EQ(named<QComboBox>(screen(), "CboMot_Can").count(), 1);
    server.addresses.clear();
    boxes.shown.clear();
    type(screen(), "txtNF", "4567");
    click(screen(), "cmdPesquisar");
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown, (Boxes{notice("Selecione a série da Nota.     "),
                                  notice("Selecione a série da Nota ")}));
    EXPECT_EQ(server.addresses, Texts{});
}

TEST_F(FrmReImprimeNFTest, ListsWithoutRowsSayNothing) {
    server.on("SEL_SERIE_NF", answers::rowset("")).on("SEL_MOT_CAN", answers::rowset(""));
    openEmpty("mCNF");
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_EQ(named<QComboBox>(screen(), "cboSerie").count(), 0);
    EXPECT_EQ(named<QComboBox>(screen(), "CboMot_Can").count(), 0);
}

TEST_F(FrmReImprimeNFTest, TheSearchWantsSeriesThenNumber) {
    open("mRINF");
    click(screen(), "cmdPesquisar");
    pickFrom("cboSerie", singleSeries);
    click(screen(), "cmdPesquisar");
    EXPECT_EQ(focused(menu), "cmdPesquisar") << "no box moves the focus";
    EXPECT_EQ(boxes.shown, (Boxes{notice("Selecione a série da Nota.     "),
                                  notice("Digite o Nº Nota !!!    ")}));
    EXPECT_EQ(server.addresses, Texts{});
}

TEST_F(FrmReImprimeNFTest, TheSearchFillsTheFields) {
    for (const char* input : {"mRINF", "mCNF"}) {
        open(input);
        server.on("SEL_NF", answers::rowset(noteRow("S")));
        pickFrom("cboSerie", singleSeries);
        type(screen(), "txtNF", "4567");
        click(screen(), "cmdPesquisar");
        EXPECT_EQ(server.queries(), (Texts{searchQuery}));
        EXPECT_EQ(data(), found());
        EXPECT_TRUE(option(0).isEnabled() && option(1).isEnabled());
        EXPECT_EQ(boxes.shown, Boxes{});
        click(screen(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    }
}

TEST_F(FrmReImprimeNFTest, AFailedSearchIsToldTwiceAndFillsNothing) {
    open("mRINF");
    server.failOn("SEL_NF");
    pickFrom("cboSerie", singleSeries);
    type(screen(), "txtNF", "4567");
    click(screen(), "cmdPesquisar");
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0007"),
                                  notice("Houve um problema na Pesquisa da Nota Fiscal !!!")}));
    EXPECT_EQ(data(), nothing(""));
}

TEST_F(FrmReImprimeNFTest, NothingFoundLeavesTheNoteOfTheSearchBefore) {
    open("mRINF");
    find();
    ScriptedLoader cancelled;
    server = cancelled.on("SEL_NF", answers::rowset(""));
    click(screen(), "cmdPesquisar");
    EXPECT_EQ(boxes.shown, (Boxes{notice("Nota Fiscal não encontrada ou Cancelada !!!    ")}));
    EXPECT_EQ(data(), found());
}

TEST_F(FrmReImprimeNFTest, OneDigitMoreForgetsTheNote) {
    open("mCNF");
    find();
    tick(1);
    pickFrom("CboMot_Can", errorReason);
    ASSERT_TRUE(option(1).isChecked());
    auto& field = named<QLineEdit>(screen(), "txtNF");
    field.setFocus();
    QTest::keyClick(&field, Qt::Key_End);
    keys(field, "8");
    EXPECT_EQ(field.text(), QStringLiteral("45678"));
    EXPECT_EQ(data(), nothing());
    EXPECT_FALSE(option(0).isChecked() || option(1).isChecked());
    EXPECT_EQ(chosen("CboMot_Can"), -1);
    EXPECT_EQ(chosen("cboSerie"), singleSeries);
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown,
              (Boxes{notice("Preencha o campo Nro da NF e a série e clique em pesquisar!!!")}));
    EXPECT_EQ(server.addresses, Texts{});
}

TEST_F(FrmReImprimeNFTest, TheSameSeriesPickedAgainForgetsTheNote) {
    open("mCNF");
    find();
    tick(0);
    pickFrom("cboSerie", singleSeries);
    EXPECT_EQ(data(), nothing());
    EXPECT_FALSE(option(0).isChecked());
    EXPECT_EQ(named<QLineEdit>(screen(), "txtNF").text(), QStringLiteral("4567"));
}

TEST_F(FrmReImprimeNFTest, ASeriesChosenByArrowKeyForgetsTheNote) {
    open("mRINF");
    find();
    auto& series = named<QComboBox>(screen(), "cboSerie");
    series.setFocus();
    QTest::keyClick(&series, Qt::Key_Up);
    EXPECT_EQ(chosen("cboSerie"), series1);
    EXPECT_EQ(data(), nothing());
}

TEST_F(FrmReImprimeNFTest, TheNumberTakesDigitsAndCommaAndEnterOnlyBeeps) {
    open("mRINF");
    auto& field = named<QLineEdit>(screen(), "txtNF");
    type(screen(), "txtNF", "1a,2.3-");
    EXPECT_EQ(field.text(), QStringLiteral("1,23"));
    EXPECT_EQ(machine.beeps, 3);
    key(screen(), Qt::Key_Return);
    EXPECT_EQ(machine.beeps, 4);
    EXPECT_EQ(focused(menu), "txtNF");
    key(screen(), Qt::Key_Backspace);
    EXPECT_EQ(field.text(), QStringLiteral("1,2"));
    EXPECT_EQ(machine.beeps, 4);
    EXPECT_EQ(server.addresses, Texts{});
}

TEST_F(FrmReImprimeNFTest, TheNumberTakesNothingElseHoweverItComes) {
    open("mRINF");
    expectNumbersOnly(screen(), "txtNF", machine, Comma::Taken);
}

TEST_F(FrmReImprimeNFTest, BothJobsWantSeriesNumberAndNote) {
    for (const char* input : {"mRINF", "mCNF"}) {
        open(input);
        boxes.shown.clear();
        click(screen(), "cmdSelecionar");
        pickFrom("cboSerie", singleSeries);
        click(screen(), "cmdSelecionar");
        type(screen(), "txtNF", "4567");
        click(screen(), "cmdSelecionar");
        EXPECT_EQ(focused(menu), "cmdSelecionar");
        EXPECT_EQ(boxes.shown,
                  (Boxes{notice("Selecione a série da Nota "), notice("Digite o Nº Nota !!!"),
                         notice("Preencha o campo Nro da NF e a série e clique em pesquisar!!!")}));
        EXPECT_EQ(server.addresses, Texts{});
        click(screen(), "CmdFechar");
        ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    }
}

TEST_F(FrmReImprimeNFTest, AFieldOfTheNoteInAnotherCaseEndsTheProgramWithTheReport) {
    open("mRINF");
    server.on("SEL_NF", answers::rowset("<z:row ic_tip_nf='S'/>"));
    pickFrom("cboSerie", singleSeries);
    type(screen(), "txtNF", "4567");
    click(screen(), "cmdPesquisar");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '91':\r\r", 0), 0U);
    EXPECT_EQ(end.status(), 3);
}

TEST_F(FrmReImprimeNFTest, CmdFecharFreesTheMenus) {
    closeBy([&] { click(screen(), "CmdFechar"); });
}

TEST_F(FrmReImprimeNFTest, EscClosesNothing) {
    open("mCNF");
    type(screen(), "txtNF", "45");
    key(screen(), Qt::Key_Escape);
    EXPECT_EQ(named<QLineEdit>(screen(), "txtNF").text(), QStringLiteral("45"));
    EXPECT_TRUE(screen().isVisible());
}

TEST_F(FrmReImprimeNFTest, TheWindowsButtonFreesTheMenus) {
    closeBy([&] { named<QMdiArea>(menu, "mdiArea").subWindowList().at(0)->close(); });
}

TEST_F(FrmReImprimeNFTest, TheDeskCanBeLeftWithTheScreenOpen) {
    open("mCNF");
    menu.close();
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(server.addresses, Texts{});
    EXPECT_EQ(boxes.shown, Boxes{});
}

std::string spoken(QWidget& widget, QAccessible::Text what) {
    return QAccessible::queryAccessibleInterface(&widget)->text(what).toStdString();
}

TEST_F(FrmReImprimeNFTest, AReaderSpeaksTheNoteThatWasFoundAndTheSeries) {
    open("mRINF");
    find();
    const auto name = [this](const char* label) {
        return spoken(named<QWidget>(screen(), label), QAccessible::Name);
    };
    EXPECT_EQ(name("LBLNOTA"), "4567");
    EXPECT_EQ(name("LblTipoNf"), "VENDA <b>");
    EXPECT_EQ(name("LblDtEm"), "05/03/2012");
    EXPECT_EQ(name("LBLCliente"), "JOSÉ & <b>FILHOS");
    auto& list = named<QComboBox>(screen(), "cboSerie");
    EXPECT_EQ(spoken(list, QAccessible::Description), "Série única");
    list.showPopup();
    QAccessibleInterface* items = QAccessible::queryAccessibleInterface(list.view());
    EXPECT_EQ(items->child(1)->text(QAccessible::Name), QStringLiteral("Série única"));
    list.hidePopup();
}

TEST_F(FrmReImprimeNFTest, CtrlEnterIsTheScreensActAndCtrlWClosesIt) {
    server.on("sel_gera_nf", answers::status("x"));
    open("mRINF");
    find();
    menu.activateWindow();  // off-screen an open list takes the activation along
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &menu; }));
    named<QWidget>(screen(), "cmdPesquisar").setFocus();
    QTest::keyClick(screen().focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(server.queries(), (Texts{documentQuery}));
    EXPECT_EQ(boxes.texts(), std::vector<std::string>{"x"});
    named<QWidget>(screen(), "txtNF").setFocus();
    QTest::keyClick(screen().focusWidget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(server.queries().size(), 2U) << "from the field too, which by itself only beeps";
    QTest::keyClick(screen().focusWidget(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    EXPECT_TRUE(menusEnabled());
    EXPECT_TRUE(menu.isVisible());
}

}  // namespace
}  // namespace tarn::test
