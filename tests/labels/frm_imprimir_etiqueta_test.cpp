#include <gmock/gmock.h>

#include <QDialog>

#include "tests/labels/label_screens.h"
#include "tests/support/entering.h"
#include "tests/support/texts.h"

namespace tarn::test {

using namespace labels;
namespace {

using PrintScreen = LabelScreens;

TEST_F(PrintScreen, ShowsTheFormAndWaitsForTheRange) {
    const std::vector<std::string> names{"PIMACO 6280 - LASER", "PIMACO - XXX - MATRICIAL",
                                         "PDF - A5 - LASER",
                                         "PDF - A4 - DESTINATÁRIO - REMETENTE - LASER"};
    for (int form = 1; form <= 4; ++form) {
        inPrinting(form, [&](QWidget& print) {
            EXPECT_EQ(print.windowTitle(), QStringLiteral("Imprimir Etiquetas"));
            EXPECT_EQ(items(print, "cboTp_Form"),
                      (Texts{names[static_cast<std::size_t>(form - 1)]}));
            const auto& list = named<QComboBox>(print, "cboTp_Form");
            EXPECT_EQ(list.currentIndex(), 0);
            EXPECT_EQ(list.currentData().toInt(), form);
            EXPECT_EQ(focused(print), "txtDe");
            click(print, "cmdCancelar");
        });
    }
}

TEST_F(PrintScreen, LabelsAndTabOrder) {
    inPrinting(1, [](QWidget& print) {
        EXPECT_EQ(labelOf(print, "cboTp_Form"), "Tipo de Formulário");
        EXPECT_EQ(named<QLabel>(print, "lblImprimir").text(), QStringLiteral("Imprimir"));
        EXPECT_EQ(named<QLabel>(print, "lblSequencial").text(), QStringLiteral("Seqüencial"));
        EXPECT_EQ(labelOf(print, "txtDe"), "De");
        EXPECT_EQ(labelOf(print, "txtAte"), "Até");
        EXPECT_EQ(tabOrder(print, "cboTp_Form", 6),
                  (Texts{"cboTp_Form", "txtDe", "txtAte", "cmdOk", "cmdCancelar", "cboTp_Form"}));
        click(print, "cmdCancelar");
    });
}

TEST_F(PrintScreen, OnlyDigitsAndTheCommaAreTyped) {
    inPrinting(1, [this](QWidget& print) {
        for (const char* name : {"txtDe", "txtAte"}) {
            machine.beeps = 0;
            type(print, name, "1a.2-,3 ");
            EXPECT_EQ(text(print, name), "12,3");
            EXPECT_EQ(machine.beeps, 4) << "a . - and the blank";
            QTest::keyClick(&named<QWidget>(print, name), Qt::Key_Backspace);
            EXPECT_EQ(text(print, name), "12,");
            EXPECT_EQ(machine.beeps, 4);
        }
        click(print, "cmdCancelar");
    });
}

TEST_F(PrintScreen, EnterGoesToTheNextControlWithABeep) {
    inPrinting(1, [this](QWidget& print) {
        named<QWidget>(print, "txtDe").setFocus();
        key(print, Qt::Key_Return);
        EXPECT_EQ(focused(print), "txtAte");
        key(print, Qt::Key_Enter);
        EXPECT_EQ(focused(print), "cmdOk");
        EXPECT_EQ(machine.beeps, 2);
        EXPECT_TRUE(boxes.shown.empty()) << "nothing was pressed";
        click(print, "cmdCancelar");
    });
}

TEST_F(PrintScreen, PrintsTheRangeAndCloses) {
    inReadQueue(1, [this](QWidget& queue) {
        printing(queue, [this](QWidget& print) {
            range(print, "007", "1000");
            boxes.onShow = [this](const Box&) { EXPECT_FALSE(printer.ended()); };
            click(print, "cmdOk");
            EXPECT_FALSE(print.isVisible());
        });
        EXPECT_EQ(server.queries(),
                  (Texts{queueQuery("NATAL", "7", "1000"), senderQuery("0"), queueQuery("NATAL")}));
    });
    EXPECT_EQ(boxes.shown, (Boxes{printedBox}));
    EXPECT_EQ(printer.operations.size(), 2U + 2U * 8U + 2U);
    EXPECT_TRUE(printer.ended());
}

TEST_F(PrintScreen, TheRawFormPrintsWithoutAWord) {
    inPrinting(2, [](QWidget& print) {
        range(print, "1", "2");
        click(print, "cmdOk");
        EXPECT_FALSE(print.isVisible());
    });
    EXPECT_EQ(boxes.shown, Boxes{});
    ASSERT_EQ(spooler.jobs.size(), 2U);
    EXPECT_EQ(spooler.jobs[0].bytes(), " \x0F\x1BM");
    EXPECT_EQ(spooler.jobs[1].writes.size(), 15U);
    EXPECT_TRUE(printer.operations.empty());
}

TEST_F(PrintScreen, ARangeWithoutLabelsSaysSoAndCloses) {
    server.on("sDc_Mot_Imp=NATAL&nSeq_De=8", labelRows(0));
    for (const int form : {1, 3, 4}) {
        boxes.shown.clear();
        printer.operations.clear();
        inPrinting(form, [](QWidget& print) {
            range(print, "8", "9");
            click(print, "cmdOk");
            EXPECT_FALSE(print.isVisible());
        });
        EXPECT_EQ(boxes.shown, (Boxes{information(" Não há Etiquetas nesse intervalo!   ")}));
        EXPECT_EQ(printer.lines(), (Texts{"scale\t7", "orientation\t1"}));
    }
    inPrinting(2, [](QWidget& print) {
        range(print, "8", "9");
        click(print, "cmdOk");
        EXPECT_FALSE(print.isVisible());
    });
    EXPECT_EQ(boxes.shown.size(), 1U) << "the raw form says nothing";
}

TEST_F(PrintScreen, AFailedRequestLeavesItOpenForAnotherTry) {
    server.failOn("sDc_Mot_Imp=NATAL&nSeq_De=8").on("sDc_Mot_Imp=NATAL&nSeq_De=8", labelRows(1));
    inPrinting(3, [this](QWidget& print) {
        range(print, "8", "9");
        click(print, "cmdOk");
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
        EXPECT_TRUE(print.isVisible());
        EXPECT_EQ(text(print, "txtDe") + "-" + text(print, "txtAte"), "8-9");
        EXPECT_TRUE(printer.operations.empty());
        EXPECT_EQ(server.queries().size(), 1U) << "the sender isn't asked for";
        click(print, "cmdOk");
        EXPECT_FALSE(print.isVisible());
    });
    EXPECT_EQ(boxes.shown, (Boxes{noInternet9, printedBox}));
}

TEST_F(PrintScreen, AFailedSenderLeavesItOpenToo) {
    server.failOn("comando=sel_dados_remetente");
    inPrinting(2, [this](QWidget& print) {
        range(print, "1", "2");
        click(print, "cmdOk");
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
        EXPECT_TRUE(print.isVisible());
        EXPECT_TRUE(spooler.calls.empty());
        click(print, "cmdCancelar");
    });
}

TEST_F(PrintScreen, ASenderWithoutARowIsReportedAndItStaysOpen) {
    server.on("comando=sel_dados_remetente", answers::rowset(""));
    for (int form = 1; form <= 4; ++form) {
        inPrinting(form, [this](QWidget& print) {
            boxes.shown.clear();
            range(print, "1", "2");
            click(print, "cmdOk");
            ASSERT_EQ(boxes.shown.size(), 1U);
            EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
            EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
            EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '91':\r\r", 0), 0U);
            EXPECT_TRUE(print.isVisible());
            click(print, "cmdCancelar");
        });
    }
    EXPECT_FALSE(end.ended());
    EXPECT_TRUE(printer.operations.empty());
    EXPECT_TRUE(spooler.calls.empty());
}

TEST_F(PrintScreen, ARangeThatIsNoNumberIsReportedAndItStaysOpen) {
    inPrinting(1, [this](QWidget& print) {
        for (const auto& [from, to] :
             {std::pair{"", ""}, std::pair{"1", ""}, std::pair{",", "2"}, std::pair{"1", "1,,2"}}) {
            boxes.shown.clear();
            range(print, from, to);
            named<QWidget>(print, "cmdOk").setFocus();
            key(print, Qt::Key_Return);
            ASSERT_EQ(boxes.shown.size(), 1U);
            EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
            EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
            EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13':\r\r", 0), 0U);
            EXPECT_TRUE(print.isVisible());
            EXPECT_EQ(text(print, "txtDe"), from);
            EXPECT_EQ(text(print, "txtAte"), to);
            EXPECT_EQ(focused(print), "cmdOk") << "the focus isn't moved";
        }
        EXPECT_TRUE(server.addresses.empty());
        range(print, "1,5", "2");
        click(print, "cmdOk");
        EXPECT_EQ(server.queries()[0], queueQuery("NATAL", "1,5", "2"));
    });
    EXPECT_FALSE(end.ended());
}

TEST_F(PrintScreen, AFailureWhileDrawingIsShownAndPrintingGoesOn) {
    printer.failAt = 4;
    inPrinting(3, [](QWidget& print) {
        range(print, "1", "2");
        click(print, "cmdOk");
        EXPECT_FALSE(print.isVisible());
    });
    EXPECT_EQ(boxes.shown, (Boxes{printerRefused, printedBox}));
    EXPECT_EQ(printer.operations.size(), 2U + 2U * 8U + 2U);
}

TEST_F(PrintScreen, TheRangeTakesNumbersOnly) {
    inPrinting(1, [this](QWidget& print) {
        for (const char* name : {"txtDe", "txtAte"}) {
            expectNumbersOnly(print, name, machine, Comma::Taken);
        }
        click(print, "cmdCancelar");
    });
}

TEST_F(PrintScreen, WhatTheFieldHoldsIsReadWhole) {
    inPrinting(1, [this](QWidget& print) {
        const auto read = [&](const char* text) {
            boxes.shown.clear();
            server.addresses.clear();
            named<QLineEdit>(print, "txtDe").setText(QString::fromUtf8(text));
            named<QLineEdit>(print, "txtAte").setText(QStringLiteral("9"));
            click(print, "cmdOk");
            return boxes.shown.empty() ? std::string() : boxes.shown[0].text;
        };
        for (const char* text : {"1a", "7\n8", "1e3", "R$ 1", "1 2", "--1", "<b>1</b>"}) {
            EXPECT_EQ(read(text).rfind("Erro em tempo de execução '13':", 0), 0U) << text;
            EXPECT_TRUE(server.addresses.empty()) << text;
            EXPECT_TRUE(print.isVisible());
        }
        server.failOn("sDc_Mot_Imp=NATAL&nSeq_De=");
        for (const auto& [text, sent] :
             {std::pair{" 007 ", "7"}, std::pair{"1.234", "1234"}, std::pair{"7,50", "7,5"},
              std::pair{",5", "0,5"}, std::pair{"-3", "-3"}, std::pair{"0", "0"},
              std::pair{"123456789012345678", "123456789012346000"}}) {
            read(text);
            ASSERT_EQ(server.addresses.size(), 1U) << text;
            EXPECT_THAT(server.queries()[0],
                        testing::HasSubstr(std::string("&nSeq_De=") + sent + "&nSeq_Ate=9&"));
        }
        click(print, "cmdCancelar");
    });
}

TEST_F(PrintScreen, ADocumentRefusedAfterTheBoxIsToldAndTheScreenStaysForAnotherTry) {
    // Two labels: the unit and the orientation, the texts, then what ends the document.
    for (const auto& [form, failAt] : {std::pair{1, 18U}, std::pair{1, 19U}, std::pair{3, 18U},
                                       std::pair{3, 19U}, std::pair{4, 2U + 2U * 26U}}) {
        boxes.shown.clear();
        printer = RecordingPrinter();
        printer.failAt = failAt;
        inPrinting(form, [this](QWidget& print) {
            range(print, "1", "2");
            click(print, "cmdOk");
            EXPECT_TRUE(printer.ended());
            EXPECT_TRUE(print.isVisible());
            EXPECT_EQ(text(print, "txtDe"), "1");
            EXPECT_EQ(boxes.shown, (Boxes{printedBox, printerRefused}));
            click(print, "cmdOk");
            EXPECT_FALSE(print.isVisible());
        });
        EXPECT_EQ(boxes.shown, (Boxes{printedBox, printerRefused, printedBox}))
            << form << " " << failAt;
    }
}

TEST_F(PrintScreen, ADocumentRefusedBeforeTheBoxIsToldInItsPlace) {
    printer.failAt = 2 + 25;  // the first page of the fourth form
    inPrinting(4, [this](QWidget& print) {
        range(print, "1", "2");
        click(print, "cmdOk");
        EXPECT_TRUE(print.isVisible());
        EXPECT_TRUE(printer.ended());
        click(print, "cmdCancelar");
    });
    EXPECT_EQ(boxes.shown, (Boxes{printerRefused}));
}

TEST_F(PrintScreen, ADocumentIsToldOfOnceAndEachSheetIsOne) {
    server.on("nSeq_De=8&nSeq_Ate=61&", labelRows(61));
    for (const auto& [form, told] : {std::pair{1, 3}, std::pair{3, 1}, std::pair{4, 1}}) {
        boxes.shown.clear();
        printer = RecordingPrinter();
        printer.refuses = isNoText;
        inPrinting(form, [](QWidget& print) {
            range(print, "8", "61");
            click(print, "cmdOk");
            EXPECT_TRUE(print.isVisible());
            click(print, "cmdCancelar");
        });
        EXPECT_EQ(std::count(boxes.shown.begin(), boxes.shown.end(), printerRefused), told) << form;
        // Only the third form ends after all is drawn and told.
        EXPECT_EQ(std::count(boxes.shown.begin(), boxes.shown.end(), printedBox), form == 3 ? 1 : 0)
            << form;
    }
}

TEST_F(PrintScreen, WhatIsPressedWhileItFetchesAndPrintsIsLost) {
    constexpr int many = 5000;
    server.on("sDc_Mot_Imp=NATAL&nSeq_De=8", labelRows(many));
    for (const int form : {1, 2, 3, 4}) {
        boxes.shown.clear();
        spooler.jobs.clear();
        printer = RecordingPrinter();
        inPrinting(form, [&](QWidget& print) {
            range(print, "8", "9000");
            QTimer impatience;
            QObject::connect(&impatience, &QTimer::timeout, &impatience,
                             [&print] { press(print, "cmdOk"); });
            impatience.start(0);
            click(print, "cmdOk");
            impatience.stop();
            EXPECT_FALSE(print.isVisible());
            EXPECT_EQ(static_cast<QDialog&>(print).result(), QDialog::Accepted);
        });
        EXPECT_EQ(boxes.shown.size(), form == 2 ? 0U : 1U);
        EXPECT_EQ(spooler.jobs.size(), form == 2 ? 2U : 0U);
        EXPECT_EQ(server.queries(), (Texts{queueQuery("NATAL", "8", "9000"), senderQuery("0"),
                                           queueQuery("NATAL"), deskQuery}))
            << "fetched once";
    }
}

TEST_F(PrintScreen, ThirtyAndSixtyOneLabelsOnSheets) {
    struct Sheets {
        int count;  // of labels
        std::size_t documents;
    };
    for (const Sheets sheets : {Sheets{29, 1}, {30, 2}, {31, 2}, {61, 3}}) {
        const int count = sheets.count;
        const std::size_t documents = sheets.documents;
        server.on("nSeq_De=8&nSeq_Ate=" + std::to_string(count) + "&", labelRows(count));
        boxes.shown.clear();
        printer = RecordingPrinter();
        boxes.onShow = [&](const Box&) {
            EXPECT_THAT(printer.lines(), testing::Contains("enddoc").Times(documents - 1));
        };
        inPrinting(1, [count](QWidget& print) {
            range(print, "8", std::to_string(count).c_str());
            click(print, "cmdOk");
        });
        boxes.onShow = nullptr;
        EXPECT_THAT(printer.lines(), testing::Contains("enddoc").Times(documents)) << count;
        EXPECT_EQ(boxes.shown, (Boxes{printedBox}));
    }
}

TEST_F(PrintScreen, AFieldInAnotherCaseEndsTheProgramBeforeTheSheetComesOut) {
    server.on("sDc_Mot_Imp=NATAL&nSeq_De=8", answers::rowset(labelRow(1) + "<z:row nome='X'/>"));
    inPrinting(1, [](QWidget& print) {
        range(print, "8", "9");
        click(print, "cmdOk");
        click(print, "cmdCancelar");  // the program itself would be gone
    });
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '91':", 0), 0U);
    EXPECT_EQ(end.status(), 3);
    EXPECT_FALSE(printer.ended());
}

TEST_F(PrintScreen, EscLeavesNothing) {
    inPrinting(1, [this](QWidget& print) {
        range(print, "1", "2");
        key(print, Qt::Key_Escape);
        EXPECT_TRUE(print.isVisible());
        EXPECT_EQ(text(print, "txtAte"), "2");
        click(print, "cmdCancelar");
        EXPECT_TRUE(printer.operations.empty());
    });
}

TEST_F(PrintScreen, ALongRunShowsHowFarItIs) {
    constexpr int many = 5000;
    server.on("sDc_Mot_Imp=NATAL&nSeq_De=8", labelRows(many));
    for (const int form : {1, 2, 3, 4}) {
        boxes.shown.clear();
        inPrinting(form, [&](QWidget& print) {
            range(print, "8", "9000");
            const std::vector<std::string> told =
                watchProgress(print, [&] { click(print, "cmdOk"); });
            ASSERT_FALSE(told.empty()) << "form " << form;
            for (const std::string& line : told) {
                EXPECT_THAT(line, testing::AllOf(testing::StartsWith("Imprimindo: "),
                                                 testing::EndsWith(" de 5000")));
            }
            EXPECT_FALSE(print.isVisible());
        });
        EXPECT_EQ(boxes.shown.size(), form == 2 ? 0U : 1U);
    }
    EXPECT_EQ(spooler.jobs.at(1).writes.size(), 5U * many + 5U * many / 4U);
}

}  // namespace
}  // namespace tarn::test
