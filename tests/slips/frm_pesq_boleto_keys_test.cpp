// frmPesqBoleto under the clerk's hands: keys, wheel, clipboard.
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QWheelEvent>
#include <array>

#include "tests/slips/slip_screen_test.h"

namespace tarn {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class TeclasDoBoleto : public TelaDeBoletos {
protected:
    static void cola(const QWidget& tela, const char* campo, const QString& texto) {
        auto& onde = named<QLineEdit>(tela, campo);
        onde.setFocus();
        onde.selectAll();
        QApplication::clipboard()->setText(texto);
        QTest::keyClick(&onde, Qt::Key_V, Qt::ControlModifier);
    }
    // Turns the wheel by one notch towards the user, over the widget.
    static void giraRoda(QWidget& onde) {
        const QPointF meio = onde.rect().center();
        QWheelEvent giro(meio, onde.mapToGlobal(meio), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                         Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&giro);
        qApp->notify(&onde, &giro);
    }
    // An access key, to whatever has the focus.
    static void atalho(QWidget& tela, Qt::Key letra) {
        tela.activateWindow();  // off-screen an open list takes the activation along
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &tela; }));
        QTest::keyClick(tela.focusWidget(), letra, Qt::AltModifier);
    }
    std::size_t pedidos() const { return server.addresses.size(); }
};

TEST_F(TeclasDoBoleto, TheSlipNumberTakesDigitsAndCommas) {
    comATela([&](QWidget& tela) {
        type(tela, "txtNr_Bol_Banc", "12a,.-3");
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "12,3");
        EXPECT_EQ(machine.beeps, 3);
        type(tela, "txtNr_Bol_Banc", "12345678901234");
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "1234567890123");
        machine.beeps = 0;
        key(tela, Qt::Key_Return);
        EXPECT_EQ(focused(tela), "sprDados");
        EXPECT_EQ(machine.beeps, 1);
    });
}

TEST_F(TeclasDoBoleto, WhatIsPastedAsANumberIsANumberOrNothing) {
    comATela([&](QWidget& tela) {
        type(tela, "txtNr_Bol_Banc", "77");
        for (const char* colado : {"12a", "nº 5", "1\n2", "1.5", "-1"}) {
            machine.beeps = 0;
            cola(tela, "txtNr_Bol_Banc", QString::fromUtf8(colado));
            EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "77") << colado;
            EXPECT_EQ(machine.beeps, 1) << colado;
        }
        cola(tela, "txtNr_Bol_Banc", QStringLiteral("1234"));
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "1234");
    });
}

TEST_F(TeclasDoBoleto, EnterMovesOnInTheFieldsThatAreTypedIn) {
    comATela([&](QWidget& tela) {
        const struct {
            const char* from;
            const char* to;
            int beeps;
        } strokes[] = {
            {"txtCliente", "cboFilial", 0},        {"cboFilial", "cboFilial", 0},
            {"cboCartCob", "cboCartCob", 0},       {"txtDtEmsDe", "txtDtEmsAte", 1},
            {"txtDtEmsAte", "txtDtVncDe", 1},      {"txtDtVncDe", "txtDtVncAte", 1},
            {"txtDtVncAte", "chkInc_Carteira", 1}, {"chkInc_Carteira", "chkInc_Carteira", 0},
            {"txtNr_Bol_Banc", "sprDados", 1},     {"sprDados", "sprDados", 0}};
        server.addresses.clear();
        for (const auto& stroke : strokes) {
            for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
                named<QWidget>(tela, stroke.from).setFocus();
                machine.beeps = 0;
                key(tela, enter);
                EXPECT_EQ(focused(tela), stroke.to) << "from " << stroke.from;
                EXPECT_EQ(machine.beeps, stroke.beeps) << "from " << stroke.from;
            }
        }
        EXPECT_FALSE(named<QCheckBox>(tela, "chkInc_Carteira").isChecked());
        EXPECT_THAT(server.addresses, IsEmpty());
        EXPECT_THAT(boxes.shown, IsEmpty());
        EXPECT_TRUE(tela.isVisible());
    });
}

