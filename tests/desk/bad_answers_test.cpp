// What a clerk meets when the server's answer is not what it should be: the real
// screens, the real loader, a real server on loopback.
#include <QPlainTextEdit>
#include <QTableView>
#include <QTimer>
#include <atomic>

#include "billing/frm_oft.h"
#include "desk/frm_logon.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/qt/tick.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/loopback_server.h"
#include "tests/support/network_desk.h"
#include "tests/support/screen_test.h"

namespace tarn::test {
namespace {

// The ways in which no document comes of a request.
struct NoDocument {
    const char* name;
    LoopbackReply reply;
    bool nobodyListens = false;
};

std::vector<NoDocument> noDocuments() {
    const std::size_t large = std::size_t{200} * 1024 * 1024;
    return {
        {"NobodyListens", {}, true},
        {"HungUp", LoopbackReply::hangUp()},
        {"BodyCut", LoopbackReply::cut(answers::declaration + "<R a='0' b='OK'><L OBSERV")},
        {"WholeDocumentCut", LoopbackReply::cut(answers::status("OK"))},
        {"Html", LoopbackReply::xml("<!DOCTYPE html><html><body>Erro<br></body></html>")},
        {"HtmlError", LoopbackReply::error(500, "<html><body><p>Erro</body></html>")},
        {"Empty", LoopbackReply::xml("")},
        {"UnknownEncoding",
         LoopbackReply::xml("<?xml version='1.0' encoding='x-nada'?><R a='0' b='OK'/>")},
        {"TwoHundredMegabytes", LoopbackReply::huge("<R>", large)},
    };
}

std::vector<NoDocument> noDocumentsOfAServer() {
    std::vector<NoDocument> kinds = noDocuments();
    std::erase_if(kinds, [](const NoDocument& kind) { return kind.nobodyListens; });
    return kinds;
}

void PrintTo(const NoDocument& kind, std::ostream* out) {
    *out << kind.name;
}

class BadAnswers : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        entered(1361, 9);
        http.on("sel_ordem_fatu", LoopbackReply::xml(answers::rowset("<z:row ID_ORD_FAT='31'/>")))
            .on("Seleciona_Obs_", LoopbackReply::xml(answers::observation("")))
            .on("SP_GERA_NF", LoopbackReply::xml(answers::generatedNote("555", "U")));
    }
    void answer(const std::string& command, const NoDocument& bad) {
        if (bad.nobodyListens) {
            http.closePort();
        } else {
            http.on(command, bad.reply);
        }
    }
    void openLogon() {
        logon.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&logon));
        type(logon, "txtEmpresa", "Loja & Cia");
        type(logon, "txtUsuario", "joão");
        type(logon, "txtSenha", "segredo");
    }
    void openOrders() {
        orders.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&orders));
        orders.load();
        ASSERT_EQ(rows(), 1);
    }
    // The logon stands as it was typed, ready for another try.
    void expectAnotherTry() {
        EXPECT_TRUE(logon.isVisible());
        EXPECT_EQ(focused(logon), "txtEmpresa");
        EXPECT_EQ(named<QLineEdit>(logon, "txtEmpresa").text(), QStringLiteral("Loja & Cia"));
        EXPECT_EQ(named<QLineEdit>(logon, "txtUsuario").text(), QStringLiteral("joão"));
        EXPECT_EQ(named<QLineEdit>(logon, "txtSenha").text(), QStringLiteral("segredo"));
        EXPECT_EQ(session.UserCode, "77") << "the session was touched";
        EXPECT_FALSE(end.ended());
    }
    int rows() { return named<QTableView>(orders, "sprDados").model()->rowCount(); }
    bool timerRuns() { return orders.findChild<Tick*>(QStringLiteral("Timer"))->isActive(); }
    std::size_t asked(const std::string& command) {
        std::size_t count = 0;
        for (const std::string& query : http.queries()) {
            count += query.find(command) != std::string::npos ? 1U : 0U;
        }
        return count;
    }

    LoopbackServer http;
    NetworkDesk network{desk, http.baseUrl()};
    FrmLogon logon{network.desk, nullptr};
    FrmOFT orders{network.desk};
};

