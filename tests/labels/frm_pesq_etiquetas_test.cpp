#include <gmock/gmock.h>

#include "tests/labels/label_screens.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

using QueueScreen = LabelScreens;

const Box chooseReason = information("É necessário escolher o Motivo de Impressão.     ");
const Box chooseForm = information("Tipo de formulário é um campo obrigatório.     ");

TEST_F(QueueScreen, OpensWithItsListsAndNoQueue) {
    inQueue([this](QWidget& queue) {
        EXPECT_TRUE(queue.isModal());
        EXPECT_EQ(server.queries(), (Texts{branchesQuery, reasonsQuery, queueQuery("--------")}));
        EXPECT_EQ(named<QLabel>(queue, "lblPesq_Dpc").text(),
                  QStringLiteral("Pesquisa de Etiquetas"));
        EXPECT_EQ(text(queue, "txtTipo"), " CLIENTES");
        EXPECT_EQ(items(queue, "cboMotivo"), (Texts{"--------", "NATAL", "PÁSCOA"}));
        EXPECT_EQ(
            items(queue, "cboTp_Form"),
            (Texts{"--------", "PIMACO 6280 - LASER", "PIMACO - XXX - MATRICIAL",
                   "PDF - A5 - DESTINATÁRIO", "PDF - A4 - DESTINATÁRIO - REMETENTE - LASER"}));
        EXPECT_EQ(items(queue, "CboFilialRemet"), (Texts{"--------", "SUL", "NORTE"}));
        for (const char* list : {"cboMotivo", "cboTp_Form", "CboFilialRemet"}) {
            EXPECT_EQ(named<QComboBox>(queue, list).currentIndex(), 0) << list;
        }
        EXPECT_EQ(rows(queue), 0);
        EXPECT_FALSE(named<QWidget>(queue, "CboFilialRemet").isVisible());
        EXPECT_FALSE(named<QWidget>(queue, "LblFilialRemet").isVisible());
    });
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_EQ(server.queries().back(), deskQuery) << "the desk is the active one again";
    EXPECT_EQ(server.queries().size(), 4U);
}

TEST_F(QueueScreen, LabelsAndHeadingsAsGiven) {
    inQueue([](QWidget& queue) {
        EXPECT_EQ(labelOf(queue, "txtTipo"), "Tipo");
        EXPECT_EQ(labelOf(queue, "cboMotivo"), "Motivo de Impressão");
        EXPECT_EQ(labelOf(queue, "cboTp_Form"), "Tipo de Formulário");
        EXPECT_EQ(labelOf(queue, "CboFilialRemet"), "Filial Remetente");
        EXPECT_EQ(named<QLabel>(queue, "lblObs").text(),
                  QStringLiteral("* Etiquetas que não excluídas no prazo de 15 dias, serão "
                                 "excluídas automaticamente pelo sistema"));
        EXPECT_EQ(headings(queue), (Texts{"Sequencial", "Cep", "Nome", "Código", "Endereço Nº",
                                          "Complemento", "Bairro", "Município", "UF", "País"}));
        EXPECT_TRUE(named<QTableView>(queue, "sprDados").verticalHeader()->isHidden())
            << "row numbers would be taken for the sequence";
        EXPECT_TRUE(named<QLineEdit>(queue, "txtTipo").isReadOnly());
    });
}

TEST_F(QueueScreen, SuppliersHaveTheirOwnReasons) {
    inQueue(
        [this](QWidget& queue) {
            EXPECT_EQ(text(queue, "txtTipo"), " FORNECEDORES");
            EXPECT_EQ(server.queries()[1],
                      "comando=sel_motivos&ID_EMP_TARN=2161&ServerName=SRV1&sIc_Ver_Eti=F");
        },
        "mnuImprFornecedores");
    EXPECT_EQ(session.TipoEtiqueta, "F");
}

