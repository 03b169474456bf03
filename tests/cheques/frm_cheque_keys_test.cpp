// The cheque's screen under the clerk's hands: keys, mouse, clipboard.
#include <gmock/gmock.h>

#include "tests/cheques/frm_cheque_fixture.h"
#include "tests/support/texts.h"

namespace tarn::test {
namespace {

constexpr std::array<const char*, 7> fields{"cboBancoAgConta", "txtNumeroCheque", "txtSerie",
                                            "txtValor",        "txtFavorecido",   "txtDtDeposito",
                                            "txtObservacao"};

// A real press or release, as the window system sends it.
void mouse(QWidget& screen, const char* name, bool press) {
    auto& target = named<QWidget>(screen, name);
    const QPoint place = target.mapTo(&screen, target.rect().center());
    if (press) {
        QTest::mousePress(screen.windowHandle(), Qt::LeftButton, {}, place);
    } else {
        QTest::mouseRelease(screen.windowHandle(), Qt::LeftButton, {}, place);
    }
}

TEST_F(FrmChequeTest, LabelsAndButtons) {
    use([&](QWidget& screen) {
        const std::array<const char*, 7> captions{
            "Banco/Ag./Conta", "Nº Cheque",        "Série",         "Valor",
            "Favorecido",      "Data p/ Depósito", "Utilizado Para"};
        for (std::size_t i = 0; i < fields.size(); ++i) {
            std::string found = "no label";
            for (const QLabel* label : screen.findChildren<QLabel*>()) {
                if (label->buddy() == &named<QWidget>(screen, fields[i])) {
                    found = label->text().toStdString();
                }
            }
            EXPECT_EQ(found, captions[i]);
        }
        for (const char* name : {"cmdImprimir", "cmdCancelar"}) {
            auto& button = named<QPushButton>(screen, name);
            EXPECT_FALSE(button.icon().pixmap(24).isNull()) << name;
            EXPECT_FALSE(button.toolTip().isEmpty()) << name;
            EXPECT_FALSE(button.accessibleName().isEmpty()) << name;
        }
    });
}

TEST_F(FrmChequeTest, TabFollowsTheFieldsThenTheButtons) {
    use([&](QWidget& screen) {
        std::vector<std::string> expected(fields.begin(), fields.end());
        expected.insert(expected.end(), {"cmdImprimir", "cmdCancelar", "cboBancoAgConta"});
        EXPECT_EQ(tabOrder(screen, "cboBancoAgConta", 10), expected);
    });
}

TEST_F(FrmChequeTest, EnterMovesOnAndBeepsWhereKeysAreNumbers) {
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "cboBancoAgConta").setFocus();
        const struct {
            const char* arrives;
            int beeps;
        } strokes[] = {{"txtNumeroCheque", 0}, {"txtSerie", 1},      {"txtValor", 0},
                       {"txtFavorecido", 1},   {"txtDtDeposito", 0}, {"txtObservacao", 1},
                       {"cmdImprimir", 0}};
        for (const auto& stroke : strokes) {
            machine.beeps = 0;
            key(screen, Qt::Key_Return);
            settle();
            EXPECT_EQ(focused(screen), stroke.arrives);
            EXPECT_EQ(machine.beeps, stroke.beeps) << "on the way to " << stroke.arrives;
        }
        EXPECT_EQ(server.queries(), (Texts{usualCheck, usualCheck}));
        EXPECT_EQ(account(screen), 1) << "no list opened";
        expectFilled(screen);
        key(screen, Qt::Key_Enter);
        EXPECT_EQ(boxes.shown, (Boxes{success})) << "on the button it is a click";
    });
}

// The keys after it may be waiting already: they are the number's.
TEST_F(FrmChequeTest, EnterInTheOpenListChoosesAndMovesOn) {
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
        use([&](QWidget& screen) {
            auto& list = named<QComboBox>(screen, "cboBancoAgConta");
            list.setFocus();
            QTest::keyClick(&list, Qt::Key_Space);
            QAbstractItemView& items = *list.view();
            ASSERT_TRUE(items.isVisible());
            QTest::keyClick(&items, Qt::Key_Down);
            QTest::keyClick(&items, Qt::Key_Down);
            QTest::keyClick(&items, enter);
            EXPECT_FALSE(items.isVisible());
            EXPECT_EQ(account(screen), 2);
            EXPECT_EQ(focused(screen), "txtNumeroCheque");
            screen.activateWindow();  // off-screen an open list takes the activation along
        });
    }
    EXPECT_EQ(machine.beeps, 0);
}

