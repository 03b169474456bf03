// A server that fails at the reprint screen, in both of its jobs.
#include <gmock/gmock.h>

#include "tests/e2e/note_faults.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

const Box notFound = notice("Nota Fiscal não encontrada ou Cancelada !!!    ");

class ReprintFaults : public NoteFaults {
protected:
    void openWithNote(const char* entry) {
        note = makeNote();
        open(entry);
        search(note);
        expectFound();
        forget();
    }
    void expectFound() {
        EXPECT_EQ(shown("LBLNOTA"), note);
        EXPECT_EQ(shown("LblTipoNf"), "Venda de mercadoria");
        EXPECT_EQ(shown("LblDtEm"), "05/09/2012");
        EXPECT_EQ(shown("LBLCliente"), "PANIFICADORA E CONFEITARIA PÃO DE ARAÇÁS LTDA");
        EXPECT_EQ(text(reprint(), "txtNF"), note);
        EXPECT_EQ(named<QComboBox>(reprint(), "cboSerie").currentIndex(), series1);
    }

    std::string note;
};

TEST_F(ReprintFaults, ListsThatDontComeOnOpeningShowTheirNumbersAlone) {
    under({"SEL_SERIE_NF", "SEL_MOT_CAN"}, leaving({Left::Nothing}), [this](const FaultCase&) {
        open("mCNF");
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0010"), transportFailure("0011")}));
        boxes.shown.clear();
        click(reprint(), "cmdPesquisar");
        click(reprint(), "cmdSelecionar");
        EXPECT_EQ(boxes.shown, (Boxes{notice("Selecione a série da Nota.     "),
                                      notice("Selecione a série da Nota ")}));
        close<FrmReImprimeNF>();
    });
}

TEST_F(ReprintFaults, ASearchWithoutAnAnswerLeavesTheFields) {
    openWithNote("mRINF");
    under({"SEL_NF"}, leaving({Left::Nothing}), [this](const FaultCase&) {
        click(reprint(), "cmdPesquisar");
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0007"),
                                      notice("Houve um problema na Pesquisa da Nota Fiscal !!!")}));
        EXPECT_EQ(takeCommands(), (Texts{"SEL_NF"}));
        expectFound();
    });
    under({"SEL_NF"}, leaving({Left::Refusal}), [this](const FaultCase&) {
        click(reprint(), "cmdPesquisar");
        EXPECT_EQ(boxes.shown, (Boxes{notFound})) << "no rows";
        expectFound();
    });
    under({"SEL_NF"}, leaving({Left::Nothing}), [this](const FaultCase&) {
        type(reprint(), "txtNF", note.c_str());
        click(reprint(), "cmdPesquisar");
        EXPECT_EQ(shown("LBLNOTA"), "") << "what was typed forgot the note found before";
        EXPECT_EQ(text(reprint(), "txtNF"), note);
        click(reprint(), "cmdSelecionar");
        EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0007"),
                                      notice("Houve um problema na Pesquisa da Nota Fiscal !!!"),
                                      notice("Preencha o campo Nro da NF e a série e clique em "
                                             "pesquisar!!!")}));
    });
    under({"SEL_NF"}, leaving({Left::NoDeclaration, Left::All}), [this](const FaultCase&) {
        type(reprint(), "txtNF", note.c_str());
        click(reprint(), "cmdPesquisar");
        EXPECT_EQ(boxes.shown, Boxes{}) << "its status isn't looked at";
        expectFound();
    });
}

TEST_F(ReprintFaults, APrintWithoutItsDocumentIsToldAndCanBeRepeated) {
    openWithNote("mRINF");
    under({"sel_gera_nf"}, leaving({Left::Nothing, Left::Refusal, Left::NoDeclaration}),
          [this](const FaultCase& fault) {
              click(reprint(), "cmdSelecionar");
              switch (fault.left) {
                  case Left::Refusal:
                      EXPECT_EQ(boxes.shown, (Boxes{refusal}));
                      break;
                  case Left::NoDeclaration:
                      EXPECT_EQ(boxes.shown, (Boxes{notice("Houve um problema na transferência dos "
                                                           "dados da Nota Fiscal nº " +
                                                           note + ". ")}));
                      break;
                  default:
                      EXPECT_EQ(boxes.shown, (Boxes{transportFailure("0008"),
                                                    notice("Houve um problema na transferência dos "
                                                           "dados da Nota Fiscal !!!")}));
              }
              EXPECT_EQ(takeCommands(), (Texts{"sel_gera_nf"}));
              EXPECT_THAT(spooler.calls, testing::IsEmpty());
              expectFound();
              EXPECT_FALSE(end.ended());
              page.heal();
              boxes.shown.clear();
              click(reprint(), "cmdSelecionar");
              EXPECT_EQ(boxes.shown, Boxes{});
              expectPrinted(note);
          });
}

TEST_F(ReprintFaults, ASlowDocumentIsPrintedOnce) {
    openWithNote("mRINF");
    under({"sel_gera_nf"}, leaving({Left::All}), [this](const FaultCase&) {
        QTimer::singleShot(slowWait / 2, &menu, [this] { click(reprint(), "cmdSelecionar"); });
        click(reprint(), "cmdSelecionar");
        EXPECT_EQ(takeCommands(), (Texts{"sel_gera_nf"}));
        expectPrinted(note);
    });
}

TEST_F(ReprintFaults, ACancellationThatFailsIsToldByWhatIsKnownOfIt) {
    open("mCNF");
    under({"sp_can_nf"}, leaving({Left::Nothing, Left::Refusal, Left::NoDeclaration}),
          [this](const FaultCase& fault) {
              note = makeNote();
              search(note);
              QTest::mouseClick(&named<QWidget>(reprint(), "OptionReimp_1"), Qt::LeftButton, {},
                                {8, 8});
              pickIn(menu, "CboMot_Can", 1);
              click(reprint(), "cmdSelecionar");
              switch (fault.left) {
                  case Left::Refusal:
                      EXPECT_EQ(boxes.shown, (Boxes{refusal}));
                      break;
                  case Left::NoDeclaration:
                      EXPECT_EQ(
                          boxes.shown,
                          (Boxes{notice("Houve um problema no Cancelamento da Nota Fiscal nº " +
                                        note + ". ")}));
                      break;
                  default:
                      EXPECT_EQ(boxes.shown,
                                (Boxes{noInternet9, notice("Favor verificar se a Nota Fiscal foi "
                                                           "cancelada. ")}));
              }
              EXPECT_EQ(takeCommands(), (Texts{"SEL_NF", "sp_can_nf"}));
              EXPECT_EQ(shown("LBLNOTA"), note);
              EXPECT_EQ(named<QComboBox>(reprint(), "CboMot_Can").currentIndex(), 1);
              EXPECT_EQ(found(note), !fault.carriedOut);
              EXPECT_FALSE(end.ended());
          });
}

}  // namespace
}  // namespace tarn::test
