#include "platform/qt/qt_message_boxes.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMainWindow>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>
#include <iterator>

#include "platform/qt/box_window.h"
#include "tests/support/modal_steps.h"
#include "tests/support/user.h"

namespace tarn::test {
namespace {

constexpr char boxName[] = "MessageBox";

struct Shown {
    QString text;
    QString title;
    bool icon = false;
    QStringList buttons;
};

BoxAnswer show(const Box& box, Qt::Key key, Shown* shown = nullptr) {
    ModalSteps modals;
    modals.then(boxName, [&](QWidget& window) {
        if (shown != nullptr) {
            *shown = {named<QPlainTextEdit>(window, "text").toPlainText(),
                      window.windowTitle(),
                      named<QLabel>(window, "icon").isVisible(),
                      {}};
            for (const QPushButton* button : window.findChildren<QPushButton*>()) {
                shown->buttons << button->text();
            }
        }
        tarn::test::key(window, key);
    });
    return QtMessageBoxes().show(box);
}

TEST(QtMessageBoxes, ShowsMarkupAsText) {
    for (const char* text : {"<b>x</b>", "Cliente <A & B> Ltda", "Erro <br> segunda linha",
                             "<img src='file:///etc/hostname'>"}) {
        Shown shown;
        show({text}, Qt::Key_Return, &shown);
        EXPECT_EQ(shown.text, QString::fromUtf8(text));
    }
}

TEST(QtMessageBoxes, EachLineEndIsOneLineBreak) {
    Shown shown;
    show({"a\rb\nc\r\nd\r\re\n\rf"}, Qt::Key_Return, &shown);
    EXPECT_EQ(shown.text, QStringLiteral("a\nb\nc\nd\n\ne\n\nf"));
}

TEST(QtMessageBoxes, KeepsBlanksAndTitle) {
    Shown shown;
    show({"          TARN     ", BoxIcon::Critical, "Aviso "}, Qt::Key_Return, &shown);
    EXPECT_EQ(shown.text, QStringLiteral("          TARN     "));
    EXPECT_EQ(shown.title, QStringLiteral("Aviso "));
    show({"x"}, Qt::Key_Return, &shown);
    EXPECT_EQ(shown.title, QStringLiteral("TarnEmissao"));
}

QImage iconOf(BoxIcon icon) {
    const BoxWindow box({"x", icon}, nullptr);
    return named<QLabel>(box, "icon").pixmap().toImage();
}

TEST(QtMessageBoxes, HasTheIconAskedFor) {
    Shown shown;
    show({"x"}, Qt::Key_Return, &shown);
    EXPECT_FALSE(shown.icon);
    show({"x", BoxIcon::Information}, Qt::Key_Return, &shown);
    EXPECT_TRUE(shown.icon);
    const QImage icons[] = {iconOf(BoxIcon::Information), iconOf(BoxIcon::Exclamation),
                            iconOf(BoxIcon::Question), iconOf(BoxIcon::Critical)};
    for (const QImage& one : icons) {
        EXPECT_FALSE(one.isNull());
        EXPECT_EQ(std::count(std::begin(icons), std::end(icons), one), 1);
    }
}

TEST(QtMessageBoxes, OkBoxHasOneButtonAndClosesByEnterOrEsc) {
    Shown shown;
    EXPECT_EQ(show({"x"}, Qt::Key_Return, &shown), BoxAnswer::Ok);
    EXPECT_EQ(shown.buttons, QStringList{"OK"});
    EXPECT_EQ(show({"x"}, Qt::Key_Escape), BoxAnswer::Ok);
}

TEST(QtMessageBoxes, QuestionDefaultsToSim) {
    const Box question{"x", BoxIcon::Question, "Aviso", BoxButtons::YesNo};
    Shown shown;
    EXPECT_EQ(show(question, Qt::Key_Return, &shown), BoxAnswer::Yes);
    EXPECT_EQ(shown.buttons, (QStringList{"&Sim", "&Não"}));
    EXPECT_EQ(show(question, Qt::Key_Escape), BoxAnswer::No);
}

TEST(QtMessageBoxes, QuestionTakesAClickOnNo) {
    ModalSteps modals;
    modals.then(boxName, [](QWidget& window) {
        QTest::mouseClick(window.findChildren<QPushButton*>().at(1), Qt::LeftButton);
    });
    EXPECT_EQ(QtMessageBoxes().show({"x", BoxIcon::Question, "Aviso", BoxButtons::YesNo}),
              BoxAnswer::No);
}

TEST(QtMessageBoxes, ShowsAnArrowOverARoutineWithTheHourglass) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    ModalSteps modals;
    modals.then(boxName, [](QWidget& window) {
        EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::ArrowCursor);
        tarn::test::key(window, Qt::Key_Return);
    });
    QtMessageBoxes().show({"x"});
    EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QGuiApplication::restoreOverrideCursor();
}

TEST(QtMessageBoxes, StandsInFrontOfTheWindowThatIsActive) {
    QWidget screen;
    screen.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    ModalSteps modals;
    modals.then(boxName, [&](QWidget& window) {
        EXPECT_EQ(window.parentWidget(), &screen);
        EXPECT_FALSE(window.testAttribute(Qt::WA_ShowWithoutActivating));
        tarn::test::key(window, Qt::Key_Return);
    });
    QtMessageBoxes().show({"x"});
}

TEST(QtMessageBoxes, BehindAnotherProgramItStandsInFrontOfTheDeskAndLeavesTheKeyboardThere) {
    QtMessageBoxes boxes;
    QMainWindow desk;
    desk.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&desk));
    {
        QWidget other;  // goes, and the keyboard with it
        other.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    }
    ASSERT_TRUE(QTest::qWaitFor([] { return QGuiApplication::focusWindow() == nullptr; }));
    ModalSteps modals;
    modals.then(boxName, [&](QWidget& window) {
        EXPECT_EQ(window.parentWidget(), &desk);
        EXPECT_TRUE(window.testAttribute(Qt::WA_ShowWithoutActivating));
        tarn::test::key(window, Qt::Key_Return);
    });
    boxes.show({"x"});
}

TEST(QtMessageBoxes, OfAProgramThatIsOnlyStartingItTakesTheKeyboard) {
    QtMessageBoxes boxes;
    QMainWindow desk;
    desk.setAttribute(Qt::WA_DontShowOnScreen);
    desk.show();
    ModalSteps modals;
    modals.then(boxName, [&](QWidget& window) {
        EXPECT_EQ(window.parentWidget(), &desk);
        EXPECT_FALSE(window.testAttribute(Qt::WA_ShowWithoutActivating));
        tarn::test::key(window, Qt::Key_Return);
    });
    boxes.show({"x"});
}

}  // namespace
}  // namespace tarn::test
