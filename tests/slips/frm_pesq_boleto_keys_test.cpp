// frmPesqBoleto under the clerk's hands: keys, wheel, clipboard.
#include <gmock/gmock.h>

#include <QCloseEvent>
#include <QWheelEvent>
#include <array>

#include "tests/slips/slip_screen_test.h"
#include "tests/support/entering.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class SlipKeys : public SlipScreenTest {
protected:
    // Turns the wheel by one notch towards the user, over the widget.
    static void turnWheel(QWidget& where) {
        const QPointF middle = where.rect().center();
        QWheelEvent turn(middle, where.mapToGlobal(middle), {}, {0, -120}, Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&turn);
        qApp->notify(&where, &turn);
    }
    // An access key, to whatever has the focus.
    static void shortcut(QWidget& screen, Qt::Key letter) {
        screen.activateWindow();  // off-screen an open list takes the activation along
        ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &screen; }));
        QTest::keyClick(screen.focusWidget(), letter, Qt::AltModifier);
    }
    std::size_t requests() const { return server.addresses.size(); }
};

TEST_F(SlipKeys, TheSlipNumberTakesDigitsAndCommas) {
    withScreen([&](QWidget& screen) {
        type(screen, "txtNr_Bol_Banc", "12a,.-3");
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "12,3");
        EXPECT_EQ(machine.beeps, 3);
        type(screen, "txtNr_Bol_Banc", "12345678901234");
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "1234567890123");
        machine.beeps = 0;
        key(screen, Qt::Key_Return);
        EXPECT_EQ(focused(screen), "sprDados");
        EXPECT_EQ(machine.beeps, 1);
    });
}

TEST_F(SlipKeys, FieldsOfNumbersTakeNothingElse) {
    withScreen([&](QWidget& screen) {
        for (const char* name :
             {"txtNr_Bol_Banc", "txtDtEmsDe", "txtDtEmsAte", "txtDtVncDe", "txtDtVncAte"}) {
            expectNumbersOnly(screen, name, machine, Comma::Taken);
        }
    });
}

TEST_F(SlipKeys, EnterMovesOnInTheFieldsThatAreTypedIn) {
    withScreen([&](QWidget& screen) {
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
                named<QWidget>(screen, stroke.from).setFocus();
                machine.beeps = 0;
                key(screen, enter);
                EXPECT_EQ(focused(screen), stroke.to) << "from " << stroke.from;
                EXPECT_EQ(machine.beeps, stroke.beeps) << "from " << stroke.from;
            }
        }
        EXPECT_FALSE(named<QCheckBox>(screen, "chkInc_Carteira").isChecked());
        EXPECT_EQ(server.addresses, Texts{});
        EXPECT_EQ(boxes.shown, Boxes{});
        EXPECT_TRUE(screen.isVisible());
    });
}

TEST_F(SlipKeys, DatesAreCompletedOnLeaving) {
    withScreen([&](QWidget& screen) {
        type(screen, "txtDtEmsDe", "15");
        key(screen, Qt::Key_Return);
        EXPECT_EQ(shown(screen, "txtDtEmsDe"), "15/03/2012");
        type(screen, "txtDtVncAte", "99992012");
        key(screen, Qt::Key_Tab);
        EXPECT_EQ(shown(screen, "txtDtVncAte"), "99/99/2012") << "no test of the date";
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(SlipKeys, EnterHeldDownSinceTheBoxDoesntPressTheButtonAgain) {
    withScreen([&](QWidget& screen) {
        named<QWidget>(screen, "cmdImprimir").setFocus();
        QTest::sendKeyEvent(QTest::Press, screen.focusWidget(), Qt::Key_Return, QString(),
                            Qt::NoModifier);
        ASSERT_EQ(boxes.shown.size(), 1U);
        named<QWidget>(screen, "cmdImprimir").setFocus();
        QKeyEvent again(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
        QCoreApplication::sendEvent(screen.focusWidget(), &again);
        EXPECT_EQ(boxes.shown.size(), 1U);
    });
}

// The focus goes along with an access key, and so the date being typed is finished.
TEST_F(SlipKeys, AnAccessKeyFinishesTheDate) {
    withScreen([&](QWidget& screen) {
        server.on("sel_boleto", answers::rowset(line("1")));
        fillIn(screen);
        type(screen, "txtDtVncDe", "1");
        server.addresses.clear();
        shortcut(screen, Qt::Key_P);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !server.addresses.empty(); }));
        EXPECT_THAT(server.queries().at(0), HasSubstr("&DT_VNC_DE=01/03/2012&"));
    });
}

// The second button is still going down when the first one's request is sent.
TEST_F(SlipKeys, TwoAccessKeysInARowAreTwoClicksOneAfterTheOther) {
    withScreen([&](QWidget& screen) {
        find(screen, line("1"));
        type(screen, "txtNr_Bol_Banc", "1234");
        shortcut(screen, Qt::Key_P);
        shortcut(screen, Qt::Key_I);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !boxes.shown.empty(); }));
        EXPECT_THAT(server.queries(), ElementsAre(HasSubstr("sel_boleto"), wallet57Query));
        EXPECT_EQ(boxes.shown, (Boxes{nothingTicked()}));
    });
}