TEST_F(TeclasDoBoleto, DatesAreCompletedOnLeaving) {
    comATela([&](QWidget& tela) {
        type(tela, "txtDtEmsDe", "15");
        key(tela, Qt::Key_Return);
        EXPECT_EQ(mostrado(tela, "txtDtEmsDe"), "15/03/2012");
        type(tela, "txtDtVncAte", "99992012");
        key(tela, Qt::Key_Tab);
        EXPECT_EQ(mostrado(tela, "txtDtVncAte"), "99/99/2012") << "no test of the date";
    });
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST_F(TeclasDoBoleto, EnterHeldDownSinceTheBoxDoesntPressTheButtonAgain) {
    comATela([&](QWidget& tela) {
        named<QWidget>(tela, "cmdImprimir").setFocus();
        QTest::sendKeyEvent(QTest::Press, tela.focusWidget(), Qt::Key_Return, QString(),
                            Qt::NoModifier);
        ASSERT_EQ(boxes.shown.size(), 1U);
        named<QWidget>(tela, "cmdImprimir").setFocus();
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(tela.focusWidget(), &again);
        EXPECT_EQ(boxes.shown.size(), 1U);
    });
}

// The focus goes along with an access key, and so the date being typed is finished.
TEST_F(TeclasDoBoleto, AnAccessKeyFinishesTheDate) {
    comATela([&](QWidget& tela) {
        server.on("sel_boleto", answers::rowset(linha("1")));
        preenche(tela);
        type(tela, "txtDtVncDe", "1");
        server.addresses.clear();
        atalho(tela, Qt::Key_P);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !server.addresses.empty(); }));
        EXPECT_THAT(server.queries().at(0), HasSubstr("&DT_VNC_DE=01/03/2012&"));
    });
}

// The second button is still going down when the first one's request is sent.
TEST_F(TeclasDoBoleto, TwoAccessKeysInARowAreTwoClicksOneAfterTheOther) {
    comATela([&](QWidget& tela) {
        encontra(tela, linha("1"));
        type(tela, "txtNr_Bol_Banc", "1234");
        atalho(tela, Qt::Key_P);
        atalho(tela, Qt::Key_I);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !boxes.shown.empty(); }));
        EXPECT_THAT(server.queries(), ElementsAre(HasSubstr("sel_boleto"), pedeCarteira57));
        EXPECT_THAT(boxes.shown, ElementsAre(nenhumMarcado()));
    });
}

// The wheel is for the list in use: a portfolio isn't changed by a turn in passing.
TEST_F(TeclasDoBoleto, ListsAreChosenFromByKeyAndByWheel) {
    comATela([&](QWidget& tela) {
        server.on("sel_boleto", answers::rowset(""));
        preenche(tela, 0);
        lista(tela, "cboFilial").setFocus();
        giraRoda(lista(tela, "cboCartCob"));
        EXPECT_EQ(lista(tela, "cboCartCob").currentIndex(), 0);
        key(tela, Qt::Key_Up);
        EXPECT_EQ(lista(tela, "cboFilial").currentIndex(), 0) << "never at no item";
        key(tela, Qt::Key_End);
        lista(tela, "cboCartCob").setFocus();
        giraRoda(lista(tela, "cboCartCob"));
        server.addresses.clear();
        click(tela, "cmdPesquisar");
        EXPECT_THAT(server.queries(), ElementsAre(HasSubstr("&ID_ETB_TARN=12&ID_CRT_COB=5&")));
    });
}

TEST_F(TeclasDoBoleto, ClosingDuringARequestDoesNothing) {
    comATela([&](QWidget& tela) {
        server.on("sel_boleto", answers::rowset(linha("1")));
        preenche(tela);
        for (QWidget* janela : {&tela, static_cast<QWidget*>(&menu)}) {
            QCoreApplication::postEvent(janela, new QCloseEvent);
        }
        for (const QEvent::Type stroke : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QCoreApplication::postEvent(&tela,
                                        new QKeyEvent(stroke, Qt::Key_Escape, Qt::NoModifier));
        }
        click(tela, "cmdPesquisar");
        EXPECT_EQ(grid::rows(grade(tela)), 1);
        EXPECT_TRUE(tela.isVisible());
        EXPECT_FALSE(fim.encerrado());
    });
}

TEST_F(TeclasDoBoleto, EscAndTheWindowsButtonCloseIt) {
    for (const bool porTecla : {true, false}) {
        server.addresses.clear();
        comATela([&](QWidget& tela) {
            type(tela, "txtNr_Bol_Banc", "77");
            if (porTecla) {
                key(tela, Qt::Key_Escape);
            } else {
                tela.close();
            }
            EXPECT_FALSE(tela.isVisible());
        });
        EXPECT_THAT(server.queries(), ElementsAre(pedeFiliais, pedeCarteiras, pedeDaMesa));
    }
    comATela([&](QWidget& tela) {
        EXPECT_EQ(mostrado(tela, "txtNr_Bol_Banc"), "") << "it comes back empty";
    });
}

}  // namespace
}  // namespace tarn
