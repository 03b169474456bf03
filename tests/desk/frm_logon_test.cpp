#include "desk/frm_logon.h"

#include <QPushButton>

#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class FrmLogonTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        logon.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&logon));
    }
    void fill(const char* company, const char* user, const char* password) {
        type(logon, "txtEmpresa", company);
        type(logon, "txtUsuario", user);
        type(logon, "txtSenha", password);
    }
    QLineEdit& password() { return named<QLineEdit>(logon, "txtSenha"); }

    FrmLogon logon{desk, nullptr};
};

TEST_F(FrmLogonTest, ShowsItsLabels) {
    for (const auto& [label, text] : {std::pair{"lblEmpresa", "Empresa"},
                                      {"lblUsuario", "Usuário"},
                                      {"lblSenha", "Senha"},
                                      {"lblStarting", "Inicialização"},
                                      {"lblMaker", "TARN Sistemas"}}) {
        EXPECT_EQ(logon.findChild<QWidget*>(QLatin1StringView(label))->property("text").toString(),
                  QString::fromUtf8(text));
    }
}

TEST_F(FrmLogonTest, PasswordShowsStarsAndTakesTwentyCharacters) {
    type(logon, "txtSenha", "123456789012345678901234");
    EXPECT_EQ(password().text(), QStringLiteral("12345678901234567890"));
    EXPECT_EQ(password().displayText(), QString(20, u'*'));
}

TEST_F(FrmLogonTest, TabOrderFollowsTheEye) {
    EXPECT_EQ(focused(logon), "txtEmpresa");
    EXPECT_EQ(tabOrder(logon, "txtEmpresa", 6), (Texts{"txtEmpresa", "txtUsuario", "txtSenha",
                                                       "btnLogin", "cmdFechar", "txtEmpresa"}));
}

TEST_F(FrmLogonTest, MissingFieldsAreToldOneByOne) {
    click(logon, "btnLogin");
    EXPECT_EQ(focused(logon), "txtEmpresa");
    type(logon, "txtEmpresa", "2041");
    click(logon, "btnLogin");
    EXPECT_EQ(focused(logon), "txtUsuario");
    type(logon, "txtUsuario", "maria");
    click(logon, "btnLogin");
    EXPECT_EQ(focused(logon), "txtSenha");
    EXPECT_EQ(boxes.shown,
              (Boxes{Box{"Empresa é um campo obrigatório     ", BoxIcon::Exclamation, "Aviso"},
                     Box{"Usuário é um campo obrigatório     ", BoxIcon::Exclamation, "Aviso"},
                     Box{"Senha é um campo obrigatório     ", BoxIcon::Exclamation, "Aviso"}}));
    EXPECT_TRUE(server.addresses.empty());
}

TEST_F(FrmLogonTest, BlanksPassTheMandatoryTest) {
    server.on("comando=LOGIN", answers::status("Empresa inválida"));
    fill(" ", " ", " ");
    click(logon, "btnLogin");
    EXPECT_EQ(server.queries(), (Texts{"comando=LOGIN&EMPRESA= &USUARIO= &SENHA= "}));
}

TEST_F(FrmLogonTest, EnterMovesOnAndAtLastLogsOn) {
    server.on("comando=LOGIN", answers::logon());
    keys(named<QLineEdit>(logon, "txtEmpresa"), "2041");
    key(logon, Qt::Key_Return);
    EXPECT_EQ(focused(logon), "txtUsuario");
    keys(named<QLineEdit>(logon, "txtUsuario"), "joão");
    key(logon, Qt::Key_Enter);
    EXPECT_EQ(focused(logon), "txtSenha");
    keys(password(), "x&y");
    EXPECT_TRUE(server.addresses.empty());
    key(logon, Qt::Key_Return);
    EXPECT_EQ(server.queries(), (Texts{"comando=LOGIN&EMPRESA=2041&USUARIO=joão&SENHA=x&y"}));
    EXPECT_EQ(logon.result(), QDialog::Accepted);
    EXPECT_FALSE(logon.isVisible());
    EXPECT_FALSE(end.ended());
}

