// Printing from frmPesqBoleto.
#include <gmock/gmock.h>

#include <QCloseEvent>
#include <QKeyEvent>
#include <QProgressBar>
#include <QTimer>
#include <algorithm>

#include "tests/slips/slip_screen_test.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

class PrintSlipsScreen : public SlipScreenTest {
protected:
    // The slips' numbers in the order of printing.
    std::vector<std::string> numbers() {
        std::vector<std::string> all;
        for (const RecordingSpooler::Job& job : spooler.jobs) {
            const std::string bytes = job.bytes();
            const std::size_t start = bytes.find("NOSSO NUMERO: ");
            if (start != std::string::npos) {
                all.push_back(bytes.substr(start + 14, 15));
            }
        }
        return all;
    }
    void print(const QWidget& screen, const char* number) {
        type(screen, "txtNr_Bol_Banc", number);
        click(screen, "cmdImprimir");
    }
};

TEST_F(PrintSlipsScreen, PortfolioAndNumberMustBeThere) {
    withScreen([&](QWidget& screen) {
        server.addresses.clear();
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown,
                  (Boxes{information("Carteira Cobrança é um campo obrigatório!     ")}));
        EXPECT_EQ(focused(screen), "cboCartCob");
        pick(screen, "cboCartCob", wallet57Item);
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown.back(),
                  information("Nr. Boleto Bancário é um campo obrigatório!     "));
        EXPECT_EQ(focused(screen), "txtNr_Bol_Banc");
        EXPECT_EQ(server.addresses, Texts{});
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(PrintSlipsScreen, TheTickedRowsBecomeSlips) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1") + line("2") + line("3"));
        grid::click(grid(screen), 1, 1);
        grid::click(grid(screen), 3, 1);
        print(screen, "1234");
        EXPECT_EQ(server.queries(),
                  (Texts{wallet57Query,
                         "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=1"
                         "&NR_BOL_BANC=1234&ServerName=SRV1",
                         "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=3381&ID_TIP_DOC=201"
                         "&NR_DOC=1&ID_CRT_COB=5&NR_BOL_BANC=1234&ID_PES_USU=77&ServerName=SRV1",
                         "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=3"
                         "&NR_BOL_BANC=1235&ServerName=SRV1",
                         "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=3381&ID_TIP_DOC=201"
                         "&NR_DOC=3&ID_CRT_COB=5&NR_BOL_BANC=1235&ID_PES_USU=77&ServerName=SRV1"}));
        EXPECT_EQ(numbers(), (Texts{"0000000001234/7", "0000000001235/6"}));
        EXPECT_EQ(spooler.jobs.size(), 4U);
        EXPECT_EQ(grid::ticks(grid(screen)), (std::vector<bool>{false, false, false}));
        EXPECT_EQ(grid::cell(grid(screen), 3, 5), "3") << "the rows stay";
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "");
        EXPECT_EQ(focused(screen), "cmdImprimir");
        EXPECT_EQ(boxes.shown, Boxes{});
        click(screen, "cmdImprimir");
        EXPECT_EQ(boxes.shown.size(), 1U) << "the next run needs a number";
    });
}

TEST_F(PrintSlipsScreen, TheOtherWallet) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"), wallet101Item);
        grid::click(grid(screen), 1, 1);
        print(screen, "9");
        EXPECT_EQ(server.queries(),
                  (Texts{"comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=6"
                         "&ServerName=SRV1",
                         "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=1"
                         "&NR_BOL_BANC=00000094&ServerName=SRV1"}));
        EXPECT_THAT(spooler.bytes(1), testing::HasSubstr("N.N.  0000009-4\r\n"));
    });
}

TEST_F(PrintSlipsScreen, NothingTickedStillReadsThePortfolioAndEmptiesTheNumber) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"));
        print(screen, "1234");
        EXPECT_EQ(server.queries(), (Texts{wallet57Query}));
        EXPECT_EQ(boxes.shown, (Boxes{nothingTicked()}));
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "");
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(PrintSlipsScreen, ASearchWithoutResultThenPrinting) {
    withScreen([&](QWidget& screen) {
        find(screen, "");
        boxes.shown.clear();
        print(screen, "1234");
        EXPECT_EQ(server.queries(), (Texts{wallet57Query}));
        EXPECT_EQ(boxes.shown, (Boxes{nothingTicked()}));
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "1234") << "no row was looked at";
    });
}