class NoDocumentComes : public BadAnswers, public testing::WithParamInterface<NoDocument> {};

// Of a request that others went before, so that the server must be there.
class NoDocumentAmongOthers : public NoDocumentComes {};

TEST_P(NoDocumentComes, AtTheLogon) {
    openLogon();
    answer("comando=LOGIN", GetParam());
    click(logon, "btnLogin");
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0001"),
                     Box{"Houve um problema para efetuar o Login.", BoxIcon::Exclamation}}));
    expectAnotherTry();
}

TEST_P(NoDocumentComes, AtTheListOfOrders) {
    openOrders();
    answer("sel_ordem_fatu&ID_ETB_TARN=9", GetParam());
    click(orders, "CmdAtualizar");
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0006")}));
    EXPECT_EQ(rows(), 0);
    EXPECT_TRUE(timerRuns());
    EXPECT_FALSE(end.ended());
}

TEST_P(NoDocumentAmongOthers, AtTheGenerationItIsToBeCheckedByHandAndNotSentAgain) {
    http.on("SP_GERA_NF&ID_ETB_TARN=9", GetParam().reply);
    openOrders();
    click(orders, "cmdSelecionar");
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0004"),
                     Box{"Favor verificar se a Nota Fiscal foi gerada. Caso tenha sido gerada, "
                         "utilize a tela de Reimpressão de Nota Fiscal. ",
                         BoxIcon::Exclamation, "Aviso"}}));
    EXPECT_EQ(asked("SP_GERA_NF"), 1U);
    EXPECT_EQ(asked("sel_ordem_fatu"), 2U) << "the list is read anew";
    EXPECT_TRUE(timerRuns());
    EXPECT_TRUE(spooler.calls.empty());
}

TEST_P(NoDocumentAmongOthers, AtTheNotesDocumentTheReprintIsNamed) {
    http.on("sel_gera_nf", GetParam().reply);
    openOrders();
    click(orders, "cmdSelecionar");
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0005"),
                     Box{"Houve um problema na transferência dos dados da Nota Fiscal nº 555. "
                         "Utilize a tela de Reimpressão de Nota Fiscal.",
                         BoxIcon::Exclamation, "Aviso"}}));
    EXPECT_EQ(asked("sel_gera_nf"), 1U);
    EXPECT_TRUE(timerRuns());
    EXPECT_TRUE(spooler.calls.empty());
}

std::string nameOf(const testing::TestParamInfo<NoDocument>& tested) {
    return tested.param.name;
}

INSTANTIATE_TEST_SUITE_P(Screens, NoDocumentComes, testing::ValuesIn(noDocuments()), nameOf);
INSTANTIATE_TEST_SUITE_P(Screens, NoDocumentAmongOthers, testing::ValuesIn(noDocumentsOfAServer()),
                         nameOf);

TEST_F(BadAnswers, NoDeclarationAtTheLogonIsTheUnexpectedErrorAndTheEnd) {
    openLogon();
    http.on("comando=LOGIN", LoopbackReply::xml("<PRINCIPAL a='0' b='OK'><C/></PRINCIPAL>"));
    click(logon, "btnLogin");
    EXPECT_EQ(boxes.shown,
              (Boxes{Box{"Aconteceu um erro inesperado no sistema. Por favor avise a RVL\nErro = "
                         "Falta um dado na resposta do servidor",
                         BoxIcon::Critical, "Aviso"}}));
    EXPECT_EQ(end.status(), 3);
    EXPECT_FALSE(logon.isVisible());
}

