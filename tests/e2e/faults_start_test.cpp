// A server that fails while the desk starts: at the version, the logon, the
// establishment's name and the rights.
#include <gmock/gmock.h>

#include <QLabel>
#include <chrono>

#include "billing/frm_oft.h"
#include "tests/e2e/fault_desk.h"
#include "tests/support/boxes.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

const Box noVersion = requestFailure(
    "Não consegui verificar a versão do TarnEMISSAO porque não tive acesso à internet!!!");
const Box noLogon{"Houve um problema para efetuar o Login.", BoxIcon::Exclamation, "TarnEmissao"};

class StartFaults : public FaultDesk {
protected:
    // The version check and, where the gate lets it open, the logon, left by Esc.
    void start(bool opens) {
        if (opens) {
            modals.then("FrmLogon", [this](QWidget& logon) {
                EXPECT_FALSE(end.ended());
                key(logon, Qt::Key_Escape);
            });
        }
        menu.load();
    }
    void expectTyped(const QWidget& logon) {
        EXPECT_TRUE(logon.isVisible());
        EXPECT_EQ(text(logon, "txtEmpresa"), "1361");
        EXPECT_EQ(text(logon, "txtUsuario"), "clara");
        EXPECT_EQ(text(logon, "txtSenha"), "pratica");
        EXPECT_EQ(focused(logon), "txtEmpresa");
        EXPECT_EQ(session.SERVERNAME, "");
        EXPECT_FALSE(end.ended());
    }
    std::string branch() { return named<QLabel>(menu, "Panel2").text().toStdString(); }
};

class VersionFaults : public StartFaults, public testing::WithParamInterface<FaultCase> {};

TEST_P(VersionFaults, OnlyAnUnansweredCheckLetsTheProgramGoOn) {
    const FaultCase& fault = GetParam();
    fail("VERSAO_TARN_EMISSAO", fault);
    const bool outdated = fault.left == Left::Refusal || fault.left == Left::NoDeclaration;
    start(!outdated);
    EXPECT_EQ(takeCommands(), (Texts{"VERSAO_TARN_EMISSAO"}));
    if (fault.left == Left::All) {
        EXPECT_EQ(boxes.shown, Boxes{});
    } else if (!outdated) {
        EXPECT_EQ(boxes.shown, (Boxes{noVersion}));
    } else {
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Information);
        EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
        EXPECT_THAT(boxes.shown[0].text,
                    testing::StartsWith("          TARNEMISSAO DESATUALIZADO ! \r       Data da "
                                        "Versão TarnEmissao = 07/01/2009\r\r"));
    }
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(end.status(), 0);
}

std::string nameOf(const testing::TestParamInfo<FaultCase>& tested) {
    std::string name = tested.param.name;
    std::erase(name, '-');
    return name;
}

INSTANTIATE_TEST_SUITE_P(Faults, VersionFaults, testing::ValuesIn(faultCases), nameOf);

TEST_F(StartFaults, ALogonThatFailsKeepsWhatWasTypedAndTheNextTryGetsIn) {
    modals.then("FrmLogon", [this](QWidget& logon) {
        typeLogon(logon);
        std::vector<FaultCase> lost = leaving({Left::Nothing});
        lost.push_back(hugeAnswer);
        under({"LOGIN"}, lost, [&](const FaultCase&) {
            click(logon, "btnLogin");
            EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0001"), noLogon}));
            EXPECT_EQ(takeCommands(), (Texts{"LOGIN"}));
            expectTyped(logon);
        });
        under({"LOGIN"}, leaving({Left::Refusal}), [&](const FaultCase&) {
            click(logon, "btnLogin");
            EXPECT_EQ(boxes.shown, (Boxes{refusal}));
            expectTyped(logon);
        });
        under({"LOGIN"}, leaving({Left::All}), [&](const FaultCase&) {
            const auto begin = std::chrono::steady_clock::now();
            click(logon, "btnLogin");
            EXPECT_GE(std::chrono::steady_clock::now() - begin, slowWait);
            EXPECT_FALSE(logon.isVisible());
        });
    });
    menu.load();
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_EQ(session.SERVERNAME, "DADOS1361");
    EXPECT_EQ(branch(), "Três Irmãos - Matriz São Paulo");
}

