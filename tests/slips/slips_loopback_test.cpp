// One whole run over real HTTP: a server on loopback, the real loader.

#include <thread>

#include "tests/slips/slip_screen_test.h"
#include "tests/support/loopback_server.h"
#include "tests/support/network_desk.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class SlipsOverTheNetwork : public SlipScreenTest {
protected:
    void SetUp() override {
        SlipScreenTest::SetUp();
        menu.hide();
        const auto answer = [this](const char* part, const std::string& body) {
            http.on(part, LoopbackReply::xml(body));
        };
        answer("sel_filiais", answers::rowset("<z:row SG_FIL='MATRIZ' ID_ETB_TARN='9'/>"));
        answer("sel_carteira&", answers::rowset("<z:row DC_CRT_COB='57' ID_CRT_COB='5'/>"));
        answer("sel_carteira_cob",
               answers::rowset("<z:row ID_CRT_COB='5' ID_PES_BAN='1016' NR_CRT_CNAB='57' "
                               "CD_AGE_BAN_CNAB='1123' NR_CCOR_CNAB='456789'/>"));
        answer("sel_boleto", answers::rowset(line("Nº 1|A") + line("2")));
        answer("sel_dados_empresa", answers::branch("F"));
        desk.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&desk));
    }
    void withNetworkScreen(const std::function<void(QWidget&)>& use) {
        modals.then("frmPesqBoleto", [use](QWidget& screen) {
            use(screen);
            if (screen.isVisible()) {
                click(screen, "cmdVoltar");
            }
        });
        choose(desk, "mnuBoleto");
    }
    std::vector<std::string> slips() {
        std::vector<std::string> all;
        for (const RecordingSpooler::Job& job : spooler.jobs) {
            if (job.bytes().find("NOSSO NUMERO") != std::string::npos) {
                all.push_back(job.bytes());
            }
        }
        return all;
    }

    LoopbackServer http;
    NetworkDesk network{ScreenTest::desk, http.baseUrl()};
    MDIMenu desk{network.desk};
};

// The writes meet an HTTP error, a connection that hangs up and a body that is no XML.
TEST_F(SlipsOverTheNetwork, AWholeRunWithWritesThatFail) {
    http.on("altera_docto_cob", LoopbackReply::error(500, "ERRO"))
        .on("altera_docto_cob", LoopbackReply::hangUp())
        .on("insere_car_cob", LoopbackReply::xml("nada de XML"))
        .on("insere_car_cob", LoopbackReply::xml(answers::status("OK")));
    withNetworkScreen([&](QWidget& screen) {
        fillIn(screen);
        click(screen, "cmdPesquisar");
        grid::clickHeading(grid(screen), 1);
        type(screen, "txtNr_Bol_Banc", "1234");
        click(screen, "cmdImprimir");
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "");
    });
    EXPECT_EQ(
        http.queries(),
        (Texts{
            branchesQuery, portfoliosQuery,
            "comando=sel_boleto&ID_EMP_TARN=2161&ID_PES_CLI=&ID_ETB_TARN=&ID_CRT_COB=5&DT_VNC_DE="
            "&DT_VNC_ATE=31/03/2012&DT_EMS_DE=01/02/2012&DT_EMS_ATE=&ID_PES_USU=77&IC_INC_CAR=N"
            "&ServerName=SRV1",
            wallet57Query,
            "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=N%BA%201%7CA"
            "&NR_BOL_BANC=1234&ServerName=SRV1",
            "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=3381&ID_TIP_DOC=201"
            "&NR_DOC=N%BA%201%7CA&ID_CRT_COB=5&NR_BOL_BANC=1234&ID_PES_USU=77&ServerName=SRV1",
            "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=2&NR_BOL_BANC=1235"
            "&ServerName=SRV1",
            "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=2"
            "&ID_CRT_COB=5&NR_BOL_BANC=1235&ID_PES_USU=77&ServerName=SRV1",
            deskQuery}));
    EXPECT_EQ(slips().size(), 2U);
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(SlipsOverTheNetwork, AServerThatGoesAwayAfterThePortfolioIsNotNoticed) {
    withNetworkScreen([&](QWidget& screen) {
        fillIn(screen);
        click(screen, "cmdPesquisar");
        grid::clickHeading(grid(screen), 1);
        type(screen, "txtNr_Bol_Banc", "1234");
        bool firstOpening = true;
        http.setHandler([&](const std::string& line) {
            if (line.find("sel_carteira_cob") != std::string::npos && firstOpening) {
                firstOpening = false;
                return LoopbackReply::xml(
                    answers::rowset("<z:row ID_CRT_COB='5' NR_CRT_CNAB='57' "
                                    "CD_AGE_BAN_CNAB='1123' NR_CCOR_CNAB='456789'/>"));
            }
            return line.find("sel_dados_empresa") == std::string::npos
                       ? LoopbackReply::hangUp()
                       : LoopbackReply::xml(answers::branch("F"));
        });
        click(screen, "cmdImprimir");
    });
    EXPECT_EQ(slips().size(), 2U);
    EXPECT_EQ(boxes.shown, Boxes{});
}

// While a write is under way the slip's job holds its set-up alone.
TEST_F(SlipsOverTheNetwork, TheSlipWaitsForTheServer) {
    withNetworkScreen([&](QWidget& screen) {
        fillIn(screen);
        click(screen, "cmdPesquisar");
        grid::click(grid(screen), 1, 1);
        type(screen, "txtNr_Bol_Banc", "1234");
        LoopbackReply late = LoopbackReply::xml(answers::status("OK"));
        late.waits = true;
        http.on("altera_docto_cob", late);
        std::size_t written = 0;
        std::thread frees([&] {
            http.waitForRequests(5);
            written = spooler.writes;
            http.release();
        });
        click(screen, "cmdImprimir");
        frees.join();
        EXPECT_EQ(written, 3U);
    });
    EXPECT_EQ(slips().size(), 1U);
}

}  // namespace
}  // namespace tarn::test
