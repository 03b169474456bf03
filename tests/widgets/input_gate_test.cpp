#include "platform/qt/input_gate.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCloseEvent>
#include <QDialog>
#include <QEventLoop>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <functional>

#include "tests/support/timed_events.h"
#include "tests/widgets/tab_field.h"

namespace tarn::test {
namespace {

class GateWindow : public QDialog {
public:
    GateWindow() {
        auto* layout = new QVBoxLayout(this);
        for (QWidget* widget :
             std::initializer_list<QWidget*>{&first, &second, &third, &button, &other, &grid}) {
            layout->addWidget(widget);
        }
        button.setAutoDefault(false);
        other.setAutoDefault(false);
        show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
        first.setFocus();
    }

    TabField first, second, third;
    QPushButton button{"&Grava"};
    QPushButton other{"Fecha"};
    QTableWidget grid{3, 2};
    int closes = 0;

protected:
    void keyPressEvent(QKeyEvent* /*event*/) override {}
    void closeEvent(QCloseEvent* event) override {
        ++closes;
        event->ignore();
    }
};

class InputGateTest : public testing::Test {
protected:
    InputGateTest() {
        QObject::connect(&window.button, &QPushButton::clicked, [this] { ++acts; });
        QObject::connect(&window.other, &QPushButton::clicked, [this] { ++otherActs; });
    }
    // A request: `during` runs while it is under way.
    void request(const std::function<void()>& during) {
        const ShutGate shut(gate);
        QEventLoop loop;
        QTimer::singleShot(0, &loop, [&] {
            during();
            loop.quit();
        });
        loop.exec();
    }
    // A routine as an event handler runs it, and what the event loop does after it.
    void routine(const std::function<void()>& body) {
        bool over = false;
        QTimer::singleShot(0, &window, [&] {
            body();
            over = true;
        });
        ASSERT_TRUE(QTest::qWaitFor([&] { return over; }));
        settle();
    }
    static void settle() {
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
    }
    // A modal box: `during` runs while it stands.
    void box(const std::function<void(QDialog&)>& during) {
        QDialog modal(&window);
        QTimer::singleShot(0, &modal, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&modal));
            during(modal);
            modal.accept();
        });
        modal.exec();
        activate();
    }
    // Off-screen a modal window takes the activation along.
    void activate() {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    // What a user types goes to whatever has the focus.
    void types(const char* text) { QTest::keyClicks(focus(), QString::fromLatin1(text)); }
    void strikes(Qt::Key key) { QTest::keyClick(focus(), key); }
    QWidget* focus() const {
        return window.focusWidget() != nullptr ? window.focusWidget()
                                               : const_cast<GateWindow*>(&window);
    }

    InputGate& gate = InputGate::ofApplication();
    GateWindow window;
    int acts = 0;
    int otherActs = 0;
};

TEST_F(InputGateTest, WhatIsTypedMeanwhileComesAfterwardsInOrder) {
    routine([&] {
        request([&] {
            types("12");
            strikes(Qt::Key_Left);
            types("3");
            strikes(Qt::Key_Backspace);
            types("45");
            EXPECT_EQ(window.first.text(), QString());
        });
    });
    EXPECT_EQ(window.first.text(), QStringLiteral("1452"));
}

TEST_F(InputGateTest, TabAndEnterThatMovesOnWalkTheFields) {
    routine([&] {
        request([&] {
            types("1");
            strikes(Qt::Key_Tab);
            types("2");  // all of it while the first field has the focus
            strikes(Qt::Key_Return);
            types("3");
            EXPECT_TRUE(window.first.hasFocus());
        });
    });
    EXPECT_EQ(window.first.text(), QStringLiteral("1"));
    EXPECT_EQ(window.second.text(), QStringLiteral("2"));
    EXPECT_EQ(window.third.text(), QStringLiteral("3"));
}

TEST_F(InputGateTest, AnEnterTypedAheadPressesNoButton) {
    window.third.setFocus();
    routine([&] {
        request([&] {
            types("3");
            strikes(Qt::Key_Return);
            strikes(Qt::Key_Return);
        });
    });
    EXPECT_TRUE(window.button.hasFocus());
    EXPECT_EQ(acts, 0);
}

TEST_F(InputGateTest, WhatAnInputMethodBringsKeepsItsPlace) {
    routine([&] {
        request([&] {
            types("a");
            QInputMethodEvent composed;
            composed.setCommitString(QString::fromUtf8("ç"));
            QCoreApplication::sendEvent(&window.first, &composed);
            types("o");
        });
    });
    EXPECT_EQ(window.first.text(), QString::fromUtf8("aço"));
}

