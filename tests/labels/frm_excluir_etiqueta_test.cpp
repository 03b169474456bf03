#include "tests/labels/label_screens.h"
#include "tests/support/entering.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

const Box deletedBox = information("Etiquetas excluídas com sucesso!     ");

std::string deletionQuery(const std::string& from, const std::string& to,
                          const std::string& reason) {
    return "comando=exclui_etiquetas&ID_EMP_TARN=2161&nSeq_De=" + from + "&nSeq_Ate=" + to +
           "&nId_Motivo=" + reason + "&ServerName=SRV1";
}

class DeletionScreen : public LabelScreens {
protected:
    void SetUp() override {
        LabelScreens::SetUp();
        server.on("exclui_etiquetas", answers::status("OK"));
    }
    void inDeletion(const Work& work) {
        inReadQueue(0, [this, work](QWidget& queue) { deleting(queue, work); });
    }
};

TEST_F(DeletionScreen, ShowsTheReason) {
    inDeletion([](QWidget& deletion) {
        EXPECT_EQ(named<QLabel>(deletion, "lblTitulo").text(), QStringLiteral("Excluir Etiqueta"));
        EXPECT_EQ(named<QLabel>(deletion, "lblSequencial").text(), QStringLiteral("Seqüencial"));
        EXPECT_EQ(labelOf(deletion, "cboMotivo"), "Motivo de Impressão");
        EXPECT_EQ(labelOf(deletion, "txtDe"), "De");
        EXPECT_EQ(labelOf(deletion, "txtAte"), "Até");
        EXPECT_EQ(items(deletion, "cboMotivo"), (Texts{"NATAL"}));
        EXPECT_EQ(named<QComboBox>(deletion, "cboMotivo").currentIndex(), 0);
        EXPECT_EQ(focused(deletion), "txtDe");
        EXPECT_EQ(tabOrder(deletion, "cboMotivo", 6),
                  (Texts{"cboMotivo", "txtDe", "txtAte", "cmdOk", "cmdCancelar", "cboMotivo"}));
        click(deletion, "cmdCancelar");
    });
}

TEST_F(DeletionScreen, BothEndsMustBeFilled) {
    inDeletion([this](QWidget& deletion) {
        click(deletion, "cmdOk");
        EXPECT_EQ(focused(deletion), "txtDe");
        type(deletion, "txtDe", "1");
        click(deletion, "cmdOk");
        EXPECT_EQ(focused(deletion), "txtAte");
        EXPECT_EQ(boxes.shown, (Boxes{information("De é um campo obrigatório!  "),
                                      information("Até é um campo obrigatório!  ")}));
        EXPECT_TRUE(server.addresses.empty());
        EXPECT_TRUE(deletion.isVisible());
        click(deletion, "cmdCancelar");
    });
}

TEST_F(DeletionScreen, SendsTheRangeClosesAndTheQueueIsReadAgain) {
    server.on("sDc_Mot_Imp=NATAL", labelRows(1));
    inReadQueue(0, [this](QWidget& queue) {
        EXPECT_EQ(rows(queue), 2);
        deleting(queue, [](QWidget& deletion) {
            range(deletion, "007", "3");
            click(deletion, "cmdOk");
            EXPECT_FALSE(deletion.isVisible());
        });
        EXPECT_EQ(server.queries(), (Texts{deletionQuery("7", "3", "NATAL"), queueQuery("NATAL")}));
        EXPECT_EQ(rows(queue), 1) << "what is left";
    });
    EXPECT_EQ(boxes.shown, (Boxes{deletedBox})) << "no question before";
}

