// From the selected order to the printed note, on the screen: the boxes, the requests,
// the timer and the paper of every way a generation can end.
#include <gmock/gmock.h>

#include "tests/billing/frm_oft_fixture.h"
#include "tests/notes/note_files.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class GenerateNoteScreen : public FrmOFTTest {
protected:
    // A company whose form is known byte for byte; the note's number is 4567.
    FrmOFT& openAt1361(const char* noteDocument) {
        FrmOFT& opened = open();
        session.NCOMPANYCODE = 1361;
        server.on("SP_GERA_NF", answers::generatedNote("4567", "U"));
        server.on("sel_gera_nf", noteFile(noteDocument));
        return opened;
    }
    void expectReport(const std::string& number, bool tellsOfANote) {
        ASSERT_EQ(boxes.shown.size(), 1U);
        const Box& report = boxes.shown[0];
        EXPECT_EQ(report.icon, BoxIcon::Critical);
        EXPECT_EQ(report.title, "TarnEmissao");
        EXPECT_EQ(report.text.rfind("Erro em tempo de execução '" + number + "':\r\r", 0), 0U)
            << report.text;
        EXPECT_EQ(report.text.find("tela de Reimpressão de Nota Fiscal") != std::string::npos,
                  tellsOfANote)
            << report.text;
        EXPECT_EQ(end.status(), 3);
        EXPECT_FALSE(timer().isActive());
    }
};

TEST_F(GenerateNoteScreen, GeneratesTheNoteAndRefreshes) {
    open();
    noteComesOut();
    bool timerRan = true;
    modals.then("frmMensagemAlerta", [&](QWidget& alert) {
        timerRan = timer().isActive();
        click(alert, "cmdOk");
    });
    observation("x");
    click(screen(), "cmdSelecionar");
    EXPECT_FALSE(timerRan) << "no refresh while the generation runs";
    EXPECT_EQ(server.queries(), (Texts{obsQuery, stockQuery, noteQuery, documentQuery, listQuery}));
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_TRUE(timer().isActive());
}

TEST_F(GenerateNoteScreen, ARefusedObservationGeneratesNothing) {
    open();
    noteComesOut();
    observation("x");
    answerAlert("cmdCancelar", "x");
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(server.queries(), (Texts{obsQuery}));
    EXPECT_FALSE(timer().isActive());
    click(screen(), "CmdAtualizar");
    EXPECT_EQ(server.queries().back(), listQuery);
    EXPECT_FALSE(timer().isActive());
}

TEST_F(GenerateNoteScreen, AnUnknownGenerationIsToldAndTheListRead) {
    open();
    server.failOn("SP_GERA_NF");
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0004"),
                     notice("Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido gerada, "
                            "utilize a tela de Reimpressão de Nota Fiscal. ")}));
    EXPECT_EQ(server.queries().back(), listQuery);
    EXPECT_TRUE(timer().isActive());
}

TEST_F(GenerateNoteScreen, ARefusedGenerationShowsOneBoxAndLeavesTheList) {
    open();
    server.on("SP_GERA_NF", answers::status("Limite de crédito"));
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown, (Boxes{exclamation("Limite de crédito")}));
    EXPECT_EQ(server.queries().back(), noteQuery);
    EXPECT_EQ(rows(), 2);
    EXPECT_FALSE(timer().isActive());
}

TEST_F(GenerateNoteScreen, ALostDocumentIsToldAndTheListRead) {
    open();
    noteComesOut();
    server.failOn("sel_gera_nf&ID_ETB_TARN=6001");
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0005"),
                     notice("Houve um problema na transferência dos dados da Nota Fiscal nº 555. "
                            "Utilize a tela de Reimpressão de Nota Fiscal.")}));
    EXPECT_EQ(server.queries().back(), listQuery);
    EXPECT_TRUE(timer().isActive());
}

TEST_F(GenerateNoteScreen, TheCustomerWithoutANumberEndsTheProgramWithTheReport) {
    open();
    noteComesOut();
    session.NCOMPANYCODE = 2161;
    session.ID_ETB_TARN = 3383;
    click(screen(), "cmdSelecionar");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
    EXPECT_EQ(
        boxes.shown[0].text.rfind("Erro em tempo de execução '424':\r\rO objeto é obrigatório", 0),
        0U)
        << boxes.shown[0].text;
    EXPECT_NE(boxes.shown[0].text.find("tela de Reimpressão de Nota Fiscal"), std::string::npos);
    EXPECT_EQ(end.status(), 3);
    EXPECT_TRUE(spooler.jobs.empty());
    EXPECT_FALSE(timer().isActive());
}