TEST_F(FrmChequeTest, FieldsTakeNoMoreThanTheirLimits) {
    use([&](QWidget& screen) {
        const std::string digits(60, '9');
        const std::pair<const char*, std::size_t> limits[] = {
            {"txtNumeroCheque", 15}, {"txtSerie", 15}, {"txtFavorecido", 50}, {"txtValor", 20}};
        for (const auto& [name, limit] : limits) {
            type(screen, name, digits.c_str());
            EXPECT_EQ(text(screen, name), digits.substr(0, limit));
        }
        type(screen, "txtValor", "1");
        purpose(screen, std::string(260, 'x').c_str());
        EXPECT_EQ(purposeOf(screen), std::string(250, 'x'));
        EXPECT_EQ(named<QLineEdit>(screen, "txtDtDeposito").maxLength(), 10);
        settle();
    });
}

TEST_F(FrmChequeTest, KeysThatMayNotPassBeep) {
    use([&](QWidget& screen) {
        type(screen, "txtNumeroCheque", "1a,2.-3 ");
        EXPECT_EQ(text(screen, "txtNumeroCheque"), "123");
        EXPECT_EQ(machine.beeps, 5);
        QTest::keyClick(screen.focusWidget(), Qt::Key_Backspace);
        EXPECT_EQ(text(screen, "txtNumeroCheque"), "12");
        machine.beeps = 0;
        type(screen, "txtValor", "1x.2,-5");
        EXPECT_EQ(text(screen, "txtValor"), "12,5");
        EXPECT_EQ(machine.beeps, 3);
        machine.beeps = 0;
        type(screen, "txtDtDeposito", "1,5");
        EXPECT_EQ(text(screen, "txtDtDeposito"), "15");
        EXPECT_EQ(machine.beeps, 1);
        type(screen, "txtSerie", "a-1ç");
        type(screen, "txtFavorecido", "D'Ávila & Cia. <ç>");
        EXPECT_EQ(text(screen, "txtSerie") + text(screen, "txtFavorecido"),
                  "a-1çD'Ávila & Cia. <ç>");
        EXPECT_EQ(machine.beeps, 1);
        settle();
    });
}

