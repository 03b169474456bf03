// The cancelling job by clicks.
#include "tests/reprint/note_screen_test.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr char pedeSem[] =
    "comando=sp_can_nf&ID_ETB_TARN=9&IC_TIP_NF=S&ID_NF_KESTO=4567&CD_SER_NF=U&id_mot_can=12&"
    "id_pes_usu=77&Tipo_Can=S&ServerName=SRV1";
constexpr char pedeCom[] =
    "comando=sp_can_nf&ID_ETB_TARN=9&IC_TIP_NF=S&ID_NF_KESTO=4567&CD_SER_NF=U&id_mot_can=12&"
    "id_pes_usu=77&Tipo_Can=C&ServerName=SRV1";
const Box sucesso{"Nota fiscal cancelada com sucesso", BoxIcon::Information, "Aviso"};
const Box faltaTipo = aviso("Selecione o Tipo de Cancelamento !!!");
const Box faltaMotivo = aviso("Selecione o Motivo do Cancelamento !!!");

class CancelamentoNaTela : public TelaDeNota {
protected:
    void SetUp() override {
        TelaDeNota::SetUp();
        abre("mCNF");
    }
    void preenche(int qual) {
        marca(qual);
        escolhe("CboMot_Can", motivoErro);
    }
    void cancela() { click(tela(), "cmdSelecionar"); }
    // All that was filled in for a cancellation still stands.
    void ficouTudo() {
        EXPECT_EQ(dados(), achada());
        EXPECT_TRUE(opcao(0).isChecked());
        EXPECT_EQ(escolhido("CboMot_Can"), motivoErro);
    }
};

TEST_F(CancelamentoNaTela, WantsTheKindThenTheReason) {
    encontra();
    cancela();
    marca(0);
    cancela();
    EXPECT_THAT(boxes.shown, ElementsAre(faltaTipo, faltaMotivo));
    EXPECT_THAT(server.addresses, IsEmpty());
    EXPECT_EQ(dados(), achada());
}

TEST_F(CancelamentoNaTela, CancelsWithTheOptionOfBillingAgain) {
    server.on("sp_can_nf", answers::status("OK"));
    encontra();
    preenche(0);
    cancela();
    EXPECT_THAT(server.queries(), ElementsAre(pedeCom));
    EXPECT_THAT(boxes.shown, ElementsAre(sucesso));
}

TEST_F(CancelamentoNaTela, CancelsWithoutThatOptionAndForgetsTheNote) {
    server.on("sp_can_nf", answers::status("OK"));
    encontra();
    preenche(1);
    boxes.onShow = [this](const Box&) { EXPECT_EQ(dados(), achada()) << "the box comes first"; };
    cancela();
    EXPECT_THAT(server.queries(), ElementsAre(pedeSem));
    EXPECT_THAT(boxes.shown, ElementsAre(sucesso));
    EXPECT_EQ(dados(), nada());
    EXPECT_FALSE(opcao(0).isChecked() || opcao(1).isChecked());
    EXPECT_TRUE(opcao(0).isEnabled() && opcao(1).isEnabled());
    EXPECT_EQ(escolhido("CboMot_Can"), -1);
    EXPECT_EQ(escolhido("cboSerie"), serieUnica);
    EXPECT_EQ(named<QLineEdit>(tela(), "txtNF").text(), QStringLiteral("4567"));
    boxes.onShow = nullptr;
    cancela();
    EXPECT_EQ(boxes.shown.back(),
              aviso("Preencha o campo Nro da NF e a série e clique em pesquisar!!!"));
    EXPECT_EQ(server.addresses.size(), 1U);
}

TEST_F(CancelamentoNaTela, TheOtherOptionTakesTheFirstOnesPlace) {
    server.on("sp_can_nf", answers::status("OK"));
    encontra();
    marca(1);
    preenche(0);
    EXPECT_FALSE(opcao(1).isChecked());
    cancela();
    EXPECT_THAT(server.queries(), ElementsAre(pedeCom));
}

TEST_F(CancelamentoNaTela, OptionsOfTheNoteBeforeAreSelectableAgain) {
    encontra();
    marca(0);
    encontra();  // the number typed anew clears the options
    EXPECT_FALSE(opcao(0).isChecked());
    marca(1);
    EXPECT_TRUE(opcao(1).isChecked());
    marca(0);
    EXPECT_TRUE(opcao(0).isChecked());
    EXPECT_FALSE(opcao(1).isChecked());
}

