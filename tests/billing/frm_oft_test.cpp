#include <gmock/gmock.h>

#include <QAccessible>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTimer>

#include "tests/billing/frm_oft_fixture.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

constexpr char sheetQuery[] =
    "comando=sel_impr_ordem_fatu&ID_ETB_TARN=6001&ID_ORD_FAT=1001&ServerName=SRV1";
const std::string orderDocument =
    answers::declaration +
    "<PRINCIPAL cod='0' status='OK'><ORDEM RAZAO='JOSÉ' DT_EMS_NF='12/03/2012' VENDEDOR='V' "
    "NR_CTRL_INT='C-1'/></PRINCIPAL>";

TEST_F(FrmOFTTest, OpensWithTheRightAndTheList) {
    server.on("sel_ordem_fatu", twoOrders);
    choose(menu, "mnuNF", "mOFT");
    EXPECT_EQ(server.queries(), (Texts{"Comando=verifica_direito_acesso&nId_Pes_Usu=77&ServerName="
                                       "SRV1&sTransacao=EMI001",
                                       listQuery}));
    EXPECT_EQ(screen().windowTitle(), QStringLiteral("Faturamento"));
    EXPECT_FALSE(named<QMenu>(menu, "mnuEtiquetas").isEnabled());
    EXPECT_FALSE(named<QMenu>(menu, "mnuNF").isEnabled());
    EXPECT_TRUE(named<QAction>(menu, "mnuDuplicata").isEnabled());
    EXPECT_EQ(timer().interval(), 60000);
    EXPECT_TRUE(timer().isActive());
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmOFTTest, ShowsTwelveColumnsAsRead) {
    open();
    ASSERT_EQ(rows(), 2);
    std::vector<std::string> first;
    std::vector<std::string> headings;
    for (int column = 1; column <= grid().model()->columnCount(); ++column) {
        first.push_back(cell(0, column));
        headings.push_back(grid()
                               .model()
                               ->headerData(column - 1, Qt::Horizontal, Qt::DisplayRole)
                               .toString()
                               .toStdString());
    }
    EXPECT_EQ(first, (Texts{"1001", "JOSÉ <b>", "MATRIZ", "VENDA", "12/03/2012", "77", "TT", "MM",
                            "obs", "12,500", "1.234.567,892", "0,000"}));
    EXPECT_EQ(headings,
              (Texts{"Ord. Fat.", "Cliente", "Estabelecimento", "Tipo de NF", "Dt. Emissão",
                     "Ord. Carga", "Transportadora", "Motorista", "", "", "", ""}));
    EXPECT_EQ(cell(1, 9), "");
    EXPECT_EQ(cell(1, 10), "1,000");
    EXPECT_EQ(cell(1, 11), "");
    EXPECT_EQ(grid().currentIndex().row(), 0);
}

TEST_F(FrmOFTTest, StandsInTheMiddleAtTheTop) {
    open();
    auto& area = named<QMdiArea>(menu, "mdiArea");
    QMdiSubWindow& window = *area.subWindowList().at(0);
    EXPECT_EQ(window.y(), 0);
    EXPECT_EQ(window.x(), (area.viewport()->width() - window.width()) / 2);
}

TEST_F(FrmOFTTest, ButtonsSpeakByToolTipAndName) {
    open();
    for (const char* name : {"cmdSelecionar", "CmdFechar", "CmdAtualizar", "CmdCanOft",
                             "cmdImprimirOF", "cmdDetOFT"}) {
        auto& button = named<QPushButton>(screen(), name);
        EXPECT_FALSE(button.icon().pixmap(24).isNull()) << name;
        EXPECT_FALSE(button.toolTip().isEmpty()) << name;
        EXPECT_FALSE(button.accessibleName().isEmpty()) << name;
        EXPECT_TRUE(button.text().isEmpty()) << name;
    }
    EXPECT_EQ(tabOrder(screen(), "sprDados", 7),
              (Texts{"sprDados", "cmdSelecionar", "CmdFechar", "CmdAtualizar", "CmdCanOft",
                     "cmdImprimirOF", "cmdDetOFT"}));
}

TEST_F(FrmOFTTest, AnEmptyListSaysNothingAndEachButtonAsksForAnOrder) {
    open(answers::rowset(""));
    EXPECT_TRUE(boxes.shown.empty());
    for (const char* button : {"cmdDetOFT", "CmdCanOft", "cmdImprimirOF", "cmdSelecionar"}) {
        click(screen(), button);
    }
    EXPECT_EQ(boxes.shown, (Boxes{selectOne, selectOne, selectOne, selectOne}));
    EXPECT_TRUE(server.addresses.empty());
    EXPECT_FALSE(timer().isActive()) << "the generation's first step switches it off";
}

