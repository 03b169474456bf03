// The cancelling job by clicks.
#include <gmock/gmock.h>

#include "tests/reprint/note_screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;

constexpr char queryWithout[] =
    "comando=sp_can_nf&ID_ETB_TARN=9&IC_TIP_NF=S&ID_NF_KESTO=4567&CD_SER_NF=U&id_mot_can=12&"
    "id_pes_usu=77&Tipo_Can=S&ServerName=SRV1";
constexpr char queryWith[] =
    "comando=sp_can_nf&ID_ETB_TARN=9&IC_TIP_NF=S&ID_NF_KESTO=4567&CD_SER_NF=U&id_mot_can=12&"
    "id_pes_usu=77&Tipo_Can=C&ServerName=SRV1";
const Box success{"Nota fiscal cancelada com sucesso", BoxIcon::Information, "Aviso"};
const Box kindMissing = notice("Selecione o Tipo de Cancelamento !!!");
const Box reasonMissing = notice("Selecione o Motivo do Cancelamento !!!");

class CancellationScreen : public NoteScreenTest {
protected:
    void SetUp() override {
        NoteScreenTest::SetUp();
        open("mCNF");
    }
    void fillIn(int which) {
        tick(which);
        pickFrom("CboMot_Can", errorReason);
    }
    void cancel() { click(screen(), "cmdSelecionar"); }
    // All that was filled in for a cancellation still stands.
    void allKept() {
        EXPECT_EQ(data(), found());
        EXPECT_TRUE(option(0).isChecked());
        EXPECT_EQ(chosen("CboMot_Can"), errorReason);
    }
};

TEST_F(CancellationScreen, WantsTheKindThenTheReason) {
    find();
    cancel();
    tick(0);
    cancel();
    EXPECT_EQ(boxes.shown, (Boxes{kindMissing, reasonMissing}));
    EXPECT_EQ(server.addresses, Texts{});
    EXPECT_EQ(data(), found());
}

TEST_F(CancellationScreen, CancelsWithTheOptionOfBillingAgain) {
    server.on("sp_can_nf", answers::status("OK"));
    find();
    fillIn(0);
    cancel();
    EXPECT_EQ(server.queries(), (Texts{queryWith}));
    EXPECT_EQ(boxes.shown, (Boxes{success}));
}

TEST_F(CancellationScreen, CancelsWithoutThatOptionAndForgetsTheNote) {
    server.on("sp_can_nf", answers::status("OK"));
    find();
    fillIn(1);
    boxes.onShow = [this](const Box&) { EXPECT_EQ(data(), found()) << "the box comes first"; };
    cancel();
    EXPECT_EQ(server.queries(), (Texts{queryWithout}));
    EXPECT_EQ(boxes.shown, (Boxes{success}));
    EXPECT_EQ(data(), nothing());
    EXPECT_FALSE(option(0).isChecked() || option(1).isChecked());
    EXPECT_TRUE(option(0).isEnabled() && option(1).isEnabled());
    EXPECT_EQ(chosen("CboMot_Can"), -1);
    EXPECT_EQ(chosen("cboSerie"), singleSeries);
    EXPECT_EQ(named<QLineEdit>(screen(), "txtNF").text(), QStringLiteral("4567"));
    boxes.onShow = nullptr;
    cancel();
    EXPECT_EQ(boxes.shown.back(),
              notice("Preencha o campo Nro da NF e a série e clique em pesquisar!!!"));
    EXPECT_EQ(server.addresses.size(), 1U);
}

TEST_F(CancellationScreen, TheOtherOptionTakesTheFirstOnesPlace) {
    server.on("sp_can_nf", answers::status("OK"));
    find();
    tick(1);
    fillIn(0);
    EXPECT_FALSE(option(1).isChecked());
    cancel();
    EXPECT_EQ(server.queries(), (Texts{queryWith}));
}

TEST_F(CancellationScreen, OptionsOfTheNoteBeforeAreSelectableAgain) {
    find();
    tick(0);
    find();  // the number typed anew clears the options
    EXPECT_FALSE(option(0).isChecked());
    tick(1);
    EXPECT_TRUE(option(1).isChecked());
    tick(0);
    EXPECT_TRUE(option(0).isChecked());
    EXPECT_FALSE(option(1).isChecked());
}

TEST_F(CancellationScreen, AnUnknownResultAsksTheUserToCheckAndSendsNothingAgain) {
    server.failOn("sp_can_nf");
    find();
    fillIn(0);
    cancel();
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0009"),
                                  notice("Favor verificar se a Nota Fiscal foi cancelada. ")}));
    EXPECT_EQ(server.queries(), (Texts{queryWith}));
    allKept();
}

TEST_F(CancellationScreen, ARefusalIsTheServersWords) {
    server.on("sp_can_nf", answers::status("Prazo vencido"));
    find();
    fillIn(0);
    cancel();
    EXPECT_EQ(boxes.shown, (Boxes{exclamation("Prazo vencido")}));
    allKept();
}

TEST_F(CancellationScreen, AStatusThatCannotBeReadIsAFailedCancellationAndTheProgramLivesOn) {
    server.on("sp_can_nf", answers::declaration + "<RESPOSTA status='OK'/>");
    find();
    fillIn(0);
    cancel();
    EXPECT_EQ(boxes.shown,
              (Boxes{notice("Houve um problema no Cancelamento da Nota Fiscal nº 4567. ")}));
    allKept();
    EXPECT_FALSE(end.ended());
}