TEST_F(StartFaults, ALogonWithoutADeclarationIsTheUnexpectedErrorAndTheEnd) {
    modals.then("FrmLogon", [this](QWidget& logon) {
        typeLogon(logon);
        page.fail("LOGIN", {FaultKind::NoDeclaration, {}});
        click(logon, "btnLogin");
        EXPECT_FALSE(logon.isVisible());
    });
    menu.load();
    EXPECT_EQ(boxes.shown, (Boxes{Box{"Aconteceu um erro inesperado no sistema. Por favor avise a "
                                      "RVL\nErro = Falta um dado na resposta do servidor",
                                      BoxIcon::Critical, "Aviso"}}));
    EXPECT_EQ(takeCommands(), (Texts{"VERSAO_TARN_EMISSAO", "LOGIN"}));
    EXPECT_EQ(end.status(), 3);
}

class NameFaults : public StartFaults, public testing::WithParamInterface<FaultCase> {};

// The desk asks for the establishment's name as soon as it stands before the user, and
// on a failure there it ends.
TEST_P(NameFaults, TheNameThatDoesntComeEndsTheProgram) {
    const FaultCase& fault = GetParam();
    fail("sel_dados_empresa", fault);
    modals.then("FrmLogon", [](QWidget& logon) {
        typeLogon(logon);
        click(logon, "btnLogin");
    });
    QTimer::singleShot(0, &menu, [this] { menu.load(); });
    ASSERT_TRUE(QTest::qWaitFor([this] { return end.ended() || !branch().empty(); }));
    if (fault.left == Left::Nothing) {
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9, endReport()}));
        EXPECT_EQ(end.status(), 3);
    } else if (fault.left == Left::Refusal) {
        EXPECT_EQ(boxes.shown, (Boxes{endReport()})) << "no row";
        EXPECT_EQ(end.status(), 3);
    } else {
        EXPECT_EQ(boxes.shown, Boxes{}) << "a list has no status";
        EXPECT_EQ(branch(), "Três Irmãos - Matriz São Paulo");
        EXPECT_FALSE(end.ended());
    }
}

INSTANTIATE_TEST_SUITE_P(Faults, NameFaults, testing::ValuesIn(faultCases), nameOf);

TEST_F(StartFaults, WithoutAnAnswerToTheRightNoScreenOpens) {
    logOn();
    under({"verifica_direito_acesso"}, leaving({Left::Nothing}), [this](const FaultCase&) {
        open("mOFT");
        EXPECT_EQ(boxes.shown,
                  (Boxes{transportFailure("0002"),
                         Box{"Houve um problema na verificação do Direito de Acesso do usuário na "
                             "Transação EMI001. ",
                             BoxIcon::Exclamation, "TarnEmissao"}}));
        EXPECT_EQ(takeCommands(), (Texts{"verifica_direito_acesso"}));
        EXPECT_EQ(menu.findChild<FrmOFT*>(), nullptr);
    });
    under({"verifica_direito_acesso"}, leaving({Left::Refusal}), [this](const FaultCase&) {
        open("mCNF");
        EXPECT_EQ(boxes.shown, (Boxes{refusal}));
        EXPECT_EQ(menu.findChild<QWidget*>("FrmReImprimeNF"), nullptr);
    });
    EXPECT_FALSE(end.ended());
    under({"verifica_direito_acesso"}, leaving({Left::All}), [this](const FaultCase&) {
        open("mOFT");
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_NE(menu.findChild<FrmOFT*>(), nullptr);
    });
}

TEST_F(StartFaults, ARightWithoutADeclarationEndsTheProgram) {
    logOn();
    page.fail("verifica_direito_acesso", {FaultKind::NoDeclaration, {}});
    open("mOFT");
    EXPECT_EQ(boxes.shown, (Boxes{endReport()}));
    EXPECT_EQ(end.status(), 3);
    EXPECT_EQ(menu.findChild<FrmOFT*>(), nullptr);
}

}  // namespace
}  // namespace tarn::test