TEST_F(FrmOFTTest, TheTimerAndTheButtonReadTheListAnew) {
    open();
    grid().setCurrentIndex(grid().model()->index(1, 0));
    tick();
    EXPECT_EQ(grid().currentIndex().row(), 0) << "the selection is lost";
    click(screen(), "CmdAtualizar");
    EXPECT_EQ(server.queries(), (Texts{listQuery, listQuery}));
}

TEST_F(FrmOFTTest, AFailedRefreshLeavesAnEmptyGridAndTheNextTickTriesAgain) {
    open();
    server.failOn("sel_ordem_fatu");
    tick();  // the answer of before is used up by this one
    tick();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0006")}));
    tick();
    EXPECT_EQ(boxes.shown.size(), 2U);
    EXPECT_TRUE(timer().isActive());
}

TEST_F(FrmOFTTest, TicksUnderTheBoxOfTheTickBeforeAreOneAfterIt) {
    open(answers::rowset(""));
    server.failOn("sel_ordem_fatu");
    tick();  // the answer of before is used up by this one
    server.addresses.clear();
    // A plain timer shows that the list's own came due under the box, several times.
    QTimer plain;
    int due = 0;
    QObject::connect(&plain, &QTimer::timeout, [&] { ++due; });
    boxes.onShow = [&](const Box& /*box*/) {
        if (boxes.shown.size() > 1) {
            return;
        }
        timer().setInterval(1);
        plain.start(3);
        EXPECT_TRUE(QTest::qWaitFor([&] { return due == 5; }));
        EXPECT_EQ(server.addresses.size(), 1U);
        timer().setInterval(3600000);
    };
    tick();
    EXPECT_EQ(server.addresses.size(), 1U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return boxes.shown.size() == 2; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return due >= 10; }));
    EXPECT_EQ(server.addresses.size(), 2U);
}

TEST_F(FrmOFTTest, CancelAsksSendsTellsAndRefreshes) {
    open();
    server.on("sp_can_oft", answers::status("OK"));
    click(screen(), "CmdCanOft");
    EXPECT_EQ(
        boxes.shown,
        (Boxes{Box{"Confirma o cancelamento da Ordem de Faturamento nº 1001 ?     ",
                   BoxIcon::Question, "Aviso", BoxButtons::YesNo},
               Box{"Ordem de Faturamento cancelada.      ", BoxIcon::Information, "Aviso "}}));
    EXPECT_EQ(server.queries(), (Texts{"comando=sp_can_oft&id_etb_tarn=6001&id_ord_fat=1001&"
                                       "id_ord_crg=77&ServerName=SRV1",
                                       listQuery}));
}

TEST_F(FrmOFTTest, ACancelAnsweredWithNoSendsNothing) {
    open();
    boxes.answers = {BoxAnswer::No};
    click(screen(), "CmdCanOft");
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_TRUE(server.addresses.empty());
}

TEST_F(FrmOFTTest, ACancelThatFailsOrIsRefusedLeavesTheList) {
    open();
    server.failOn("sp_can_oft").on("sp_can_oft", answers::status("Ordem em uso"));
    click(screen(), "CmdCanOft");
    click(screen(), "CmdCanOft");
    ASSERT_EQ(boxes.shown.size(), 5U);
    EXPECT_EQ(boxes.shown[1], transportFailure("0003"));
    EXPECT_EQ(boxes.shown[2],
              notice("Favor verificar se a Ordem de Faturamento nº 1001 foi cancelada. "));
    EXPECT_EQ(boxes.shown[4], exclamation("Ordem em uso"));
    EXPECT_EQ(server.addresses.size(), 2U) << "no refresh";
}

TEST_F(FrmOFTTest, TheSelectedRowCounts) {
    open();
    boxes.answers = {BoxAnswer::No};
    QTest::mouseClick(grid().viewport(), Qt::LeftButton, {},
                      grid().visualRect(grid().model()->index(1, 1)).center());
    click(screen(), "CmdCanOft");
    EXPECT_EQ(boxes.shown.at(0).text,
              "Confirma o cancelamento da Ordem de Faturamento nº 1002 ?     ");
}

TEST_F(FrmOFTTest, AnAcceptedObservationLetsTheMaintenanceGoOn) {
    open();
    observation("Linha 1&#10;Linha &lt;2&gt;");
    answerAlert("cmdOk", "Linha 1\nLinha <2>");
    modals.then("frmManutDetOFT", [](QWidget& dialog) { click(dialog, "cmdCancelar"); });
    click(screen(), "cmdDetOFT");
    EXPECT_EQ(server.queries(), (Texts{obsQuery}));
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmOFTTest, EachKindOfLineEndIsOneInTheAlert) {
    open();
    observation("a&#13;&#10;b&#13;c&#10;d&#13;&#10;&#13;&#10;e&#10;&#13;f");
    answerAlert("cmdCancelar", "a\nb\nc\nd\n\ne\n\nf");
    click(screen(), "cmdDetOFT");
}