TEST_F(PrintSlipsScreen, WithoutThePortfolioNothingHappens) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"));
        grid::click(grid(screen), 1, 1);
        server.failOn("sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=5");
        print(screen, "1234");
        EXPECT_EQ(boxes.shown, (Boxes{noInternet9}));
        EXPECT_EQ(server.queries(), (Texts{wallet57Query}));
        EXPECT_EQ(grid::ticks(grid(screen)), (std::vector<bool>{true}));
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "1234");
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(PrintSlipsScreen, ARowOfAnotherBankTakesNoNumber) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1") + line("2", "1050") + line("3"));
        grid::clickHeading(grid(screen), 1);
        print(screen, "1234");
        EXPECT_EQ(numbers(), (Texts{"0000000001234/7", "0000000001235/6"}));
        EXPECT_EQ(spooler.jobs.size(), 6U);
        EXPECT_FALSE(spooler.jobs.at(3).closed);
        EXPECT_EQ(grid::ticks(grid(screen)), (std::vector<bool>{false, false, false}));
        EXPECT_EQ(boxes.shown, Boxes{});
    });
}

TEST_F(PrintSlipsScreen, WithTheCheckBoxThePortfoliosBankCounts) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1", "1050"));
        clickCheckBox(screen);
        boxes.shown.clear();
        grid::clickHeading(grid(screen), 1);
        print(screen, "1234");
        EXPECT_EQ(numbers(), (Texts{"0000000001234/7"}));
        EXPECT_EQ(boxes.shown, Boxes{});
    });
}

TEST_F(PrintSlipsScreen, AServerThatFailsBetweenWriteAndPrintIsNotNoticed) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1") + line("2"));
        grid::clickHeading(grid(screen), 1);
        server.on("altera_docto_cob", answers::status("NAO"));
        server.failOn("insere_car_cob");
        print(screen, "1234");
        EXPECT_EQ(server.queries().size(), 5U);
        EXPECT_EQ(numbers(), (Texts{"0000000001234/7", "0000000001235/6"}));
        EXPECT_EQ(boxes.shown, Boxes{});
    });
}

TEST_F(PrintSlipsScreen, APrinterThatFailsAfterTheWriteIsNotNoticed) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1") + line("2"));
        grid::clickHeading(grid(screen), 1);
        spooler.failOpen = 1;
        print(screen, "1234");
        EXPECT_EQ(server.queries().size(), 5U) << "the server has both numbers";
        EXPECT_EQ(numbers(), (Texts{"0000000001235/6"}));
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_EQ(grid::ticks(grid(screen)), (std::vector<bool>{false, false}));
    });
}

TEST_F(PrintSlipsScreen, NoPrinterAtAllIsNotNoticed) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"));
        grid::clickHeading(grid(screen), 1);
        spooler.printer = "";
        spooler.failOpen = 0;
        print(screen, "1234");
        EXPECT_EQ(server.queries().size(), 3U);
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "");
    });
}

TEST_F(PrintSlipsScreen, AfterTheLastSevenDigitNumberTheProgramEnds) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1") + line("2"), wallet101Item);
        grid::clickHeading(grid(screen), 1);
        print(screen, "9999999");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("Erro em tempo de execução '5':\r\r"));
        EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
        EXPECT_TRUE(end.ended());
        EXPECT_EQ(server.queries().size(), 2U);
        EXPECT_TRUE(spooler.jobs.back().closed);
        EXPECT_EQ(grid::ticks(grid(screen)), (std::vector<bool>{false, true}));
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "9999999");
    });
}

