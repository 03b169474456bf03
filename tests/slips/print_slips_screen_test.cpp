// Printing from frmPesqBoleto.
#include <QCloseEvent>
#include <QKeyEvent>
#include <QProgressBar>
#include <QTimer>
#include <algorithm>

#include "tests/slips/slip_screen_test.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class ImpressaoNaTela : public TelaDeBoletos {
protected:
    // The slips' numbers in the order of printing.
    std::vector<std::string> numeros() {
        std::vector<std::string> todos;
        for (const RecordingSpooler::Job& job : spooler.jobs) {
            const std::string bytes = job.bytes();
            const std::size_t inicio = bytes.find("NOSSO NUMERO: ");
            if (inicio != std::string::npos) {
                todos.push_back(bytes.substr(inicio + 14, 15));
            }
        }
        return todos;
    }
    void imprime(const QWidget& tela, const char* numero) {
        type(tela, "txtNr_Bol_Banc", numero);
        click(tela, "cmdImprimir");
    }
};

TEST_F(ImpressaoNaTela, PortfolioAndNumberMustBeThere) {
    comATela([&](QWidget& tela) {
        server.addresses.clear();
        click(tela, "cmdImprimir");
        EXPECT_THAT(boxes.shown,
                    ElementsAre(informa("Carteira Cobrança é um campo obrigatório!     ")));
        EXPECT_EQ(focused(tela), "cboCartCob");
        pick(tela, "cboCartCob", cobra57);
        click(tela, "cmdImprimir");
        EXPECT_EQ(boxes.shown.back(), informa("Nr. Boleto Bancário é um campo obrigatório!     "));
        EXPECT_EQ(focused(tela), "txtNr_Bol_Banc");
        EXPECT_THAT(server.addresses, IsEmpty());
    });
    EXPECT_THAT(spooler.calls, IsEmpty());
}

TEST_F(ImpressaoNaTela, TheTickedRowsBecomeSlips) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1") + linha("2") + linha("3"));
        grid::click(grade(tela), 1, 1);
        grid::click(grade(tela), 3, 1);
        imprime(tela, "1234");
        EXPECT_THAT(
            server.queries(),
            ElementsAre(pedeCarteira57,
                        "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=1"
                        "&NR_BOL_BANC=1234&ServerName=SRV1",
                        "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=3381&ID_TIP_DOC=201"
                        "&NR_DOC=1&ID_CRT_COB=5&NR_BOL_BANC=1234&ID_PES_USU=77&ServerName=SRV1",
                        "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=3"
                        "&NR_BOL_BANC=1235&ServerName=SRV1",
                        "comando=insere_car_cob&ID_EMP_TARN=2161&ID_ETB=3381&ID_TIP_DOC=201"
                        "&NR_DOC=3&ID_CRT_COB=5&NR_BOL_BANC=1235&ID_PES_USU=77&ServerName=SRV1"));
        EXPECT_THAT(numeros(), ElementsAre("0000000001234/7", "0000000001235/6"));
        EXPECT_EQ(spooler.jobs.size(), 4U);
        EXPECT_THAT(grid::ticks(grade(tela)), ElementsAre(false, false, false));
        EXPECT_EQ(grid::cell(grade(tela), 3, 5), "3") << "the rows stay";
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "");
        EXPECT_EQ(focused(tela), "cmdImprimir");
        EXPECT_THAT(boxes.shown, IsEmpty());
        click(tela, "cmdImprimir");
        EXPECT_EQ(boxes.shown.size(), 1U) << "the next run needs a number";
    });
}

TEST_F(ImpressaoNaTela, TheOtherWallet) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"), cobra101);
        grid::click(grade(tela), 1, 1);
        imprime(tela, "9");
        EXPECT_THAT(server.queries(),
                    ElementsAre("comando=sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=6"
                                "&ServerName=SRV1",
                                "comando=altera_docto_cob&ID_ETB=3381&ID_TIP_DOC=201&NR_DOC=1"
                                "&NR_BOL_BANC=00000094&ServerName=SRV1"));
        EXPECT_THAT(spooler.bytes(1), testing::HasSubstr("N.N.  0000009-4\r\n"));
    });
}

TEST_F(ImpressaoNaTela, NothingTickedStillReadsThePortfolioAndEmptiesTheNumber) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"));
        imprime(tela, "1234");
        EXPECT_THAT(server.queries(), ElementsAre(pedeCarteira57));
        EXPECT_THAT(boxes.shown, ElementsAre(nenhumMarcado()));
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "");
    });
    EXPECT_THAT(spooler.calls, IsEmpty());
}