TEST_F(FrmOFTTest, ACancelledObservationStopsMaintenanceAndSheet) {
    open();
    observation("x");
    for (const char* button : {"cmdDetOFT", "cmdImprimirOF"}) {
        answerAlert("cmdCancelar", "x");
        click(screen(), button);
    }
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_TRUE(spooler.calls.empty());
    EXPECT_EQ(server.queries(), (Texts{obsQuery, obsQuery}));
    EXPECT_EQ(session.ConfirmaMensagem, "N");
}

TEST_F(FrmOFTTest, TheAlertHasAPairOfButtonsOrOne) {
    open();
    observation("x");
    modals.then("frmMensagemAlerta", [](QWidget& alert) {
        EXPECT_EQ(alert.windowTitle(), QStringLiteral("Mensagem de Alerta"));
        EXPECT_EQ(named<QLabel>(alert, "Label1").text(),
                  QStringLiteral("Observação do(s) Pedido(s)"));
        EXPECT_TRUE(named<QWidget>(alert, "cmdCancelar").isVisible());
        EXPECT_FALSE(named<QWidget>(alert, "cmdVoltar").isVisible());
        click(alert, "cmdOk");
    });
    stock("ARROZ 5 KG");
    modals.then("frmMensagemAlerta", [](QWidget& alert) {
        EXPECT_EQ(named<QLabel>(alert, "Label1").text(),
                  QStringLiteral("Produto(s) sem saldo no estoque. Favor alimentar o estoque."));
        EXPECT_EQ(named<QPlainTextEdit>(alert, "txtMensagem").toPlainText(),
                  QStringLiteral("ARROZ 5 KG"));
        EXPECT_FALSE(named<QWidget>(alert, "cmdOk").isVisible());
        EXPECT_FALSE(named<QWidget>(alert, "cmdCancelar").isVisible());
        click(alert, "cmdVoltar");
    });
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(server.queries(), (Texts{obsQuery, stockQuery}));
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_FALSE(timer().isActive());
}

TEST_F(FrmOFTTest, AFailedObservationGoesOnWithWhatTextIsLeft) {
    open();
    server.failOn("Seleciona_Obs_Vnd_X_Ord");
    modals.then("frmManutDetOFT", [](QWidget& dialog) { click(dialog, "cmdCancelar"); });
    click(screen(), "cmdDetOFT");
    ASSERT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(boxes.shown[0], transportFailure("0004"));
    EXPECT_EQ(boxes.shown[1], notice("Aconteceu um erro na busca da observação da(s) venda(s). "
                                     "Cancele esta tela e tente novamente."));
    session.TextoMensagem = "da ordem anterior";
    answerAlert("cmdCancelar", "da ordem anterior");
    click(screen(), "cmdDetOFT");
    EXPECT_EQ(boxes.shown.size(), 4U);
}

TEST_F(FrmOFTTest, PrintsTheSheetOfTheSelectedOrder) {
    open();
    server.on("sel_impr_ordem_fatu", orderDocument);
    observation("x");
    answerAlert("cmdOk", "x");
    click(screen(), "cmdImprimirOF");
    EXPECT_EQ(server.queries(), (Texts{obsQuery, sheetQuery}));
    EXPECT_TRUE(boxes.shown.empty());
    ASSERT_EQ(spooler.jobs.size(), 1U);
    EXPECT_EQ(spooler.jobs[0].writes.at(3),
              " Cliente:  JOS\xC9" + std::string(46, ' ') + " Data: 12/03/2012\r\n");
    EXPECT_TRUE(spooler.jobs[0].closed);
    EXPECT_TRUE(timer().isActive());
}

TEST_F(FrmOFTTest, PrintsTheCompanysOwnSheet) {
    open();
    session.NCOMPANYCODE = 1361;
    server.on("sel_impr_ordem_fatu", orderDocument);
    click(screen(), "cmdImprimirOF");
    ASSERT_EQ(spooler.jobs.size(), 1U);
    EXPECT_EQ(spooler.jobs[0].writes.at(1), " C-1" + std::string(37, ' ') + "\r\n");
}

TEST_F(FrmOFTTest, ASheetThatCantBeHadIsToldAndTheDeskStaysAsItIs) {
    open();
    server.failOn("sel_impr_ordem_fatu")
        .on("sel_impr_ordem_fatu", answers::status("Ordem faturada"));
    click(screen(), "cmdImprimirOF");
    click(screen(), "cmdImprimirOF");
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0012"),
                                  notice("Houve um problema na transferência dos dados da Ordem "
                                         "de Faturamento nº 1001."),
                                  exclamation("Ordem faturada")}));
    EXPECT_TRUE(spooler.calls.empty());
    EXPECT_EQ(rows(), 2);
    EXPECT_EQ(server.queries(), (Texts{obsQuery, sheetQuery, obsQuery, sheetQuery}));
}

