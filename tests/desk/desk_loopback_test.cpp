// The desk over real HTTP: a server on loopback, the real loader.
#include <QLabel>
#include <QTableView>
#include <QTimer>

#include "billing/frm_oft.h"
#include "desk/mdi_menu.h"
#include "tests/support/answers.h"
#include "tests/support/loopback_server.h"
#include "tests/support/network_desk.h"
#include "tests/support/screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class DeskOverHttp : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        http.on("VERSAO_TARN_EMISSAO", LoopbackReply::xml(answers::version("OK")))
            .on("comando=LOGIN", LoopbackReply::xml(answers::logon("2161", "6001")))
            .on("sel_dados_empresa", LoopbackReply::xml(answers::branch("Filial São Paulo")))
            .on("verifica_direito_acesso", LoopbackReply::xml(answers::status("OK")))
            .on("sel_ordem_fatu", LoopbackReply::xml(answers::rowset("<z:row ID_ORD_FAT='31'/>")));
        modals.then("FrmLogon", [](QWidget& logon) {
            type(logon, "txtEmpresa", "Pão & Cia");
            type(logon, "txtUsuario", "joão");
            type(logon, "txtSenha", "a#b");
            key(logon, Qt::Key_Return);
        });
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
        menu.load();
    }

    LoopbackServer http;
    NetworkDesk network{desk, http.baseUrl()};
    MDIMenu menu{network.desk};
};

TEST_F(DeskOverHttp, LogsOnAndListsTheOrders) {
    choose(menu, "mnuNF", "mOFT");
    EXPECT_EQ(
        http.queries(),
        (Texts{"comando=VERSAO_TARN_EMISSAO&Versao=07/01/2009",
               "comando=LOGIN&EMPRESA=P%E3o%20&%20Cia&USUARIO=jo%E3o&SENHA=a%23b",
               "comando=sel_dados_empresa&Id_Etb_Tarn=6001&ServerName=SRV1",
               "Comando=verifica_direito_acesso&nId_Pes_Usu=77&ServerName=SRV1&sTransacao=EMI001",
               "comando=sel_ordem_fatu&ID_ETB_TARN=6001&ServerName=SRV1"}));
    EXPECT_EQ(named<QLabel>(menu, "Panel2").text(), QStringLiteral("Filial São Paulo"));
    EXPECT_EQ(named<QTableView>(menu, "sprDados").model()->rowCount(), 1);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(DeskOverHttp, AHangingServerHoldsTheDeskUntilItAnswers) {
    choose(menu, "mnuNF", "mOFT");
    LoopbackReply late = LoopbackReply::xml(answers::rowset(""));
    late.waits = true;
    http.on("sel_ordem_fatu", LoopbackReply::xml(answers::rowset(""))).on("sel_ordem_fatu", late);
    click(menu, "CmdAtualizar");
    const std::size_t before = http.queries().size();
    QTimer::singleShot(0, &menu, [this] {
        click(menu, "CmdAtualizar");
        click(menu, "CmdFechar");
        http.release();
    });
    click(menu, "CmdAtualizar");
    EXPECT_EQ(http.queries().size(), before + 1);
    EXPECT_NE(menu.findChild<FrmOFT*>(), nullptr);
    EXPECT_TRUE(menu.isVisible());
    EXPECT_FALSE(end.ended());
}

// The answer never comes: without an end of the request this test wouldn't end.
TEST_F(DeskOverHttp, ClosingTheDeskGivesUpTheRequestUnderWay) {
    choose(menu, "mnuNF", "mOFT");
    http.setHandler([](const std::string&) {
        LoopbackReply reply = LoopbackReply::xml("");
        reply.waits = true;
        return reply;
    });
    QTimer::singleShot(0, &menu, [this] { menu.close(); });
    click(menu, "CmdAtualizar");
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(end.status(), 0);
}

TEST_F(DeskOverHttp, AServerThatWentAwayIsToldAndTheDeskGoesOn) {
    choose(menu, "mnuNF", "mOFT");
    http.closePort();
    click(menu, "CmdAtualizar");
    EXPECT_EQ(boxes.texts(), (Texts{"ERRO Tarn0006 - Não foi possível obter os dados da Internet. "
                                    "Verifique a conexão com a Internet."}));
    EXPECT_FALSE(end.ended());
}

}  // namespace
}  // namespace tarn::test