TEST_F(FrmChequeTest, TheAmountIsSelectedAndFormatted) {
    useFilled([&](QWidget& screen) {
        auto& amount = named<QLineEdit>(screen, "txtValor");
        amount.setFocus();
        EXPECT_EQ(amount.selectedText(), QStringLiteral("1.234,22"));
        for (const auto& [typed, shown] : {std::pair{"1234567,8", "1.234.567,80"},
                                           {",5", "0,50"},
                                           {"1,005", "1,01"},
                                           {"9999999999999,99", "9.999.999.999.999,99"}}) {
            type(screen, "txtValor", typed);
            key(screen, Qt::Key_Tab);
            settle();
            EXPECT_EQ(text(screen, "txtValor"), shown);
            EXPECT_EQ(focused(screen), "txtFavorecido");
        }
        type(screen, "txtValor", " ");
        QTest::keyClick(&amount, Qt::Key_Delete);
        key(screen, Qt::Key_Tab);
        EXPECT_EQ(text(screen, "txtValor"), "");
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmChequeTest, AnAmountOverTheLimitIsRefusedOnLeaving) {
    const Box refused = exclamation("O valor máximo permitido é de R$ 9.999.999.999.999,99");
    useFilled([&](QWidget& screen) {
        type(screen, "txtValor", "10000000000000");
        key(screen, Qt::Key_Tab);
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{refused}));
        EXPECT_EQ(text(screen, "txtValor"), "10000000000000") << "the text stays";
        EXPECT_EQ(named<QLineEdit>(screen, "txtValor").selectedText(),
                  QStringLiteral("10000000000000"));
        EXPECT_EQ(focused(screen), "txtValor");
        click(screen, "cmdImprimir");
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{refused, refused})) << "the click doesn't count";
        EXPECT_EQ(server.queries(), Texts{});
        type(screen, "txtValor", "1");
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(FrmChequeTest, ADateThatIsNoneIsEmptiedAndTheClickDoesntCount) {
    const Box refused{"Data Inválida.      ", BoxIcon::Critical, "Aviso"};
    useFilled([&](QWidget& screen) {
        std::string underBox;
        boxes.onShow = [&](const Box& /*box*/) { underBox = text(screen, "txtDtDeposito"); };
        type(screen, "txtDtDeposito", "31022012");
        click(screen, "cmdImprimir");
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{refused}));
        boxes.onShow = {};
        EXPECT_EQ(underBox, "31/02/2012");
        EXPECT_EQ(text(screen, "txtDtDeposito"), "");
        EXPECT_EQ(focused(screen), "txtDtDeposito");
        EXPECT_EQ(server.queries(), Texts{});
        keys(*screen.focusWidget(), "1604");
        key(screen, Qt::Key_Return);
        EXPECT_EQ(text(screen, "txtDtDeposito"), "16/04/2012");
        EXPECT_EQ(focused(screen), "txtObservacao");
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(FrmChequeTest, TheDateIsEditedWithoutItsSlashes) {
    use([&](QWidget& screen) {
        auto& date = named<QLineEdit>(screen, "txtDtDeposito");
        date.setFocus();
        EXPECT_EQ(date.selectedText(), QStringLiteral("15032012"));
        EXPECT_EQ(date.maxLength(), 8);
        key(screen, Qt::Key_Tab);
        EXPECT_EQ(text(screen, "txtDtDeposito"), "15/03/2012");
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmChequeTest, FieldsOfNumbersTakeNothingElse) {
    use([&](QWidget& screen) {
        expectNumbersOnly(screen, "txtNumeroCheque", machine, Comma::LeftOut);
        expectNumbersOnly(screen, "txtValor", machine, Comma::Taken);
        expectNumbersOnly(screen, "txtDtDeposito", machine, Comma::LeftOut);
        auto& amount = named<QLineEdit>(screen, "txtValor");
        amount.setFocus();
        paste(amount, QStringLiteral("1.234,5"));
        key(screen, Qt::Key_Tab);
        EXPECT_EQ(text(screen, "txtValor"), "1.234,50");
    });
    EXPECT_EQ(boxes.shown, Boxes{});
}

TEST_F(FrmChequeTest, TheObservationStaysOneParagraph) {
    use([&](QWidget& screen) {
        auto& purposeField = named<FreeTextField>(screen, "txtObservacao");
        purposeField.setFocus();
        paste(purposeField, QStringLiteral("linha 1\r\nlinha 2\nlinha 3"));
        EXPECT_EQ(purposeOf(screen), "linha 1 linha 2 linha 3");
        key(screen, Qt::Key_Return);
        EXPECT_EQ(purposeOf(screen), "linha 1 linha 2 linha 3");
        EXPECT_EQ(focused(screen), "cmdImprimir");
    });
    EXPECT_EQ(machine.beeps, 0);
}

// The clerk's haste.

TEST_F(FrmChequeTest, ADoubleClickPrintsOneCheque) {
    useFilled([&](QWidget& screen) {
        const auto& button = named<QWidget>(screen, "cmdImprimir");
        QTest::mouseDClick(screen.windowHandle(), Qt::LeftButton, {},
                           button.mapTo(&screen, button.rect().center()));
        settle();
        EXPECT_EQ(boxes.shown, (Boxes{success})) << "the second click is none";
    });
    EXPECT_EQ(spooler.jobs.size(), 1U);
}

TEST_F(FrmChequeTest, EnterHeldDownMovesNothing) {
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtFavorecido").setFocus();
        for (int repeat = 0; repeat < 10; ++repeat) {
            QWidget& target = *screen.focusWidget();
            QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"),
                           true);
            QCoreApplication::sendEvent(&target, &held);
            settle();
        }
        EXPECT_EQ(focused(screen), "txtFavorecido");
        EXPECT_EQ(server.queries(), Texts{});
        EXPECT_EQ(boxes.shown, Boxes{});
    });
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(FrmChequeTest, EscClosesNothing) {
    useFilled([&](QWidget& screen) {
        key(screen, Qt::Key_Escape);
        EXPECT_TRUE(screen.isVisible());
        expectFilled(screen);
    });
}

TEST_F(FrmChequeTest, AClickThatLeavesTheSeriesCountsAfterItsCheck) {
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtSerie").setFocus();
        mouse(screen, "cmdImprimir", true);
        settle();
        EXPECT_EQ(focused(screen), "cmdImprimir");
        EXPECT_EQ(server.queries(), (Texts{usualCheck}));
        EXPECT_TRUE(named<QPushButton>(screen, "cmdImprimir").isDown());
        mouse(screen, "cmdImprimir", false);
        settle();
        EXPECT_EQ(server.queries(), (Texts{usualCheck, usualCheck, companyQuery, usualRecord}));
        EXPECT_EQ(boxes.shown, (Boxes{success}));
    });
}