TEST_F(QueueScreen, TabFollowsTheFieldsThenTheButtons) {
    inQueue([](QWidget& queue) {
        EXPECT_EQ(focused(queue), "cboMotivo");
        EXPECT_EQ(tabOrder(queue, "txtTipo", 8),
                  (Texts{"txtTipo", "cboMotivo", "cboTp_Form", "sprDados", "cmdImprimir",
                         "cmdExcluir", "cmdVoltar", "txtTipo"}));
        pick(queue, "cboTp_Form", 4);
        EXPECT_EQ(tabOrder(queue, "cboTp_Form", 3),
                  (Texts{"cboTp_Form", "CboFilialRemet", "sprDados"}));
    });
}

TEST_F(QueueScreen, AReasonShowsItsQueue) {
    server.on("sDc_Mot_Imp=PÁSCOA&",
              answers::rowset("<z:row SEQUENCIAL='40001' CEP='01000-000' NOME='&lt;b&gt;JOSÉ' "
                              "CODIGO='7' ENDERECO='RUA A, 1' COMPLEMENTO='CJ' BAIRRO='SÉ' "
                              "MUNICIPIO='SÃO PAULO' UF='SP' PAIS='BRASIL'/>"
                              "<z:row SEQUENCIAL='40002' cep='1'/>"));
    inQueue([this](QWidget& queue) {
        server.addresses.clear();
        pick(queue, "cboMotivo", easter);
        EXPECT_EQ(server.queries(), (Texts{queueQuery("PÁSCOA")}));
        ASSERT_EQ(rows(queue), 2);
        std::vector<std::string> row;
        for (int column = 1; column <= 10; ++column) {
            row.push_back(cell(queue, 1, column));
        }
        EXPECT_EQ(row, (Texts{"40001", "01000-000", "<b>JOSÉ", "7", "RUA A, 1", "CJ", "SÉ",
                              "SÃO PAULO", "SP", "BRASIL"}));
        EXPECT_EQ(cell(queue, 2, 1), "40002");
        EXPECT_EQ(cell(queue, 2, 2), "") << "another case is absent";
    });
}

TEST_F(QueueScreen, AnEmptyQueueAsksForTheReasonAllTheSame) {
    inQueue([this](QWidget& queue) {
        pick(queue, "cboMotivo", christmas);
        EXPECT_EQ(rows(queue), 2);
        pick(queue, "cboMotivo", easter);
        EXPECT_EQ(rows(queue), 0);
        pick(queue, "cboTp_Form", 1);
        click(queue, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{chooseReason}));
        EXPECT_EQ(focused(queue), "cboMotivo");
    });
}

TEST_F(QueueScreen, PrintingNeedsAForm) {
    inQueue([this](QWidget& queue) {
        click(queue, "cmdImprimir");
        EXPECT_EQ(focused(queue), "cboMotivo");
        pick(queue, "cboMotivo", christmas);
        click(queue, "cmdImprimir");
        EXPECT_EQ(boxes.shown, (Boxes{chooseReason, chooseForm}));
        EXPECT_EQ(focused(queue), "cboTp_Form");
    });
}

TEST_F(QueueScreen, ChoosingTheSameReasonAgainReadsItAgain) {
    inQueue([this](QWidget& queue) {
        pick(queue, "cboMotivo", christmas);
        server.addresses.clear();
        pick(queue, "cboMotivo", christmas);
        EXPECT_EQ(server.queries(), (Texts{queueQuery("NATAL")}));
    });
}