TEST_F(FrmOFTTest, AFailedObservationStillPrintsTheSheet) {
    open();
    server.failOn("Seleciona_Obs_Vnd_X_Ord").on("sel_impr_ordem_fatu", orderDocument);
    click(screen(), "cmdImprimirOF");
    EXPECT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(spooler.jobs.size(), 1U);
}

TEST_F(FrmOFTTest, ABrokenSheetEndsTheProgramAndKeepsWhatWasPrinted) {
    open();
    server.on("sel_impr_ordem_fatu",
              answers::declaration + "<PRINCIPAL a='0' s='OK'><CAB RAZAO='R'/><ITEM/></PRINCIPAL>");
    click(screen(), "cmdImprimirOF");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '91'", 0), 0U);
    EXPECT_EQ(boxes.shown[0].text.find("Nota Fiscal"), std::string::npos);
    EXPECT_EQ(end.status(), 3);
    ASSERT_EQ(spooler.jobs.size(), 1U);
    EXPECT_EQ(spooler.jobs[0].writes.size(), 9U);
    EXPECT_FALSE(spooler.jobs[0].ended);
}

TEST_F(FrmOFTTest, CmdFecharFreesTheMenus) {
    closesBy([&] { click(screen(), "CmdFechar"); });
}

TEST_F(FrmOFTTest, EscFreesTheMenus) {
    closesBy([&] {
        EXPECT_EQ(QApplication::focusWidget(), &grid());
        key(screen(), Qt::Key_Escape);
    });
}

TEST_F(FrmOFTTest, TheWindowsButtonFreesTheMenus) {
    closesBy([&] { named<QMdiArea>(menu, "mdiArea").subWindowList().at(0)->close(); });
}

TEST_F(FrmOFTTest, TheDeskCanBeLeftWithTheListOpen) {
    open();
    menu.close();
    EXPECT_TRUE(end.ended());
    EXPECT_TRUE(server.addresses.empty());
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmOFTTest, TheButtonsHaveKeys) {
    noteComesOut();
    open();
    const auto stroke = [this](Qt::Key key, Qt::KeyboardModifiers with) {
        server.addresses.clear();
        QTest::keyClick(grid().window()->focusWidget(), key, with);
    };
    stroke(Qt::Key_F5, Qt::NoModifier);
    EXPECT_EQ(server.queries(), (Texts{listQuery}));
    EXPECT_TRUE(grid().hasFocus()) << "the arrows go on moving in the list";
    stroke(Qt::Key_P, Qt::ControlModifier);
    EXPECT_EQ(server.queries().at(0), obsQuery);
    stroke(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_THAT(server.queries(), testing::Contains(noteQuery));
    EXPECT_EQ(named<QPushButton>(screen(), "CmdAtualizar").toolTip(),
              QStringLiteral("Atualizar a lista de ordens (F5)"));
}

TEST_F(FrmOFTTest, CtrlWClosesTheScreenAlone) {
    closesBy([&] { QTest::keyClick(&grid(), Qt::Key_W, Qt::ControlModifier); });
    EXPECT_TRUE(menu.isVisible());
}

TEST_F(FrmOFTTest, EscClosesAnOpenSearchBarFirst) {
    open();
    EXPECT_EQ(named<QLabel>(screen(), "count").text(), QStringLiteral("2 ordens"));
    QTest::keyClick(&grid(), Qt::Key_F, Qt::ControlModifier);
    auto& bar = named<QWidget>(screen(), "findBar");
    EXPECT_TRUE(bar.isVisible());
    key(*grid().window(), Qt::Key_Escape);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_NE(menu.findChild<FrmOFT*>(), nullptr);
    key(*grid().window(), Qt::Key_Escape);
    EXPECT_TRUE(closed());
}

TEST_F(FrmOFTTest, AReaderSpeaksTheHeadingsThatAreNotShown) {
    open();
    QAccessibleInterface* table = QAccessible::queryAccessibleInterface(&grid());
    std::vector<std::string> spoken;
    for (int child = 0; child < table->childCount(); ++child) {
        if (table->child(child)->role() == QAccessible::ColumnHeader) {
            spoken.push_back(table->child(child)->text(QAccessible::Name).toStdString());
        }
    }
    EXPECT_THAT(spoken, testing::IsSupersetOf(
                            {"Observação", "Quantidade de volumes", "Peso bruto", "Peso líquido"}));
}

}  // namespace
}  // namespace tarn::test