TEST_F(GenerateNoteScreen, AnUnreadableObservationEndsTheProgramWithNoWordOfANote) {
    open();
    server.on("Seleciona_Obs_Vnd_X_Ord", "<R a='0' b='OK'/>");
    click(screen(), "cmdSelecionar");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text.find("Nota Fiscal"), std::string::npos);
    EXPECT_EQ(end.status(), 3);
}

TEST_F(GenerateNoteScreen, ThePrintedNoteIsTheFormsByteForByte) {
    openAt1361("note_1361.xml");
    ASSERT_FALSE(noteFile("note_1361.prn").empty());
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown, Boxes{});
    ASSERT_EQ(spooler.jobs.size(), 2U);
    EXPECT_EQ(spooler.bytes(0), " \x0F");
    EXPECT_EQ(spooler.bytes(1), noteFile("note_1361.prn"));
    for (const auto& job : spooler.jobs) {
        EXPECT_TRUE(job.ended && job.closed);
    }
    EXPECT_EQ(server.queries(), (Texts{obsQuery, stockQuery, noteQuery,
                                       "comando=sel_gera_nf&ID_ETB_TARN=6001&ID_NF_KESTO=4567&"
                                       "CD_SER_NF=U&ServerName=SRV1",
                                       listQuery}));
    EXPECT_TRUE(timer().isActive());
}

// The second click comes before the user can have seen the new list.
TEST_F(GenerateNoteScreen, ADoubleClickGeneratesOnce) {
    openAt1361("note_1361.xml");
    auto& button = named<QWidget>(screen(), "cmdSelecionar");
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseDClick(&button, Qt::LeftButton);
    QTest::mouseRelease(&button, Qt::LeftButton);
    EXPECT_THAT(server.queries(), testing::Contains(noteQuery).Times(1));
    EXPECT_EQ(spooler.jobs.size(), 2U);
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(spooler.jobs.size(), 4U) << "a click of its own counts";
}

// The list's first order is selected by then: whoever saw nothing happen would issue its
// note.
TEST_F(GenerateNoteScreen, AnImpatientClickAfterTheNoteGeneratesNone) {
    openAt1361("note_1361.xml");
    click(screen(), "cmdSelecionar");
    QTest::mouseClick(&named<QWidget>(screen(), "cmdSelecionar"), Qt::LeftButton);
    EXPECT_EQ(spooler.jobs.size(), 2U);
}

TEST_F(GenerateNoteScreen, AHeldKeyGeneratesOnce) {
    openAt1361("note_1361.xml");
    for (const Qt::Key held : {Qt::Key_Return, Qt::Key_Space}) {
        spooler.jobs.clear();
        auto& button = named<QWidget>(screen(), "cmdSelecionar");
        button.setFocus();
        QTest::keyPress(&button, held);
        for (int again = 0; again < 3; ++again) {
            QKeyEvent repeated(QEvent::KeyPress, held, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(&button, &repeated);
        }
        QTest::keyRelease(&button, held);
        EXPECT_EQ(spooler.jobs.size(), 2U) << held;
    }
}

TEST_F(GenerateNoteScreen, AnErrorOfTheFormIsReportedWithTheWayToTheNote) {
    openAt1361("note_wrong_quantity.xml");
    click(screen(), "cmdSelecionar");
    expectReport("13", true);
    ASSERT_EQ(spooler.jobs.size(), 2U);
    const std::string golden = noteFile("note_1361.prn");
    EXPECT_EQ(spooler.bytes(1), golden.substr(0, golden.find(" P-002")));
    EXPECT_FALSE(spooler.jobs[1].ended);
    EXPECT_NE(server.queries().back(), listQuery);
}

TEST_F(GenerateNoteScreen, ObservationsThatTheServerRefusesStopBeforeTheNote) {
    open();
    server.on("Seleciona_Obs_Vnd_X_Ord", answers::status("ok"));
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown, (Boxes{exclamation("ok")}));
    EXPECT_EQ(server.queries(), (Texts{obsQuery}));
    EXPECT_FALSE(timer().isActive());
}