// Agency and account too short for the check digit: the row's tick is gone and its job
// is open with the set-up only, nothing of it was written.
TEST_F(PrintSlipsScreen, APortfolioTooShortForTheCheckDigitEndsTheProgram) {
    server.on("sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=5",
              answers::rowset("<z:row ID_CRT_COB='5' ID_PES_BAN='1016' NR_CRT_CNAB='57' "
                              "CD_AGE_BAN_CNAB='1123' NR_CCOR_CNAB='45-678'/>"));
    withScreen([&](QWidget& screen) {
        find(screen, line("1") + line("2"));
        grid::clickHeading(grid(screen), 1);
        print(screen, "1234");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("Erro em tempo de execução '5':\r\r"));
        EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
        EXPECT_EQ(end.status(), 3);
        EXPECT_EQ(server.queries(), (Texts{wallet57Query}));
        ASSERT_EQ(spooler.jobs.size(), 2U);
        EXPECT_TRUE(spooler.jobs[0].closed);
        EXPECT_FALSE(spooler.jobs[1].closed);
        EXPECT_EQ(spooler.jobs[1].bytes(), " \x1B\x32 \x0F\x1BG");
        EXPECT_EQ(grid::ticks(grid(screen)), (std::vector<bool>{false, true}));
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "1234");
    });
}

// The slip that is under way comes out whole; what was clicked and closed meanwhile
// doesn't count.
TEST_F(PrintSlipsScreen, ASecondClickOrClosingDuringTheRunDoesNothing) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1") + line("2"));
        grid::clickHeading(grid(screen), 1);
        type(screen, "txtNr_Bol_Banc", "1234");
        auto& button = named<QPushButton>(screen, "cmdImprimir");
        const QPointF middle = button.rect().center();
        for (const QEvent::Type half : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QCoreApplication::postEvent(
                &button, new QMouseEvent(half, middle, button.mapToGlobal(middle), Qt::LeftButton,
                                         Qt::LeftButton, Qt::NoModifier));
        }
        QCoreApplication::postEvent(&screen, new QCloseEvent);
        click(screen, "cmdImprimir");
        QCoreApplication::processEvents();
        EXPECT_EQ(numbers(), (Texts{"0000000001234/7", "0000000001235/6"}));
        EXPECT_EQ(server.queries().size(), 5U);
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_TRUE(screen.isVisible());
        EXPECT_FALSE(end.ended());
    });
}

TEST_F(PrintSlipsScreen, ANumberThatIsNoneEndsTheProgram) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"));
        print(screen, ",");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("Erro em tempo de execução '13':"));
        EXPECT_TRUE(end.ended());
    });
}

// What shows while the slips of 500 documents come out: the count goes up, and a click
// meanwhile does nothing.
TEST_F(PrintSlipsScreen, FiveHundredSlipsShowHowFarTheyAre) {
    withScreen([&](QWidget& screen) {
        std::string lines;
        for (int i = 1; i <= 500; ++i) {
            lines += line(std::to_string(i));
        }
        find(screen, lines);
        grid::clickHeading(grid(screen), 1);
        std::vector<int> seen;
        QTimer look;  // without a name it is none of the screen's own
        QObject::connect(&look, &QTimer::timeout, [&] {
            if (auto* bar = screen.findChild<QProgressBar*>(QStringLiteral("barProgress"))) {
                EXPECT_EQ(bar->maximum(), 500);
                seen.push_back(bar->value());
                QCoreApplication::postEvent(
                    &named<QWidget>(screen, "cmdVoltar"),
                    new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
                QCoreApplication::postEvent(
                    &named<QWidget>(screen, "cmdVoltar"),
                    new QKeyEvent(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier));
            }
        });
        look.start(0);
        print(screen, "1");
        look.stop();
        ASSERT_GT(seen.size(), 10U);
        EXPECT_TRUE(std::is_sorted(seen.begin(), seen.end()));
        EXPECT_LT(seen.front(), 50);
        EXPECT_GT(seen.back(), 450);
        EXPECT_EQ(screen.findChild<QProgressBar*>(QStringLiteral("barProgress")), nullptr);
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(server.queries().size(), 1U + 2 * 500);
        EXPECT_EQ(numbers().size(), 500U);
        EXPECT_THAT(numbers().back(), testing::StartsWith("0000000000500/"));
        EXPECT_THAT(grid::ticks(grid(screen)), testing::Each(false));
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "");
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

}  // namespace
}  // namespace tarn::test