TEST_F(DeletionScreen, AFailedDeletionIsCalledASuccessAndTheListTellsTheTruth) {
    server = ScriptedLoader();
    server.on("sel_dados_empresa", answers::branch("F"))
        .on("sel_motivos", answers::rowset("<z:row DC_MOT_IMP='NATAL'/>"))
        .on("sel_filiais_remetente", answers::rowset(""))
        .on("sel_etiquetas", labelRows(2));
    inReadQueue(0, [this](QWidget& queue) {
        deleting(queue, [](QWidget& deletion) {
            range(deletion, "1", "2");
            click(deletion, "cmdOk");
            EXPECT_FALSE(deletion.isVisible());
        });
        EXPECT_EQ(server.queries(), (Texts{deletionQuery("1", "2", "NATAL"), queueQuery("NATAL")}));
        EXPECT_EQ(rows(queue), 2);
    });
    EXPECT_EQ(boxes.shown, (Boxes{noInternet9, deletedBox}));
}

TEST_F(DeletionScreen, WhatIsNoNumberIsReportedAndItStaysOpen) {
    inDeletion([this](QWidget& deletion) {
        for (const auto& [from, to] : {std::pair{",", "2"}, std::pair{"1", ",,"}}) {
            boxes.shown.clear();
            range(deletion, from, to);
            click(deletion, "cmdOk");
            ASSERT_EQ(boxes.shown.size(), 1U);
            EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
            EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
            EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13':\r\r", 0), 0U);
            EXPECT_TRUE(deletion.isVisible());
            EXPECT_EQ(text(deletion, "txtDe"), from);
        }
        EXPECT_TRUE(server.addresses.empty());
        click(deletion, "cmdCancelar");
    });
    EXPECT_FALSE(end.ended());
}

TEST_F(DeletionScreen, NoReasonTravelsAsItReads) {
    inQueue([this](QWidget& queue) {
        server.addresses.clear();
        deleting(queue, [](QWidget& deletion) {
            EXPECT_EQ(items(deletion, "cboMotivo"), (Texts{"--------"}));
            range(deletion, "1", "2");
            click(deletion, "cmdOk");
        });
        EXPECT_EQ(server.queries(), (Texts{deletionQuery("1", "2", "--------")}));
    });
}

TEST_F(DeletionScreen, TheRangeTakesNumbersOnly) {
    inDeletion([this](QWidget& deletion) {
        for (const char* name : {"txtDe", "txtAte"}) {
            expectNumbersOnly(deletion, name, machine, Comma::Taken);
        }
        click(deletion, "cmdCancelar");
    });
}

TEST_F(DeletionScreen, KeysAreFilteredAndEnterGoesOn) {
    inDeletion([this](QWidget& deletion) {
        type(deletion, "txtDe", "1x,2");
        EXPECT_EQ(text(deletion, "txtDe"), "1,2");
        EXPECT_EQ(machine.beeps, 1);
        key(deletion, Qt::Key_Return);
        EXPECT_EQ(focused(deletion), "txtAte");
        EXPECT_EQ(machine.beeps, 2);
        type(deletion, "txtAte", "3.4");
        EXPECT_EQ(text(deletion, "txtAte"), "34");
        key(deletion, Qt::Key_Return);
        EXPECT_EQ(focused(deletion), "cmdOk");
        EXPECT_TRUE(server.addresses.empty());
        key(deletion, Qt::Key_Escape);
        EXPECT_TRUE(deletion.isVisible());
        deletion.close();
    });
}

TEST_F(DeletionScreen, CtrlEnterDeletesAndCtrlWClosesTheScreenInFrontAlone) {
    inDeletion([this](QWidget& deletion) {
        type(deletion, "txtDe", "1");
        type(deletion, "txtAte", "2");
        atLeisure(
            [&] { QTest::keyClick(deletion.focusWidget(), Qt::Key_Return, Qt::ControlModifier); });
        EXPECT_FALSE(deletion.isVisible());
        EXPECT_EQ(boxes.shown, (Boxes{deletedBox}));
    });
    inDeletion([](QWidget& deletion) {
        QTest::keyClick(deletion.focusWidget(), Qt::Key_W, Qt::ControlModifier);
        EXPECT_FALSE(deletion.isVisible());
        EXPECT_TRUE(deletion.parentWidget()->isVisible());
    });
}

}  // namespace
}  // namespace tarn::test