TEST_F(CancellationScreen, ANoteOfTypeDIsFoundAndNeverCancelled) {
    find("D");
    EXPECT_EQ(data(), found("D"));
    EXPECT_FALSE(option(0).isEnabled() || option(1).isEnabled());
    fillIn(0);
    cancel();
    tick(1);
    cancel();
    EXPECT_EQ(boxes.shown, (Boxes{kindMissing, kindMissing}));
    EXPECT_EQ(server.addresses, Texts{});
}

// The option was chosen for the note that the same search found before.
TEST_F(CancellationScreen, ATypeDFoundBySearchingAgainClearsTheOption) {
    find("S");
    fillIn(1);
    ScriptedLoader other;
    server = other.on("SEL_NF", answers::rowset(noteRow("D")));
    click(screen(), "cmdPesquisar");
    EXPECT_FALSE(option(0).isChecked() || option(1).isChecked());
    EXPECT_EQ(chosen("CboMot_Can"), errorReason);
    server.addresses.clear();
    cancel();
    EXPECT_EQ(boxes.shown, (Boxes{kindMissing}));
    EXPECT_EQ(server.addresses, Texts{});
}

TEST_F(CancellationScreen, AReasonWithoutItsNumberCantBeChosen) {
    click(screen(), "CmdFechar");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    server = ScriptedLoader();
    server.on("sTransacao=EMI00", answers::status("OK"))
        .on("SEL_SERIE_NF", answers::rowset("<z:row CD_SER_NF='A'/><z:row CD_SER_NF='U'/>"))
        .on("SEL_MOT_CAN", answers::rowset("<z:row DC_MOT_CAN='Sem'/>"
                                           "<z:row DC_MOT_CAN='Boa' ID_MOT_CAN='0'/>"
                                           "<z:row DC_MOT_CAN='Ruim' ID_MOT_CAN='x'/>"));
    openEmpty("mCNF");
    find();
    tick(0);
    auto& reasons = named<QComboBox>(screen(), "CboMot_Can");
    EXPECT_EQ(reasons.count(), 3);
    reasons.setFocus();
    QTest::keyClick(&reasons, Qt::Key_Space);
    QAbstractItemView& items = *reasons.view();
    QTest::mouseClick(items.viewport(), Qt::LeftButton, {},
                      items.visualRect(items.model()->index(2, 0)).center());
    EXPECT_EQ(reasons.currentIndex(), -1) << "a click on it chooses nothing";
    reasons.hidePopup();
    reasons.setCurrentIndex(0);
    cancel();
    EXPECT_EQ(boxes.shown, (Boxes{reasonMissing})) << "and to stand on it is no choice";
    EXPECT_EQ(server.addresses, Texts{});
    server.on("sp_can_nf", answers::status("OK"));
    reasons.setCurrentIndex(-1);
    QTest::keyClick(&reasons, Qt::Key_Down);
    EXPECT_EQ(reasons.currentIndex(), 1) << "the arrow passes over it";
    cancel();
    EXPECT_THAT(server.queries(), ElementsAre(testing::HasSubstr("&id_mot_can=0&")));
}

TEST_F(CancellationScreen, TheSearchAloneDecidesWhetherTheOptionsAreEnabled) {
    find("D");
    type(screen(), "txtNF", "1");
    EXPECT_FALSE(option(0).isEnabled() || option(1).isEnabled()) << "clearing leaves them disabled";
    ScriptedLoader other;
    server = other.on("SEL_NF", answers::rowset(noteRow("d")));
    click(screen(), "cmdPesquisar");
    EXPECT_TRUE(option(0).isEnabled() && option(1).isEnabled()) << "only a capital D counts";
}

TEST_F(CancellationScreen, WithoutReasonsItStopsAtTheReason) {
    click(screen(), "CmdFechar");
    ASSERT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
    ScriptedLoader noReasons;
    server = noReasons.on("sTransacao", answers::status("OK"))
                 .on("SEL_SERIE_NF", answers::rowset("<z:row DC_SER_NF='x' CD_SER_NF='1'/>"
                                                     "<z:row DC_SER_NF='u' CD_SER_NF='U'/>"))
                 .failOn("SEL_MOT_CAN");
    openEmpty("mCNF");
    EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0011")})) << "no box of the screen's own";
    boxes.shown.clear();
    find();
    tick(1);
    cancel();
    EXPECT_EQ(boxes.shown, (Boxes{reasonMissing}));
    EXPECT_EQ(server.addresses, Texts{});
}

TEST_F(CancellationScreen, ACancelledNoteIsNoLongerFound) {
    server.on("sp_can_nf", answers::status("OK"));
    find();
    fillIn(1);
    cancel();
    ScriptedLoader after;
    server = after.on("SEL_NF", answers::rowset(""));
    click(screen(), "cmdPesquisar");
    EXPECT_EQ(boxes.shown,
              (Boxes{success, notice("Nota Fiscal não encontrada ou Cancelada !!!    ")}));
    EXPECT_EQ(data(), nothing());
    EXPECT_EQ(server.queries(), (Texts{searchQuery}));
}

}  // namespace
}  // namespace tarn::test