TEST_F(QueueScreen, EachWayToChooseAReasonReadsItsQueueOnce) {
    inQueue([this](QWidget& queue) {
        auto& reasons = named<QComboBox>(queue, "cboMotivo");
        reasons.setFocus();
        const auto expectRead = [this](const std::vector<std::string>& queries) {
            EXPECT_EQ(server.queries(), queries);
            server.addresses.clear();
        };
        server.addresses.clear();
        QTest::keyClick(&reasons, Qt::Key_Down);
        expectRead({queueQuery("NATAL")});
        wheelDown(reasons);
        expectRead({queueQuery("PÁSCOA")});
        wheelDown(reasons);
        QTest::keyClick(&reasons, Qt::Key_Down);
        expectRead({});
        QTest::keyClick(&reasons, Qt::Key_N);
        expectRead({queueQuery("NATAL")});
        QTest::keyClick(&reasons, Qt::Key_Home);
        expectRead({queueQuery("--------")});
        QTest::keyClick(&reasons, Qt::Key_Space);
        QTest::keyClick(reasons.view(), Qt::Key_Down);
        expectRead({});
        QTest::keyClick(reasons.view(), Qt::Key_Escape);
        expectRead({});
        EXPECT_EQ(reasons.currentIndex(), 0) << "given up";
        QTest::keyClick(&reasons, Qt::Key_Space);
        QTest::keyClick(reasons.view(), Qt::Key_Down);
        QTest::keyClick(reasons.view(), Qt::Key_Return);
        expectRead({queueQuery("NATAL")});
        EXPECT_TRUE(queue.isVisible());
    });
}

TEST_F(QueueScreen, AnOpenListShowsItsReasonsWhole) {
    const std::string campaign = "MALA DIRETA PARA OS CLIENTES DA REGIÃO METROPOLITANA DO ANO DE ";
    server = ScriptedLoader();
    server.on("sel_dados_empresa", answers::branch("F"))
        .on("sel_motivos", answers::rowset("<z:row DC_MOT_IMP='" + campaign + "2011'/>" +
                                           "<z:row DC_MOT_IMP='" + campaign + "2012'/>"))
        .on("sel_filiais_remetente", answers::rowset(""))
        .on("sel_etiquetas", labelRows(1));
    inQueue([](QWidget& queue) {
        auto& reasons = named<QComboBox>(queue, "cboMotivo");
        reasons.setFocus();
        QTest::keyClick(&reasons, Qt::Key_Space);
        const QAbstractItemView& open = *reasons.view();
        ASSERT_TRUE(open.isVisible());
        EXPECT_GE(open.viewport()->width(), open.sizeHintForColumn(0));
        QTest::keyClick(reasons.view(), Qt::Key_Escape);
    });
}

TEST_F(QueueScreen, TheSenderIsChosenByKeyAndWheelToo) {
    inReadQueue(4, [this](QWidget& queue) {
        auto& senders = named<QComboBox>(queue, "CboFilialRemet");
        senders.setFocus();
        const auto printed = [&] {
            server.addresses.clear();
            printing(queue, [](QWidget& print) {
                range(print, "1", "2");
                click(print, "cmdOk");
            });
            return server.queries().at(1);
        };
        QTest::keyClick(&senders, Qt::Key_Down);
        EXPECT_EQ(printed(), senderQuery("12"));
        // A list that isn't in use doesn't turn, and off-screen the activation doesn't
        // come back by itself.
        queue.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&queue));
        senders.setFocus();
        wheelDown(senders);
        EXPECT_EQ(printed(), senderQuery("13"));
    });
}

