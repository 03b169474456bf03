#include "desk/mdi_menu.h"

#include <gmock/gmock.h>

#include <QDialog>
#include <QLabel>
#include <QStatusBar>

#include "runtime/version.h"
#include "tests/support/answers.h"
#include "tests/support/boxes.h"
#include "tests/support/screen_test.h"
#include "tests/support/shipped_manual.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

constexpr char formatText[] =
    "Erro na Configuração do Formato de Data do Windows\r\r"
    "Para corrigir selecione no Windows:\r\r"
    "-> Iniciar -> Configurações -> Painel de Controle -> Opcoes Regionais ->\r"
    "-> Data   -> Em formato reduzido de data selecione:  dd/mm/aaaa     ";

class MDIMenuTest : public ScreenTest {
protected:
    void SetUp() override {
        ScreenTest::SetUp();
        server.on("VERSAO_TARN_EMISSAO", answers::version("OK"));
        server.on("sel_dados_empresa", answers::branch("Filial &lt;b>Sul&lt;/b>"));
        menu.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&menu));
    }
    // Starts the program and logs on as this company.
    void logOn(const char* company = "2161", const char* establishment = "3382") {
        server.on("comando=LOGIN", answers::logon(company, establishment));
        modals.then("FrmLogon", [this](QWidget& logon) {
            duringLogon();
            type(logon, "txtEmpresa", company_);
            type(logon, "txtUsuario", "u");
            type(logon, "txtSenha", "s");
            click(logon, "btnLogin");
        });
        menu.load();
    }
    std::string panel(const char* name) { return named<QLabel>(menu, name).text().toStdString(); }
    bool enabled(const char* menuName) { return named<QMenu>(menu, menuName).isEnabled(); }
    void rights(const char* transaction, const std::string& status) {
        server.on(std::string("sTransacao=") + transaction, answers::status(status));
    }

    std::function<void()> duringLogon = [] {};
    const char* company_ = "1";
    MDIMenu menu{desk};
};

TEST_F(MDIMenuTest, HasTheMenuTree) {
    struct Entry {
        const char* name;
        const char* caption;
        bool enabled;
    };
    const auto entries = [](const QWidget& bar) {
        std::vector<std::string> all;
        for (const QAction* action : bar.actions()) {
            const QObject* shown =
                action->menu() != nullptr ? static_cast<QObject*>(action->menu()) : action;
            all.push_back(shown->objectName().toStdString() + "=" + action->text().toStdString() +
                          (action->isSeparator() ? "-" : "") + (action->isEnabled() ? "" : " off"));
        }
        return all;
    };
    EXPECT_EQ(entries(*menu.menuBar()),
              (Texts{"mnuEtiquetas=&Etiquetas", "mnuNF=&Nota Fiscal",
                     "mnuDuplicata=&Duplicata/Recibo", "mnuBoleto=&Boleto Bancário",
                     "mnuCheque=&Cheque", "mnuAjuda=&Ajuda", "mSair=&Sair"}));
    EXPECT_EQ(entries(named<QMenu>(menu, "mnuEtiquetas")),
              (Texts{"mnuImprClientes=&Clientes", "mnuImprFornecedores=&Fornecedores",
                     "mnuExportaColetor=&Exporta arquivo para coletor off",
                     "mnuImpColetor=&Importa arquivo do coletor off"}));
    EXPECT_EQ(entries(named<QMenu>(menu, "mnuNF")),
              (Texts{"mOFT=&Impressão de NF", "mRINF=&ReImpressão de NF", "NFtraco=-",
                     "mCNF=&Cancelamento de NF"}));
    EXPECT_EQ(entries(named<QMenu>(menu, "mnuCheque")), (Texts{"mnuChequeImpressao=&Impressão"}));
}