TEST_F(GenerateNoteScreen, AStockCheckThatTheServerRefusesStopsBeforeTheNote) {
    open();
    server.on("Seleciona_Obs_Ord_X_Est", answers::status("Cliente &lt;A &amp; B&gt; Ltda"));
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown, (Boxes{exclamation("Cliente <A & B> Ltda")}));
    EXPECT_EQ(server.queries(), (Texts{obsQuery, stockQuery}));
    EXPECT_FALSE(timer().isActive());
}

TEST_F(GenerateNoteScreen, ObservationsOutOfReachDontStopTheNote) {
    open();
    noteComesOut();
    server.failOn("Seleciona_Obs_Vnd_X_Ord").failOn("Seleciona_Obs_Ord_X_Est");
    click(screen(), "cmdSelecionar");
    const Box searchFailed = notice(
        "Aconteceu um erro na busca da observação da(s) venda(s). Cancele esta tela e tente "
        "novamente.");
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0004"), searchFailed, transportFailure("0004"),
                                  searchFailed}));
    EXPECT_EQ(server.queries(), (Texts{obsQuery, stockQuery, noteQuery, documentQuery, listQuery}));
    EXPECT_TRUE(timer().isActive());
}

// Esc and the window's own button leave the alert unanswered, which is a refusal.
TEST_F(GenerateNoteScreen, AnAlertLeftUnansweredGeneratesNothing) {
    open();
    noteComesOut();
    observation("x");
    const std::function<void(QWidget&)> leaves[] = {
        [](QWidget& alert) { key(alert, Qt::Key_Escape); }, [](QWidget& alert) { alert.close(); }};
    for (const auto& leave : leaves) {
        session.ConfirmaMensagem = "S";
        modals.then("frmMensagemAlerta", leave);
        click(screen(), "cmdSelecionar");
    }
    EXPECT_EQ(server.queries(), (Texts{obsQuery, obsQuery}));
    EXPECT_FALSE(timer().isActive());
}

TEST_F(GenerateNoteScreen, EnterAnswersAnAlertOnlyByTheButtonThatHasTheFocus) {
    open();
    noteComesOut();
    observation("x");
    stock("ARROZ");
    for (const char* button : {"cmdOk", "cmdVoltar"}) {
        modals.then("frmMensagemAlerta", [button](QWidget& alert) {
            key(alert, Qt::Key_Return);
            EXPECT_TRUE(alert.isVisible()) << "the text has the focus";
            named<QWidget>(alert, button).setFocus();
            key(alert, Qt::Key_Return);
        });
    }
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(server.queries(), (Texts{obsQuery, stockQuery}));
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_FALSE(timer().isActive());
}

TEST_F(GenerateNoteScreen, ARefusedDocumentIsToldInTheServersWords) {
    open();
    noteComesOut();
    server.on("sel_gera_nf&ID_ETB_TARN=6001", answers::status("Nota em uso"));
    click(screen(), "cmdSelecionar");
    EXPECT_EQ(boxes.shown, (Boxes{exclamation("Nota em uso")}));
    EXPECT_EQ(server.queries().back(), documentQuery);
    EXPECT_EQ(rows(), 2);
    EXPECT_TRUE(spooler.calls.empty());
    EXPECT_FALSE(timer().isActive());
}

TEST_F(GenerateNoteScreen, AGenerationWhoseStatusCantBeReadTellsOfTheNote) {
    open();
    server.on("SP_GERA_NF", "<R a='0' b='OK'><NF i='555'/><S c='U'/></R>");
    click(screen(), "cmdSelecionar");
    expectReport("91", true);
    EXPECT_EQ(server.queries().back(), noteQuery);
}

TEST_F(GenerateNoteScreen, ADocumentWhoseStatusCantBeReadTellsOfTheNote) {
    open();
    noteComesOut();
    server.on("sel_gera_nf&ID_ETB_TARN=6001", "<R a='0' b='OK'/>");
    click(screen(), "cmdSelecionar");
    expectReport("91", true);
    EXPECT_TRUE(spooler.calls.empty());
}

}  // namespace
}  // namespace tarn::test