// The wheel is for the list in use: a portfolio isn't changed by a turn in passing.
TEST_F(SlipKeys, ListsAreChosenFromByKeyAndByWheel) {
    withScreen([&](QWidget& screen) {
        server.on("sel_boleto", answers::rowset(""));
        fillIn(screen, 0);
        list(screen, "cboFilial").setFocus();
        turnWheel(list(screen, "cboCartCob"));
        EXPECT_EQ(list(screen, "cboCartCob").currentIndex(), 0);
        key(screen, Qt::Key_Up);
        EXPECT_EQ(list(screen, "cboFilial").currentIndex(), 0) << "never at no item";
        key(screen, Qt::Key_End);
        list(screen, "cboCartCob").setFocus();
        turnWheel(list(screen, "cboCartCob"));
        server.addresses.clear();
        click(screen, "cmdPesquisar");
        EXPECT_THAT(server.queries(), ElementsAre(HasSubstr("&ID_ETB_TARN=12&ID_CRT_COB=5&")));
    });
}

TEST_F(SlipKeys, ClosingTheScreenDuringARequestDoesNothing) {
    withScreen([&](QWidget& screen) {
        server.on("sel_boleto", answers::rowset(line("1")));
        fillIn(screen);
        QCoreApplication::postEvent(&screen, new QCloseEvent);
        for (const QEvent::Type stroke : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QCoreApplication::postEvent(&screen,
                                        new QKeyEvent(stroke, Qt::Key_Escape, Qt::NoModifier));
        }
        click(screen, "cmdPesquisar");
        EXPECT_EQ(grid::rows(grid(screen)), 1);
        EXPECT_TRUE(screen.isVisible());
        EXPECT_FALSE(end.ended());
    });
}

TEST_F(SlipKeys, ClosingTheDeskDuringARequestEndsTheProgram) {
    withScreen([&](QWidget& screen) {
        server.on("sel_boleto", answers::rowset(line("1")));
        fillIn(screen);
        QCoreApplication::postEvent(&menu, new QCloseEvent);
        click(screen, "cmdPesquisar");
        EXPECT_TRUE(end.ended());
        EXPECT_EQ(end.status(), 0);
        screen.close();
    });
}

TEST_F(SlipKeys, TheWindowsButtonClosesItAndEscDoesNot) {
    withScreen([&](QWidget& screen) {
        type(screen, "txtNr_Bol_Banc", "77");
        key(screen, Qt::Key_Escape);
        EXPECT_TRUE(screen.isVisible());
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "77");
        screen.close();
        EXPECT_FALSE(screen.isVisible());
    });
    EXPECT_EQ(server.queries(), (Texts{branchesQuery, portfoliosQuery, deskQuery}));
    withScreen([&](QWidget& screen) {
        EXPECT_EQ(shown(screen, "txtNr_Bol_Banc"), "") << "it comes back empty";
    });
}

TEST_F(SlipKeys, TheButtonsHaveKeys) {
    withScreen([&](QWidget& screen) {
        const auto stroke = [&screen](Qt::Key key) {
            atLeisure([&] { QTest::keyClick(screen.focusWidget(), key, Qt::ControlModifier); });
        };
        named<QWidget>(screen, "txtDtEmsDe").setFocus();
        keys(named<QWidget>(screen, "txtDtEmsDe"), "01022012");
        stroke(Qt::Key_P);
        EXPECT_EQ(boxes.shown.size(), 1U) << "refused for want of a portfolio";
        EXPECT_EQ(shown(screen, "txtDtEmsDe"), "01/02/2012") << "completed before that";
        EXPECT_EQ(focused(screen), "cboCartCob");
        stroke(Qt::Key_Return);
        EXPECT_EQ(boxes.shown.size(), 2U);
        EXPECT_EQ(named<QPushButton>(screen, "cmdImprimir").toolTip(),
                  QStringLiteral("Imprimir os boletos dos documentos marcados (Ctrl+P ou "
                                 "Ctrl+Enter)"));
        stroke(Qt::Key_W);
        EXPECT_FALSE(screen.isVisible());
    });
    EXPECT_TRUE(menu.isVisible());
}

}  // namespace
}  // namespace tarn::test