TEST_F(FrmChequeTest, AClickIntoAnotherFieldIsALeaving) {
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtNumeroCheque").setFocus();
        mouse(screen, "txtFavorecido", true);
        settle();
        EXPECT_EQ(server.queries(), (Texts{usualCheck}));
        mouse(screen, "txtFavorecido", false);
        settle();
        EXPECT_EQ(server.queries(), (Texts{usualCheck}));
        EXPECT_EQ(focused(screen), "txtFavorecido");
    });
}

TEST_F(FrmChequeTest, OpeningTheListAsksAboutTheAccountThatWasLeft) {
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtNumeroCheque").setFocus();
        chooseAccount(screen, 2);
        EXPECT_EQ(server.queries(), (Texts{usualCheck}));
    });
}

TEST_F(FrmChequeTest, EachOfTwoLeavingsInARowIsAskedAbout) {
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtNumeroCheque").setFocus();
        QTest::keyClick(screen.focusWidget(), Qt::Key_Return);
        QTest::keyClick(screen.focusWidget(), Qt::Key_Return);
        settle();
        EXPECT_EQ(focused(screen), "txtValor");
        EXPECT_EQ(server.queries(), (Texts{usualCheck, usualCheck}));
    });
}

TEST_F(FrmChequeTest, ClosingAsksNothingAndPrintsNothing) {
    useFilled([&](QWidget& screen) { named<QWidget>(screen, "txtNumeroCheque").setFocus(); });
    EXPECT_EQ(server.queries(), (Texts{companyQuery})) << "of the desk";
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtNumeroCheque").setFocus();
        screen.close();
        EXPECT_FALSE(screen.isVisible());
        EXPECT_EQ(server.queries(), Texts{});
    });
    EXPECT_EQ(boxes.shown, Boxes{});
    EXPECT_THAT(spooler.calls, testing::IsEmpty());
}

TEST_F(FrmChequeTest, TheCancelButtonClosesAndAClickOnItLeavesTheField) {
    useFilled([&](QWidget& screen) {
        click(screen, "cmdCancelar");
        EXPECT_FALSE(screen.isVisible());
        EXPECT_EQ(server.queries(), Texts{});
    });
    server.on("seleciona_um_controle_cheque_emitido", answers::rowset("<z:row/>"));
    useFilled([&](QWidget& screen) {
        named<QWidget>(screen, "txtNumeroCheque").setFocus();
        click(screen, "cmdCancelar");
        EXPECT_FALSE(screen.isVisible());
        EXPECT_EQ(boxes.shown, (Boxes{taken}));
    });
    EXPECT_FALSE(end.ended());
}

TEST_F(FrmChequeTest, ALoneCommaIsNoAmount) {
    useFilled([&](QWidget& screen) {
        type(screen, "txtValor", ",");
        key(screen, Qt::Key_Tab);
        settle();
        ASSERT_EQ(boxes.shown.size(), 1U);
        EXPECT_EQ(boxes.shown[0].text.rfind("Erro em tempo de execução '13'", 0), 0U);
        EXPECT_EQ(end.status(), 3);
    });
}

TEST_F(FrmChequeTest, CtrlEnterPrintsOnceTheFieldBeingTypedInIsChecked) {
    useFilled([&](QWidget& screen) {
        type(screen, "txtNumeroCheque", "77");
        server.addresses.clear();
        atLeisure(
            [&] { QTest::keyClick(screen.focusWidget(), Qt::Key_Return, Qt::ControlModifier); });
        settle();
        const auto queries = server.queries();
        ASSERT_EQ(queries.size(), 4U);
        EXPECT_EQ(queries[0], checkQuery("77", "AÇ1")) << "on leaving the field";
        EXPECT_EQ(queries[1], checkQuery("77", "AÇ1")) << "before printing";
        EXPECT_EQ(spooler.jobs.size(), 1U);
        EXPECT_EQ(boxes.shown, (Boxes{success}));
    });
}

TEST_F(FrmChequeTest, ADateRefusedStopsTheKeyAndCtrlWClosesTheScreen) {
    useFilled([&](QWidget& screen) {
        type(screen, "txtDtDeposito", "31022012");
        atLeisure([&] { QTest::keyClick(screen.focusWidget(), Qt::Key_P, Qt::ControlModifier); });
        settle();
        EXPECT_EQ(boxes.texts(), (Texts{"Data Inválida.      "}));
        EXPECT_EQ(server.addresses, Texts{});
        EXPECT_EQ(focused(screen), "txtDtDeposito");
        QTest::keyClick(screen.focusWidget(), Qt::Key_W, Qt::ControlModifier);
        EXPECT_FALSE(screen.isVisible());
    });
}

}  // namespace
}  // namespace tarn::test