TEST_F(InputGateTest, WhatActsIsDroppedWhenTheUserAskedForTheWork) {
    QAction action;
    action.setShortcut(Qt::Key_F5);
    window.addAction(&action);
    const QSignalSpy shortcut(&action, &QAction::triggered);
    routine([&] {
        request([&] {
            QTest::mouseClick(&window.button, Qt::LeftButton);
            QTest::keyClick(&window.button, Qt::Key_Space);
            QTest::keyClick(&window.button, Qt::Key_Return);
            QTest::keyClick(&window.first, Qt::Key_F5);
            QTest::keyClick(&window.first, Qt::Key_G, Qt::AltModifier);
            window.close();
        });
    });
    EXPECT_EQ(acts, 0);
    EXPECT_EQ(shortcut.count(), 0);
    EXPECT_EQ(window.closes, 0);
    QTest::mouseClick(&window.button, Qt::LeftButton);
    QTest::keyClick(&window.first, Qt::Key_F5);
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(shortcut.count(), 1);
}

TEST_F(InputGateTest, WhatActsWaitsWhenNobodyAsked) {
    QAction action;
    action.setShortcut(Qt::Key_F5);
    window.addAction(&action);
    const QSignalSpy shortcut(&action, &QAction::triggered);
    routine([&] {
        const Unasked unasked(gate);
        request([&] {
            types("1");
            QTest::mouseClick(&window.button, Qt::LeftButton);
            QTest::keyClick(&window.first, Qt::Key_F5);
            QTest::keyClick(&window.other, Qt::Key_Space);
            EXPECT_EQ(acts + otherActs + shortcut.count(), 0);
        });
    });
    EXPECT_EQ(shortcut.count(), 1);
    EXPECT_EQ(window.first.text(), QStringLiteral("1"));
    EXPECT_TRUE(window.button.hasFocus());
    EXPECT_EQ(acts, 2) << "a key goes to what has the focus by then";
    EXPECT_EQ(otherActs, 0);
}

TEST_F(InputGateTest, WhatActsOnWhatIsChangingIsDroppedAllTheSame) {
    routine([&] {
        const Unasked unasked(gate, &window.button);
        request([&] {
            QTest::mouseClick(&window.button, Qt::LeftButton);
            QTest::keyClick(&window.button, Qt::Key_Space);
            QTest::mouseClick(&window.other, Qt::LeftButton);
        });
    });
    EXPECT_EQ(acts, 0);
    EXPECT_EQ(otherActs, 1);
}

TEST_F(InputGateTest, ClicksAndTypingKeepTheirOrder) {
    QString atClick;
    QObject::connect(&window.button, &QPushButton::clicked, [&] { atClick = window.first.text(); });
    routine([&] {
        const Unasked unasked(gate);
        request([&] {
            types("123");
            QTest::mouseClick(&window.button, Qt::LeftButton);
        });
    });
    EXPECT_EQ(atClick, QStringLiteral("123"));
}

TEST_F(InputGateTest, AReleaseDuringTheWorkLeavesNoButtonPressed) {
    const QPoint middle = window.button.rect().center();
    QTest::mousePress(&window.button, Qt::LeftButton, {}, middle);
    ASSERT_TRUE(window.button.isDown());
    routine([&] {
        request([&] { QTest::mouseRelease(&window.button, Qt::LeftButton, {}, middle); });
        EXPECT_FALSE(window.button.isDown());
    });
    EXPECT_EQ(acts, 0);
    QTest::mouseClick(&window.button, Qt::LeftButton, {}, middle);
    EXPECT_EQ(acts, 1);
}

TEST_F(InputGateTest, AReleaseOfSpaceDuringTheWorkLeavesNoButtonPressed) {
    window.button.setFocus();
    QTest::keyPress(&window.button, Qt::Key_Space);
    ASSERT_TRUE(window.button.isDown());
    routine([&] {
        request([&] { QTest::keyRelease(&window.button, Qt::Key_Space); });
        EXPECT_FALSE(window.button.isDown());
    });
    EXPECT_EQ(acts, 0);
}

TEST_F(InputGateTest, AClickBegunBeforeUnaskedWorkEndsAfterIt) {
    const QPoint middle = window.button.rect().center();
    QTest::mousePress(&window.button, Qt::LeftButton, {}, middle);
    routine([&] {
        const Unasked unasked(gate);
        request([&] { QTest::mouseRelease(&window.button, Qt::LeftButton, {}, middle); });
        EXPECT_EQ(acts, 0);
    });
    EXPECT_EQ(acts, 1);
    EXPECT_FALSE(window.button.isDown());
}

TEST_F(InputGateTest, TheWindowSystemsOwnClicksWaitToo) {
    routine([&] {
        const Unasked unasked(gate);
        request([&] {
            QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                              window.button.geometry().center());
        });
    });
    EXPECT_EQ(acts, 1);
    EXPECT_TRUE(window.button.hasFocus());
}