TEST_F(CancelamentoNaTela, AnUnknownResultAsksTheUserToCheckAndSendsNothingAgain) {
    server.failOn("sp_can_nf");
    encontra();
    preenche(0);
    cancela();
    EXPECT_THAT(
        boxes.shown,
        ElementsAre(critica("0009"), aviso("Favor verificar se a Nota Fiscal foi cancelada. ")));
    EXPECT_THAT(server.queries(), ElementsAre(pedeCom));
    ficouTudo();
}

TEST_F(CancelamentoNaTela, ARefusalIsTheServersWords) {
    server.on("sp_can_nf", answers::status("Prazo vencido"));
    encontra();
    preenche(0);
    cancela();
    EXPECT_THAT(boxes.shown, ElementsAre(semTitulo("Prazo vencido")));
    ficouTudo();
}

TEST_F(CancelamentoNaTela, AStatusThatCannotBeReadIsAFailedCancellationAndTheProgramLivesOn) {
    server.on("sp_can_nf", answers::declaration + "<RESPOSTA status='OK'/>");
    encontra();
    preenche(0);
    cancela();
    EXPECT_THAT(boxes.shown,
                ElementsAre(aviso("Houve um problema no Cancelamento da Nota Fiscal nº 4567. ")));
    ficouTudo();
    EXPECT_FALSE(fim.encerrado());
}

TEST_F(CancelamentoNaTela, ANoteOfTypeDIsFoundAndNeverCancelled) {
    encontra("D");
    EXPECT_EQ(dados(), achada("D"));
    EXPECT_FALSE(opcao(0).isEnabled() || opcao(1).isEnabled());
    preenche(0);
    cancela();
    marca(1);
    cancela();
    EXPECT_THAT(boxes.shown, ElementsAre(faltaTipo, faltaTipo));
    EXPECT_THAT(server.addresses, IsEmpty());
}

TEST_F(CancelamentoNaTela, TheSearchAloneDecidesWhetherTheOptionsAreEnabled) {
    encontra("D");
    type(tela(), "txtNF", "1");
    EXPECT_FALSE(opcao(0).isEnabled() || opcao(1).isEnabled()) << "clearing leaves them disabled";
    ScriptedLoader outra;
    server = outra.on("SEL_NF", answers::rowset(linhaDaNota("d")));
    click(tela(), "cmdPesquisar");
    EXPECT_TRUE(opcao(0).isEnabled() && opcao(1).isEnabled()) << "only a capital D counts";
}

TEST_F(CancelamentoNaTela, WithoutReasonsItStopsAtTheReason) {
    click(tela(), "CmdFechar");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !aberta(); }));
    ScriptedLoader semMotivos;
    server = semMotivos.on("sTransacao", answers::status("OK"))
                 .on("SEL_SERIE_NF", answers::rowset("<z:row DC_SER_NF='x' CD_SER_NF='1'/>"
                                                     "<z:row DC_SER_NF='u' CD_SER_NF='U'/>"))
                 .failOn("SEL_MOT_CAN");
    abreVazia("mCNF");
    EXPECT_THAT(boxes.shown, ElementsAre(critica("0011"))) << "no box of the screen's own";
    boxes.shown.clear();
    encontra();
    marca(1);
    cancela();
    EXPECT_THAT(boxes.shown, ElementsAre(faltaMotivo));
    EXPECT_THAT(server.addresses, IsEmpty());
}

TEST_F(CancelamentoNaTela, ACancelledNoteIsNoLongerFound) {
    server.on("sp_can_nf", answers::status("OK"));
    encontra();
    preenche(1);
    cancela();
    ScriptedLoader depois;
    server = depois.on("SEL_NF", answers::rowset(""));
    click(tela(), "cmdPesquisar");
    EXPECT_THAT(boxes.shown,
                ElementsAre(sucesso, aviso("Nota Fiscal não encontrada ou Cancelada !!!    ")));
    EXPECT_EQ(dados(), nada());
    EXPECT_THAT(server.queries(), ElementsAre(pedePesquisa));
}

}  // namespace
}  // namespace tarn