TEST_F(ImpressaoNaTela, ASearchWithoutResultThenPrinting) {
    comATela([&](QWidget& tela) {
        encontra(tela, "");
        boxes.shown.clear();
        imprime(tela, "1234");
        EXPECT_THAT(server.queries(), ElementsAre(pedeCarteira57));
        EXPECT_THAT(boxes.shown, ElementsAre(nenhumMarcado()));
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "1234") << "no row was looked at";
    });
}

TEST_F(ImpressaoNaTela, WithoutThePortfolioNothingHappens) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"));
        grid::click(grade(tela), 1, 1);
        server.failOn("sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=5");
        imprime(tela, "1234");
        EXPECT_THAT(boxes.shown, ElementsAre(falha()));
        EXPECT_THAT(server.queries(), ElementsAre(pedeCarteira57));
        EXPECT_THAT(grid::ticks(grade(tela)), ElementsAre(true));
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "1234");
    });
    EXPECT_THAT(spooler.calls, IsEmpty());
}

TEST_F(ImpressaoNaTela, ARowOfAnotherBankTakesNoNumber) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1") + linha("2", "1050") + linha("3"));
        grid::clickHeading(grade(tela), 1);
        imprime(tela, "1234");
        EXPECT_THAT(numeros(), ElementsAre("0000000001234/7", "0000000001235/6"));
        EXPECT_EQ(spooler.jobs.size(), 6U);
        EXPECT_FALSE(spooler.jobs.at(3).closed);
        EXPECT_THAT(grid::ticks(grade(tela)), ElementsAre(false, false, false));
        EXPECT_THAT(boxes.shown, IsEmpty());
    });
}

TEST_F(ImpressaoNaTela, WithTheCheckBoxThePortfoliosBankCounts) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1", "1050"));
        clicaCaixa(tela);
        boxes.shown.clear();
        grid::clickHeading(grade(tela), 1);
        imprime(tela, "1234");
        EXPECT_THAT(numeros(), ElementsAre("0000000001234/7"));
        EXPECT_THAT(boxes.shown, IsEmpty());
    });
}

TEST_F(ImpressaoNaTela, AServerThatFailsBetweenWriteAndPrintIsNotNoticed) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1") + linha("2"));
        grid::clickHeading(grade(tela), 1);
        server.on("altera_docto_cob", answers::status("NAO"));
        server.failOn("insere_car_cob");
        imprime(tela, "1234");
        EXPECT_EQ(server.queries().size(), 5U);
        EXPECT_THAT(numeros(), ElementsAre("0000000001234/7", "0000000001235/6"));
        EXPECT_THAT(boxes.shown, IsEmpty());
    });
}

TEST_F(ImpressaoNaTela, APrinterThatFailsAfterTheWriteIsNotNoticed) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1") + linha("2"));
        grid::clickHeading(grade(tela), 1);
        spooler.failOpen = 1;
        imprime(tela, "1234");
        EXPECT_EQ(server.queries().size(), 5U) << "the server has both numbers";
        EXPECT_THAT(numeros(), ElementsAre("0000000001235/6"));
        EXPECT_THAT(boxes.shown, IsEmpty());
        EXPECT_THAT(grid::ticks(grade(tela)), ElementsAre(false, false));
    });
}

TEST_F(ImpressaoNaTela, NoPrinterAtAllIsNotNoticed) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"));
        grid::clickHeading(grade(tela), 1);
        spooler.printer = "";
        spooler.failOpen = 0;
        imprime(tela, "1234");
        EXPECT_EQ(server.queries().size(), 3U);
        EXPECT_THAT(boxes.shown, IsEmpty());
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "");
    });
}

TEST_F(ImpressaoNaTela, AfterTheLastSevenDigitNumberTheProgramEnds) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1") + linha("2"), cobra101);
        grid::clickHeading(grade(tela), 1);
        imprime(tela, "9999999");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("Erro em tempo de execução '5':\r\r"));
        EXPECT_EQ(boxes.shown[0].icon, BoxIcon::Critical);
        EXPECT_TRUE(fim.encerrado());
        EXPECT_EQ(server.queries().size(), 2U);
        EXPECT_TRUE(spooler.jobs.back().closed);
        EXPECT_THAT(grid::ticks(grade(tela)), ElementsAre(false, true));
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "9999999");
    });
}