TEST_F(InputGateTest, NothingTypedGoesIntoABoxOfTheSameRoutine) {
    routine([&] {
        request([&] { types("12"); });
        box([&](QDialog& modal) {
            QLineEdit inside(&modal);
            inside.show();
            inside.setFocus();
            settle();
            QTest::keyClick(&inside, Qt::Key_X);
            settle();
            EXPECT_EQ(inside.text(), QStringLiteral("x"));
            EXPECT_EQ(window.first.text(), QString());
        });
        request([&] { types("34"); });
        EXPECT_EQ(window.first.text(), QString());
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.first.text().size() == 4; }));
    EXPECT_EQ(window.first.text(), QStringLiteral("1234"));
}

TEST_F(InputGateTest, TypingBeginsAtTheFieldThatHadTheFocus) {
    window.second.setFocus();
    routine([&] {
        request([&] { types("2"); });
        window.first.setFocus();
    });
    EXPECT_EQ(window.second.text(), QStringLiteral("2"));
    EXPECT_EQ(window.first.text(), QString());
}

TEST_F(InputGateTest, WithTheFocusOnAButtonTypingGoesWhereTheRoutinePutIt) {
    window.button.setFocus();
    routine([&] {
        request([&] { types("2"); });
        window.second.setFocus();
    });
    EXPECT_EQ(window.second.text(), QStringLiteral("2"));
}

TEST_F(InputGateTest, WithoutTypingTheFocusStaysWhereTheRoutinePutIt) {
    routine([&] {
        request([] {});
        window.third.setFocus();
    });
    EXPECT_TRUE(window.third.hasFocus());
}

TEST_F(InputGateTest, WorkBegunByTypingOnHoldsTheRest) {
    int requests = 0;
    QObject::connect(&window.second, &QLineEdit::editingFinished, [&] {
        ++requests;
        request([&] { types("c"); });  // typed while the second request runs
    });
    routine([&] {
        request([&] {
            strikes(Qt::Key_Tab);
            types("b");
            strikes(Qt::Key_Tab);
            types("d");
        });
    });
    settle();
    EXPECT_EQ(requests, 1);
    EXPECT_EQ(window.second.text(), QStringLiteral("b"));
    EXPECT_EQ(window.third.text(), QStringLiteral("dc"));
}

TEST_F(InputGateTest, WhatComesWhileTheRestIsTypedQueuesUp) {
    routine([&] {
        request([&] { types("12"); });
        // In the same turn of the event loop that would begin to type.
        QTimer::singleShot(0, &window, [&] { types("34"); });
    });
    EXPECT_EQ(window.first.text(), QStringLiteral("1234"));
}

TEST_F(InputGateTest, AClosedWindowLosesWhatWasTypedForIt) {
    QDialog gone(&window);
    QLineEdit field(&gone);
    gone.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&gone));
    routine([&] {
        request([&] { QTest::keyClick(&field, Qt::Key_1); });
        gone.hide();
    });
    EXPECT_EQ(field.text(), QString());
    types("7");
    EXPECT_EQ(window.first.text(), QStringLiteral("7"));
}

TEST_F(InputGateTest, ADeletedWindowLosesWhatWasTypedForIt) {
    auto* gone = new QDialog(&window);
    auto* field = new QLineEdit(gone);
    gone->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(gone));
    routine([&] {
        request([&] { QTest::keyClick(field, Qt::Key_1); });
        delete gone;
    });
    types("7");
    EXPECT_EQ(window.first.text(), QStringLiteral("7"));
}

TEST_F(InputGateTest, AScreenOpenedOverAnotherTypesOnByItself) {
    routine([&] {
        request([&] { types("1"); });
        QDialog screen(&window);
        QLineEdit field(&screen);
        QTimer::singleShot(0, &screen, [&] {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
            field.setFocus();
            QTimer::singleShot(0, &screen,
                               [&] { request([&] { QTest::keyClicks(&field, "23"); }); });
            EXPECT_TRUE(QTest::qWaitFor([&] { return field.text() == "23"; }));
            EXPECT_EQ(window.first.text(), QString());
            screen.accept();
        });
        screen.exec();
        activate();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return window.first.text() == "1"; }));
}

TEST_F(InputGateTest, OnlyTheProgramsOwnWindowClosesMeanwhile) {
    GateWindow desk;
    gate.letClose(desk);
    routine([&] {
        request([&] {
            desk.close();
            window.close();
        });
    });
    EXPECT_EQ(desk.closes, 1);
    EXPECT_EQ(window.closes, 0);
}

TEST_F(InputGateTest, AnAccessKeysClickWaitsForABox) {
    routine([&] {
        window.button.animateClick();
        box([&](QDialog&) { QTest::qWait(250); });
        EXPECT_EQ(acts, 0);
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return acts == 1; }));
}

}  // namespace
}  // namespace tarn::test