TEST_F(FrmLogonTest, EnterInTheUserSelectsTheWholePassword) {
    fill("1", "2", "segredo");
    named<QLineEdit>(logon, "txtUsuario").setFocus();
    key(logon, Qt::Key_Return);
    EXPECT_EQ(focused(logon), "txtSenha");
    EXPECT_EQ(password().selectionLength(), 7);
}

TEST_F(FrmLogonTest, FillsTheSession) {
    server.on("comando=LOGIN", answers::logon("2161", "3383"));
    fill("1", "2", "3");
    click(logon, "btnLogin");
    EXPECT_EQ(session.NCOMPANYCODE, 2161);
    EXPECT_EQ(session.ID_ETB_TARN, 3383);
    EXPECT_EQ(session.UserCode, "77");
    EXPECT_EQ(session.SERVERNAME, "SRV1");
    EXPECT_EQ(session.COMPANYNAME, "Com, S,A,");
    EXPECT_EQ(session.DATA, "05/09/2012");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmLogonTest, ARefusalShowsTheServersWordsAndKeepsWhatWasTyped) {
    server.on("comando=LOGIN", answers::status("Senha inv&#225;lida &lt;b&gt;"));
    fill("2041", "maria", "errada");
    click(logon, "btnLogin");
    EXPECT_EQ(boxes.shown, (Boxes{Box{"Senha inválida <b>", BoxIcon::Exclamation}}));
    EXPECT_TRUE(logon.isVisible());
    EXPECT_EQ(focused(logon), "txtEmpresa");
    EXPECT_EQ(password().text(), QStringLiteral("errada"));
    click(logon, "btnLogin");
    EXPECT_EQ(server.addresses.size(), 2U);
}

TEST_F(FrmLogonTest, AFailedTransportShowsTwoBoxes) {
    server.failOn("comando=LOGIN");
    fill("2041", "maria", "x");
    click(logon, "btnLogin");
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0001"),
                     Box{"Houve um problema para efetuar o Login.", BoxIcon::Exclamation}}));
    EXPECT_EQ(focused(logon), "txtEmpresa");
    EXPECT_FALSE(end.ended());
}

TEST_F(FrmLogonTest, AnUnexpectedErrorIsToldAndEndsTheProgram) {
    server.on("comando=LOGIN", answers::declaration +
                                   "<PRINCIPAL cod='0' status='OK'><CAB NCOMPANYCODE='1' "
                                   "ID_ETB_TARN='1'/></PRINCIPAL>");
    fill("2041", "maria", "x");
    click(logon, "btnLogin");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(boxes.shown[0].title, "Aviso");
    const std::string start =
        "Aconteceu um erro inesperado no sistema. Por favor avise a RVL\nErro = ";
    EXPECT_EQ(boxes.shown[0].text.substr(0, start.size()), start);
    EXPECT_GT(boxes.shown[0].text.size(), start.size());
    EXPECT_TRUE(end.ended());
    EXPECT_FALSE(logon.isVisible());
}

TEST_F(FrmLogonTest, EscAndCmdFecharEndTheProgramAtOnce) {
    fill("2041", "maria", "x");
    key(logon, Qt::Key_Escape);
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(end.status(), 0);
    EXPECT_FALSE(logon.isVisible());
    EXPECT_TRUE(server.addresses.empty());
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(FrmLogonTest, CmdFecharEndsTheProgram) {
    click(logon, "cmdFechar");
    EXPECT_TRUE(end.ended());
}

TEST_F(FrmLogonTest, TheWindowsCloseButtonEndsTheProgram) {
    logon.close();
    EXPECT_TRUE(end.ended());
}

}  // namespace
}  // namespace tarn::test