TEST_F(BadAnswers, NoDeclarationAtTheGenerationIsTheReportWithTheWayToTheNote) {
    http.on("SP_GERA_NF&ID_ETB_TARN=9", LoopbackReply::xml("<R a='0' b='OK'/>"));
    openOrders();
    click(orders, "cmdSelecionar");
    EXPECT_EQ(boxes.shown,
              (Boxes{Box{reportText(ErrorAfterNote(RuntimeError(RuntimeErrorCode::ObjectVariable))),
                         BoxIcon::Critical}}));
    EXPECT_EQ(end.status(), 3);
}

TEST_F(BadAnswers, AStatusInLowerCaseOrWithMarkupIsARefusalShownAsItStands) {
    const std::pair<const char*, const char*> refusals[] = {
        {"ok", "ok"},
        {"OK ", "OK "},
        {"&lt;b&gt;Senha&lt;/b&gt; inv&#225;lida", "<b>Senha</b> inválida"},
        {"Cliente &lt;A &amp; B&gt; Ltda", "Cliente <A & B> Ltda"}};
    openLogon();
    openOrders();
    for (const auto& [sent, shown] : refusals) {
        http.on("comando=LOGIN", LoopbackReply::xml(answers::status(sent)));
    }
    for (const auto& [sent, shown] : refusals) {
        boxes.shown.clear();
        click(logon, "btnLogin");
        EXPECT_EQ(boxes.shown, (Boxes{Box{shown, BoxIcon::Exclamation}}));
        expectAnotherTry();
    }
    for (std::size_t i = 0; i < std::size(refusals); ++i) {
        http.on("SP_GERA_NF&ID_ETB_TARN=9", LoopbackReply::xml(answers::status(refusals[i].first)));
    }
    for (const auto& [sent, shown] : refusals) {
        boxes.shown.clear();
        click(orders, "cmdSelecionar");
        EXPECT_EQ(boxes.shown, (Boxes{Box{shown, BoxIcon::Exclamation}}));
        EXPECT_FALSE(timerRuns());
    }
}

TEST_F(BadAnswers, MarkupReachesTheRealBoxAsPlainText) {
    QtMessageBoxes real;
    Environment withBoxes{network.blocking, spooler, printer, real, clock, machine, http.baseUrl()};
    DeskContext shownDesk{withBoxes, session, end};
    FrmLogon screen(shownDesk, nullptr);
    screen.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    for (const char* field : {"txtEmpresa", "txtUsuario", "txtSenha"}) {
        type(screen, field, "x");
    }
    http.on("comando=LOGIN",
            LoopbackReply::xml(answers::status("Cliente &lt;A &amp; B&gt; &lt;i&gt;Ltda")));
    modals.then("MessageBox", [](QWidget& box) {
        EXPECT_EQ(named<QPlainTextEdit>(box, "text").toPlainText(),
                  QStringLiteral("Cliente <A & B> <i>Ltda"));
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        key(box, Qt::Key_Escape);
    });
    click(screen, "btnLogin");
    EXPECT_EQ(modals.taken(), 1);
}

TEST_F(BadAnswers, AHundredTriesAtTheLogonAndTheNextOneGetsIn) {
    openLogon();
    std::atomic<int> requests{0};
    http.setHandler([&requests](const std::string&) {
        const int count = ++requests;
        if (count % 2 == 0) {
            return LoopbackReply::cut(answers::status("OK"));
        }
        return LoopbackReply::xml(count > 100 ? answers::logon("2041", "1")
                                              : answers::status("Senha inválida"));
    });
    for (int tries = 0; tries < 100; ++tries) {
        click(logon, "btnLogin");
        expectAnotherTry();
    }
    EXPECT_EQ(boxes.shown.size(), 150U);
    click(logon, "btnLogin");
    EXPECT_EQ(logon.result(), QDialog::Accepted);
    EXPECT_EQ(session.NCOMPANYCODE, 2041);
    EXPECT_EQ(http.queries().size(), 101U);
}

}  // namespace
}  // namespace tarn::test