// Agency and account too short for the check digit: the row's tick is gone and its job
// is open with the set-up only, nothing of it was written.
TEST_F(ImpressaoNaTela, APortfolioTooShortForTheCheckDigitEndsTheProgram) {
    server.on("sel_carteira_cob&ID_EMP_TARN=2161&ID_CRT_COB=5",
              answers::rowset("<z:row ID_CRT_COB='5' ID_PES_BAN='1016' NR_CRT_CNAB='57' "
                              "CD_AGE_BAN_CNAB='1123' NR_CCOR_CNAB='45-678'/>"));
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1") + linha("2"));
        grid::clickHeading(grade(tela), 1);
        imprime(tela, "1234");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("Erro em tempo de execução '5':\r\r"));
        EXPECT_EQ(boxes.shown[0].title, "TarnEmissao");
        EXPECT_EQ(fim.status(), 3);
        EXPECT_THAT(server.queries(), ElementsAre(pedeCarteira57));
        ASSERT_EQ(spooler.jobs.size(), 2U);
        EXPECT_TRUE(spooler.jobs[0].closed);
        EXPECT_FALSE(spooler.jobs[1].closed);
        EXPECT_EQ(spooler.jobs[1].bytes(), " \x1B\x32 \x0F\x1BG");
        EXPECT_THAT(grid::ticks(grade(tela)), ElementsAre(false, true));
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "1234");
    });
}

// The slip that is under way comes out whole; what was clicked and closed meanwhile
// doesn't count.
TEST_F(ImpressaoNaTela, ASecondClickOrClosingDuringTheRunDoesNothing) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1") + linha("2"));
        grid::clickHeading(grade(tela), 1);
        type(tela, "txtNr_Bol_Banc", "1234");
        auto& botao = named<QPushButton>(tela, "cmdImprimir");
        const QPointF meio = botao.rect().center();
        for (const QEvent::Type metade : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QCoreApplication::postEvent(
                &botao, new QMouseEvent(metade, meio, botao.mapToGlobal(meio), Qt::LeftButton,
                                        Qt::LeftButton, Qt::NoModifier));
        }
        QCoreApplication::postEvent(&tela, new QCloseEvent);
        QCoreApplication::postEvent(&menu, new QCloseEvent);
        click(tela, "cmdImprimir");
        QCoreApplication::processEvents();
        EXPECT_THAT(numeros(), ElementsAre("0000000001234/7", "0000000001235/6"));
        EXPECT_EQ(server.queries().size(), 5U);
        EXPECT_THAT(boxes.shown, IsEmpty());
        EXPECT_TRUE(tela.isVisible());
        EXPECT_FALSE(fim.encerrado());
    });
}

TEST_F(ImpressaoNaTela, ANumberThatIsNoneEndsTheProgram) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"));
        imprime(tela, ",");
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_THAT(boxes.shown[0].text, testing::StartsWith("Erro em tempo de execução '13':"));
        EXPECT_TRUE(fim.encerrado());
    });
}

// What shows while the slips of 500 documents come out: the count goes up, and a click
// meanwhile does nothing.
TEST_F(ImpressaoNaTela, FiveHundredSlipsShowHowFarTheyAre) {
    comATela([&](QWidget& tela) {
        std::string linhas;
        for (int i = 1; i <= 500; ++i) {
            linhas += linha(std::to_string(i));
        }
        encontra(tela, linhas);
        grid::clickHeading(grade(tela), 1);
        std::vector<int> vistos;
        QTimer olha;  // without a name it is none of the screen's own
        QObject::connect(&olha, &QTimer::timeout, [&] {
            if (auto* barra = tela.findChild<QProgressBar*>(QStringLiteral("barAndamento"))) {
                EXPECT_EQ(barra->maximum(), 500);
                vistos.push_back(barra->value());
                QCoreApplication::postEvent(
                    &named<QWidget>(tela, "cmdVoltar"),
                    new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
                QCoreApplication::postEvent(
                    &named<QWidget>(tela, "cmdVoltar"),
                    new QKeyEvent(QEvent::KeyRelease, Qt::Key_Space, Qt::NoModifier));
            }
        });
        olha.start(0);
        imprime(tela, "1");
        olha.stop();
        ASSERT_GT(vistos.size(), 10U);
        EXPECT_TRUE(std::is_sorted(vistos.begin(), vistos.end()));
        EXPECT_LT(vistos.front(), 50);
        EXPECT_GT(vistos.back(), 450);
        EXPECT_EQ(tela.findChild<QProgressBar*>(QStringLiteral("barAndamento")), nullptr);
        EXPECT_TRUE(tela.isVisible());
        EXPECT_EQ(server.queries().size(), 1U + 2 * 500);
        EXPECT_EQ(numeros().size(), 500U);
        EXPECT_THAT(numeros().back(), testing::StartsWith("0000000000500/"));
        EXPECT_THAT(grid::ticks(grade(tela)), testing::Each(false));
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "");
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

}  // namespace
}  // namespace tarn