TEST_F(QueueScreen, WhatIsPressedDuringARequestIsLost) {
    inQueue([this](QWidget& queue) {
        server.addresses.clear();
        pressSoon(queue, "cmdImprimir");
        pick(queue, "cboMotivo", christmas);
        QCoreApplication::processEvents();
        EXPECT_TRUE(queue.isVisible());
        EXPECT_EQ(server.queries(), (Texts{queueQuery("NATAL")}));
        EXPECT_EQ(rows(queue), 2);
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(QueueScreen, ServerTextsAreShownAsTheyAre) {
    server = ScriptedLoader();
    server.on("sel_dados_empresa", answers::branch("F"))
        .on("sel_motivos", answers::rowset("<z:row DC_MOT_IMP=' A &amp;B &lt;b&gt;x&lt;/b&gt; '/>"
                                           "<z:row/>"))
        .on("sel_filiais_remetente", answers::rowset("<z:row FILIAL='&lt;i&gt;Z' ID_ETB='-7'/>"))
        .on("sel_etiquetas", labelRows(1))
        .on("sel_dados_remetente", sender);
    inQueue([this](QWidget& queue) {
        const std::string reason = " A &B <b>x</b> ";
        EXPECT_EQ(items(queue, "cboMotivo"), (Texts{"--------", reason, ""}));
        EXPECT_EQ(items(queue, "CboFilialRemet"), (Texts{"--------", "<i>Z"}));
        pick(queue, "cboMotivo", 2);
        EXPECT_EQ(server.queries().back(), queueQuery("")) << "a reason without a text";
        pick(queue, "cboMotivo", 1);
        EXPECT_EQ(server.queries().back(), queueQuery(reason));
        deleting(queue, [&reason](QWidget& deletion) {
            EXPECT_EQ(items(deletion, "cboMotivo"), (Texts{reason}));
            click(deletion, "cmdCancelar");
        });
        pick(queue, "cboTp_Form", 4);
        pick(queue, "CboFilialRemet", 1);
        printing(queue, [this](QWidget& print) {
            server.addresses.clear();
            range(print, "1", "1");
            click(print, "cmdOk");
            EXPECT_EQ(server.queries()[1], senderQuery("-7"));
        });
    });
}

TEST_F(QueueScreen, NoReasonChosenByHandIsAskedForOnceAndNotOnReturning) {
    inQueue([this](QWidget& queue) {
        pick(queue, "cboMotivo", christmas);
        server.addresses.clear();
        pick(queue, "cboMotivo", 0);
        EXPECT_EQ(server.queries(), (Texts{queueQuery("--------")}));
        deleting(queue, [](QWidget& deletion) {
            EXPECT_EQ(items(deletion, "cboMotivo"), (Texts{"--------"}));
            click(deletion, "cmdCancelar");
        });
        EXPECT_EQ(server.addresses.size(), 1U);
    });
}

TEST_F(QueueScreen, ComingBackReadsTheQueueOfTheReason) {
    inReadQueue(1, [this](QWidget& queue) {
        printing(queue, [](QWidget& print) { click(print, "cmdCancelar"); });
        deleting(queue, [](QWidget& deletion) { click(deletion, "cmdCancelar"); });
        EXPECT_EQ(server.queries(), (Texts{queueQuery("NATAL"), queueQuery("NATAL")}));
    });
}

TEST_F(QueueScreen, AFailedReadingKeepsTheGrid) {
    inReadQueue(1, [this](QWidget& queue) {
        server = ScriptedLoader();
        server.on("sel_dados_empresa", answers::branch("F"));
        pick(queue, "cboMotivo", easter);
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
        EXPECT_EQ(rows(queue), 2);
        EXPECT_EQ(cell(queue, 1, 3), "NOME 1");
        // The rows still count, and the reason is the new one.
        printing(queue, [this](QWidget& print) {
            range(print, "1", "2");
            server.addresses.clear();
            click(print, "cmdOk");
            EXPECT_EQ(server.queries()[0], queueQuery("PÁSCOA", "1", "2"));
            click(print, "cmdCancelar");
        });
    });
}

TEST_F(QueueScreen, FailedReasonsLeaveNoneToChoose) {
    server.failOn("comando=sel_motivos");
    inQueue([this](QWidget& queue) {
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9Wide}));
        EXPECT_EQ(items(queue, "cboMotivo"), (Texts{"--------"}));
        EXPECT_EQ(server.queries().back(), queueQuery("--------"));
        EXPECT_EQ(server.addresses.size(), 3U);
    });
}