TEST_F(MDIMenuTest, StartsWithGateLogonAndActivationInThisOrder) {
    EXPECT_EQ(menu.windowTitle(), QStringLiteral("TARN - Rotina Mercantil"));
    std::vector<std::string> beforeLogon;
    duringLogon = [&] {
        beforeLogon = server.queries();
        EXPECT_EQ(machine.dateFormats, std::vector<std::string>{"dd/MM/yyyy"});
        EXPECT_EQ(menu.windowTitle(), QStringLiteral("TARN - Rotina Mercantil"));
        EXPECT_TRUE(menu.isVisible());
    };
    logOn();
    EXPECT_EQ(beforeLogon, (Texts{"comando=VERSAO_TARN_EMISSAO&Versao=07/01/2009"}));
    EXPECT_EQ(server.queries(),
              (Texts{"comando=VERSAO_TARN_EMISSAO&Versao=07/01/2009",
                     "comando=LOGIN&EMPRESA=1&USUARIO=u&SENHA=s",
                     "comando=sel_dados_empresa&Id_Etb_Tarn=3382&ServerName=SRV1"}));
    EXPECT_EQ(
        menu.windowTitle(),
        QStringLiteral("TARN EMISSÕES - Rotina Mercantil - Versão de 07/01/2009 - Release 17 - G"));
    EXPECT_EQ(panel("Panel1"),
              "Configurado para Impressora: Epson ActionPrinter- 2000, LX-810, LX-300");
    EXPECT_EQ(panel("Panel2"), "Filial <b>Sul</b>");
    EXPECT_EQ(named<QLabel>(menu, "Panel2").textFormat(), Qt::PlainText);
    EXPECT_EQ(session.DirSistema, "/sistema\\");
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(MDIMenuTest, WithoutANoticePanel1StaysEmpty) {
    logOn("2161", "6001");
    EXPECT_EQ(panel("Panel1"), "");
}

TEST_F(MDIMenuTest, AnOutdatedVersionEndsTheProgramBeforeTheLogon) {
    ScriptedLoader old;
    server = old.on("VERSAO_TARN_EMISSAO", answers::version("VELHA"));
    menu.load();
    EXPECT_EQ(boxes.shown,
              (Boxes{Box{"          TARNEMISSAO DESATUALIZADO ! \r"
                         "       Data da Versão TarnEmissao = 07/01/2009\r\r"
                         "       Por favor, faça a atualização no site: \r\r"
                         "                    www.tarn.example \r\r"
                         "      OPÇÃO -> CENTRAL DE ATUALIZAÇÃO                   \r\r",
                         BoxIcon::Information}}));
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(end.status(), 0);
    EXPECT_EQ(modals.taken(), 0);
    EXPECT_EQ(server.addresses.size(), 1U);
}

TEST_F(MDIMenuTest, AServerOutOfReachAtTheGateLetsTheProgramGoOn) {
    ScriptedLoader down;
    server = down.failOn("VERSAO_TARN_EMISSAO").on("sel_dados_empresa", answers::branch("F"));
    logOn();
    EXPECT_EQ(boxes.shown,
              (Boxes{requestFailure("Não consegui verificar a versão do TarnEMISSAO porque "
                                    "não tive acesso à internet!!!")}));
    EXPECT_FALSE(end.ended());
    EXPECT_EQ(panel("Panel2"), "F");
}

TEST_F(MDIMenuTest, ARefusedDateFormatEndsTheProgramAfterTheGateAndBeforeTheLogon) {
    machine.refusesDateFormat = true;
    menu.load();
    EXPECT_EQ(boxes.shown, (Boxes{Box{formatText, BoxIcon::Information, "TArn"}}));
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(server.addresses.size(), 1U);
}

TEST_F(MDIMenuTest, LeavingTheLogonSendsNothingMore) {
    modals.then("FrmLogon", [](QWidget& logon) { key(logon, Qt::Key_Escape); });
    menu.load();
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(server.addresses.size(), 1U);
    EXPECT_EQ(menu.windowTitle(), QStringLiteral("TARN - Rotina Mercantil"));
}

TEST_F(MDIMenuTest, ClosingTheDeskOrMSairEndsTheProgram) {
    logOn();
    const std::size_t sent = server.addresses.size();
    choose(menu, "mSair");
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(end.status(), 0);
    EXPECT_EQ(server.addresses.size(), sent);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(MDIMenuTest, ClosingTheWindowEndsTheProgram) {
    menu.close();
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(end.status(), 0);
}

TEST_F(MDIMenuTest, TheChequeAsksForItsRightAndThenForItsAccounts) {
    logOn();
    rights("EMI005", "OK");
    server.on("sel_banco_agencia_conta", answers::rowset(""));
    modals.then("frmCheque", [](QWidget& cheque) { click(cheque, "cmdCancelar"); });
    server.addresses.clear();
    choose(menu, "mnuCheque", "mnuChequeImpressao");
    ASSERT_EQ(server.addresses.size(), 3U) << "right, accounts, and the desk's own activation";
    EXPECT_EQ(server.queries()[0],
              "Comando=verifica_direito_acesso&nId_Pes_Usu=77&ServerName=SRV1&sTransacao=EMI005");
    EXPECT_THAT(server.queries()[1], testing::StartsWith("comando=sel_banco_agencia_conta&"));
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(MDIMenuTest, TheLabelsOpenWithoutARightForClientsOrForSuppliers) {
    logOn();
    for (const char* list : {"sel_filiais_remetente", "sel_motivos", "sel_etiquetas"}) {
        server.on(list, answers::rowset(""));
    }
    for (const auto& [entry, kind] :
         {std::pair{"mnuImprClientes", "C"}, std::pair{"mnuImprFornecedores", "F"}}) {
        modals.then("frmPesqEtiquetas", [this, kind = kind](QWidget& queue) {
            EXPECT_EQ(session.TipoEtiqueta, kind);
            click(queue, "cmdVoltar");
        });
        const std::size_t sent = server.addresses.size();
        choose(menu, "mnuEtiquetas", entry);
        EXPECT_EQ(server.addresses.size(), sent + 4) << "three of the screen, one of the desk";
    }
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(MDIMenuTest, TheCollectorsEntriesDoNothing) {
    logOn();
    const std::size_t sent = server.addresses.size();
    choose(menu, "mnuEtiquetas", "mnuExportaColetor");
    choose(menu, "mnuEtiquetas", "mnuImpColetor");
    EXPECT_EQ(server.addresses.size(), sent);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(MDIMenuTest, ADenialShowsTheServersWords) {
    logOn();
    rights("EMI002", "Usuário sem direito");
    choose(menu, "mnuNF", "mRINF");
    EXPECT_EQ(boxes.shown, (Boxes{Box{"Usuário sem direito", BoxIcon::Exclamation}}));
}

TEST_F(MDIMenuTest, AFailedRightsCheckShowsTwoBoxesAndOpensNothing) {
    logOn();
    server.failOn("sTransacao=EMI001");
    choose(menu, "mnuNF", "mOFT");
    EXPECT_EQ(boxes.shown,
              (Boxes{transportFailure("0002"),
                     Box{"Houve um problema na verificação do Direito de Acesso do usuário na "
                         "Transação EMI001. ",
                         BoxIcon::Exclamation}}));
    EXPECT_EQ(menu.findChild<QWidget*>(QStringLiteral("FrmOFT")), nullptr);
    EXPECT_TRUE(enabled("mnuNF"));
}

TEST_F(MDIMenuTest, AnUnreadableRightEndsTheProgramWithTheReport) {
    logOn();
    server.on("sTransacao=EMI001", "<RESPOSTA status='OK'/>");
    choose(menu, "mnuNF", "mOFT");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
    EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
    EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '91':\r\r", 0), 0U);
    EXPECT_EQ(boxes.shown[0].text.find("Nota Fiscal"), std::string::npos);
    EXPECT_EQ(end.status(), 3);
}

TEST_F(MDIMenuTest, HelpTellsHowToReachSupportAndWhatToTellIt) {
    logOn();
    modals.then("frmAjuda", [&](QWidget& help) {
        EXPECT_EQ(machine.dateFormats.size(), 2U);
        EXPECT_EQ(named<QLabel>(help, "Label4").text(), QStringLiteral("Ajuda"));
        EXPECT_EQ(named<QLabel>(help, "Label1").text(), QStringLiteral("TARN Sistemas"));
        EXPECT_TRUE(named<QLabel>(help, "Label2").text().contains(u"(11) 5555-0100"));
        EXPECT_TRUE(named<QLabel>(help, "Label3").text().contains(u"suporte@tarn.example"));
        EXPECT_EQ(named<QLabel>(help, "lblVersion").text(),
                  QStringLiteral("Versão: ") + QLatin1StringView(productVersion));
        EXPECT_EQ(named<QLabel>(help, "lblServer").text(),
                  QStringLiteral("Servidor: http://servidor/pagina.asp"));
        click(help, "cmdVoltar");
    });
    choose(menu, "mnuAjuda");
}

TEST_F(MDIMenuTest, HelpOpensTheManualOrSaysThatThereIsNone) {
    logOn();
    modals.then("frmAjuda", [](QWidget& help) {
        EXPECT_TRUE(named<QWidget>(help, "cmdVoltar").hasFocus());
        const ShippedManual manual;
        click(help, "cmdManual");
        EXPECT_EQ(manual.opened(), (QStringList{manual.page("index.html")}));
        click(help, "cmdVoltar");
    });
    choose(menu, "mnuAjuda");
    EXPECT_TRUE(boxes.shown.empty());
    modals.then("frmAjuda", [](QWidget& help) {
        const ShippedManual none{QStringList()};
        click(help, "cmdManual");
        EXPECT_EQ(none.opened(), QStringList());
        click(help, "cmdVoltar");
    });
    choose(menu, "mnuAjuda");
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("O manual não está nesta máquina."));
}

TEST_F(MDIMenuTest, HelpAsksNothingOfAServerThatMayBeDown) {
    logOn();
    const std::size_t sent = server.addresses.size();
    modals.then("frmAjuda", [](QWidget& help) { key(help, Qt::Key_Escape); });
    choose(menu, "mnuAjuda");
    EXPECT_EQ(server.addresses.size(), sent);
    EXPECT_TRUE(boxes.shown.empty());
    EXPECT_FALSE(end.ended());
}

TEST_F(MDIMenuTest, HelpEndsTheProgramWhereTheDateFormatIsRefused) {
    logOn();
    const std::size_t sent = server.addresses.size();
    machine.refusesDateFormat = true;
    choose(menu, "mnuAjuda");
    EXPECT_EQ(boxes.shown, (Boxes{Box{formatText, BoxIcon::Information, "TArn"}}));
    EXPECT_TRUE(end.ended());
    EXPECT_EQ(server.addresses.size(), sent);
}

TEST_F(MDIMenuTest, AnActivationWithoutTheServerEndsTheProgram) {
    logOn();
    ScriptedLoader down;
    server = down.failOn("sel_dados_empresa")
                 .on("sTransacao=EMI005", answers::status("OK"))
                 .on("sel_banco_agencia_conta", answers::rowset(""));
    modals.then("frmCheque", [](QWidget& cheque) { click(cheque, "cmdCancelar"); });
    choose(menu, "mnuCheque", "mnuChequeImpressao");
    ASSERT_EQ(boxes.shown.size(), 2U);
    EXPECT_EQ(boxes.shown[0], (noInternet9));
    EXPECT_EQ(boxes.shown[1].text.rfind("Erro em tempo de execução '91':\r\r", 0), 0U);
    EXPECT_EQ(end.status(), 3);
}

TEST_F(MDIMenuTest, WhatWasDoneStandsOnThePanelOfItsOwn) {
    EXPECT_EQ(panel("Panel3"), "");
    menu.tell(QStringLiteral("10:32 NF 008529 da ordem 45112 enviada a LX-300"));
    EXPECT_EQ(panel("Panel3"), "10:32 NF 008529 da ordem 45112 enviada a LX-300");
    EXPECT_GT(named<QWidget>(menu, "Panel3").width(), menu.width() * 9 / 10);
}

TEST_F(MDIMenuTest, AServerThatIsntTheUsualOneHasAPanel) {
    EXPECT_FALSE(named<QWidget>(menu, "Panel4").isVisible());
    menu.showServer(QStringLiteral("http://127.0.0.1:8610"));
    EXPECT_TRUE(named<QWidget>(menu, "Panel4").isVisible());
    EXPECT_EQ(panel("Panel4"), "Servidor: http://127.0.0.1:8610");
}

TEST_F(MDIMenuTest, ClosingTheDeskUnderAModalScreenEndsTheProgram) {
    logOn();
    modals.then("frmAjuda", [this](QWidget& help) {
        menu.close();
        EXPECT_TRUE(end.ended());
        static_cast<QDialog&>(help).reject();
    });
    choose(menu, "mnuAjuda");
    EXPECT_EQ(end.status(), 0);
}

TEST_F(MDIMenuTest, AClickOnThePictureDoesNothing) {
    logOn();
    const std::size_t sent = server.addresses.size();
    click(menu, "Picture1");
    EXPECT_EQ(server.addresses.size(), sent);
    EXPECT_TRUE(boxes.shown.empty());
}

}  // namespace
}  // namespace tarn::test