TEST_F(QueueScreen, FailedBranchesLeaveAnEmptyListAndTheFormerSender) {
    inReadQueue(4, [](QWidget& queue) { pick(queue, "CboFilialRemet", south); });
    server.failOn("comando=sel_filiais_remetente");
    inQueue([this](QWidget& queue) {
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
        EXPECT_EQ(items(queue, "CboFilialRemet"), Texts{});
        pick(queue, "cboMotivo", christmas);
        pick(queue, "cboTp_Form", 4);
        printing(queue, [](QWidget& print) {
            range(print, "1", "2");
            click(print, "cmdOk");
        });
        EXPECT_THAT(server.queries(), testing::Contains(senderQuery("12")));
    });
}

TEST_F(QueueScreen, TheSenderIsAskedForOnTheFourthFormOnlyAndKept) {
    inReadQueue(3, [this](QWidget& queue) {
        const auto shown = [&queue] {
            return named<QWidget>(queue, "CboFilialRemet").isVisible() &&
                   named<QWidget>(queue, "LblFilialRemet").isVisible();
        };
        EXPECT_FALSE(shown());
        pick(queue, "cboTp_Form", 4);
        EXPECT_TRUE(shown());
        pick(queue, "CboFilialRemet", south);
        pick(queue, "cboTp_Form", 1);
        EXPECT_FALSE(shown());
        printing(queue, [](QWidget& print) {
            range(print, "1", "2");
            click(print, "cmdOk");
        });
        EXPECT_EQ(server.queries(),
                  (Texts{queueQuery("NATAL", "1", "2"), senderQuery("12"), queueQuery("NATAL")}));
        EXPECT_EQ(named<QComboBox>(queue, "CboFilialRemet").currentIndex(), south);
    });
}

TEST_F(QueueScreen, NoSenderChosenTravelsAsZero) {
    inReadQueue(4, [this](QWidget& queue) {
        pick(queue, "CboFilialRemet", south);
        pick(queue, "CboFilialRemet", 0);
        printing(queue, [](QWidget& print) {
            range(print, "1", "2");
            click(print, "cmdOk");
        });
        EXPECT_EQ(server.queries()[1], senderQuery("0"));
    });
}

TEST_F(QueueScreen, ANewOpeningForgetsTheSender) {
    inReadQueue(4, [](QWidget& queue) { pick(queue, "CboFilialRemet", south); });
    inReadQueue(4, [this](QWidget& queue) {
        printing(queue, [](QWidget& print) {
            range(print, "1", "2");
            click(print, "cmdOk");
        });
        EXPECT_EQ(server.queries()[1], senderQuery("0"));
    });
}

TEST_F(QueueScreen, EscLeavesNothingAndEnterPressesTheFocusedButtonOnly) {
    inQueue([](QWidget& queue) {
        named<QWidget>(queue, "cboMotivo").setFocus();
        key(queue, Qt::Key_Return);
        EXPECT_TRUE(queue.isVisible());
        key(queue, Qt::Key_Escape);
        EXPECT_TRUE(queue.isVisible());
        queue.close();
    });
    inQueue([](QWidget& queue) {
        named<QWidget>(queue, "cmdVoltar").setFocus();
        key(queue, Qt::Key_Return);
        EXPECT_FALSE(queue.isVisible());
    });
}

TEST_F(QueueScreen, AQueueLongerThanAnyCounterOf16Bits) {
    std::string many;
    for (int i = 0; i < 40000; ++i) {
        many += "<z:row SEQUENCIAL='" + std::to_string(i + 1) + "'/>";
    }
    server.on("sDc_Mot_Imp=NATAL&", answers::rowset(many));
    inQueue([this](QWidget& queue) {
        pick(queue, "cboMotivo", christmas);
        EXPECT_EQ(rows(queue), 40000);
        EXPECT_EQ(cell(queue, 40000, 1), "40000");
        pick(queue, "cboTp_Form", 1);
        printing(queue, [](QWidget& print) { click(print, "cmdCancelar"); });
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

}  // namespace
}  // namespace tarn::test
