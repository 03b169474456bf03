#include "widgets/gesture_filter.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <QVBoxLayout>

#include "tests/support/timed_events.h"

namespace tarn::test {
namespace {

class GestureWindow : public QDialog {
public:
    GestureWindow() {
        auto* layout = new QVBoxLayout(this);
        for (QWidget* widget : std::initializer_list<QWidget*>{&button, &other, &tick, &field,
                                                               &next, &lines, &list, &grid}) {
            layout->addWidget(widget);
        }
        list.addItems({"a", "b", "c"});
        button.setAutoDefault(false);
        other.setAutoDefault(false);
        show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(this));
    }

    QPushButton button{"&Grava"};
    QPushButton other{"Fecha"};
    QCheckBox tick;
    QLineEdit field;
    QLineEdit next;
    QPlainTextEdit lines;
    QComboBox list;
    QTableWidget grid{3, 2};

    int escapes = 0;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape) {
            ++escapes;
        }
    }
};

class GestureFilterTest : public testing::Test {
protected:
    GestureFilterTest() {
        QObject::connect(&window.button, &QPushButton::clicked, [this] { ++acts; });
        QObject::connect(&window.other, &QPushButton::clicked, [this] { ++otherActs; });
    }
    // No case begins within the times of the one before.
    static quint64 later() {
        static quint64 now = 1000;
        return now += 100000;
    }
    QPoint middle() const { return window.button.rect().center(); }

    GestureWindow window;
    int acts = 0;
    int otherActs = 0;
    const quint64 t = later();
};

TEST_F(GestureFilterTest, EnterPressesTheFocusedButtonOnce) {
    tapKey(window.button, Qt::Key_Return, t);
    EXPECT_EQ(acts, 1);
    tapKey(window.button, Qt::Key_Enter, t + 500);
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, AHeldKeyWithItsMarkActsOnce) {
    pressKey(window.button, Qt::Key_Return, t);
    for (quint64 at = t + 300; at < t + 2000; at += 33) {
        releaseKey(window.button, Qt::Key_Return, at, {.repeat = true});
        pressKey(window.button, Qt::Key_Return, at, {.repeat = true});
    }
    releaseKey(window.button, Qt::Key_Return, t + 2000);
    EXPECT_EQ(acts, 1);
}

TEST_F(GestureFilterTest, AHeldKeyWithoutAnyMarkActsOnce) {
    pressKey(window.button, Qt::Key_Return, t);
    for (quint64 at = t + 300; at < t + 2000; at += 33) {
        releaseKey(window.button, Qt::Key_Return, at);
        pressKey(window.button, Qt::Key_Return, at);
    }
    releaseKey(window.button, Qt::Key_Return, t + 2000);
    EXPECT_EQ(acts, 1);
}

TEST_F(GestureFilterTest, AHeldKeyWithMarksNowAndThenActsOnce) {
    pressKey(window.button, Qt::Key_Return, t);
    int turn = 0;
    for (quint64 at = t + 300; at < t + 2000; at += 33) {
        const bool pressMarked = ++turn % 3 == 0;
        releaseKey(window.button, Qt::Key_Return, at, {.repeat = pressMarked && turn % 2 == 0});
        pressKey(window.button, Qt::Key_Return, at, {.repeat = pressMarked});
    }
    EXPECT_EQ(acts, 1);
}

TEST_F(GestureFilterTest, HeldPressesWithoutReleasesActOnce) {
    pressKey(window.button, Qt::Key_Return, t);
    for (quint64 at = t + 600; at < t + 2000; at += 33) {
        pressKey(window.button, Qt::Key_Return, at);
    }
    EXPECT_EQ(acts, 1);
}

TEST_F(GestureFilterTest, AReleaseThatWentElsewhereCostsNoGesture) {
    pressKey(window.button, Qt::Key_Return, t);
    pressKey(window.button, Qt::Key_Return, t + 1000);
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, FiftyMillisecondsPartAHeldKeyFromANewOne) {
    pressKey(window.button, Qt::Key_Return, t);
    releaseKey(window.button, Qt::Key_Return, t + 100);
    pressKey(window.button, Qt::Key_Return, t + 149);
    EXPECT_EQ(acts, 1);
    releaseKey(window.button, Qt::Key_Return, t + 200);
    pressKey(window.button, Qt::Key_Return, t + 250);
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, TheTimeMayRunOver) {
    const quint64 end = 0xFFFFFFFFU;
    pressKey(window.button, Qt::Key_Return, end - 200);
    releaseKey(window.button, Qt::Key_Return, end - 10);
    pressKey(window.button, Qt::Key_Return, 20);
    EXPECT_EQ(acts, 1);
    releaseKey(window.button, Qt::Key_Return, 30);
    pressKey(window.button, Qt::Key_Return, 100);
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, ARolledOverOtherKeyIsANewGesture) {
    pressKey(window.button, Qt::Key_Return, t);
    pressKey(window.other, Qt::Key_Space, t + 10);
    releaseKey(window.other, Qt::Key_Space, t + 20);
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(otherActs, 1);
}

TEST_F(GestureFilterTest, AHeldEnterActsOnNothingThatOpensOrGetsTheFocus) {
    QDialog box(&window);
    QPushButton yes(&box);
    int answers = 0;
    QObject::connect(&yes, &QPushButton::clicked, [&] { ++answers; });
    box.show();
    pressKey(window.button, Qt::Key_Return, t);
    for (quint64 at = t + 300; at < t + 1000; at += 33) {
        releaseKey(yes, Qt::Key_Return, at);
        pressKey(yes, Qt::Key_Return, at);
    }
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(answers, 0);
    releaseKey(yes, Qt::Key_Return, t + 1000);
    tapKey(yes, Qt::Key_Return, t + 1100);
    EXPECT_EQ(answers, 1);
}

TEST_F(GestureFilterTest, AKeyHeldFromBeforeTheProgramHadTheFocusActsOnNothing) {
    pressKey(window.button, Qt::Key_Space, t, {.repeat = true});
    releaseKey(window.button, Qt::Key_Space, t + 10);
    EXPECT_EQ(acts, 0);
    releaseKey(window.button, Qt::Key_Return, t + 500);
    pressKey(window.button, Qt::Key_Return, t + 500);
    EXPECT_EQ(acts, 0);
}

TEST_F(GestureFilterTest, AHeldSpaceActsOnceAndTogglesOnce) {
    for (QWidget* widget : std::initializer_list<QWidget*>{&window.button, &window.tick}) {
        const quint64 start = later();
        pressKey(*widget, Qt::Key_Space, start);
        for (quint64 at = start + 300; at < start + 1000; at += 33) {
            releaseKey(*widget, Qt::Key_Space, at);
            pressKey(*widget, Qt::Key_Space, at);
        }
        releaseKey(*widget, Qt::Key_Space, start + 1000);
    }
    EXPECT_EQ(acts, 1);
    EXPECT_TRUE(window.tick.isChecked());
}

TEST_F(GestureFilterTest, AHeldEscActsOnce) {
    pressKey(window.field, Qt::Key_Escape, t);
    for (quint64 at = t + 300; at < t + 600; at += 33) {
        releaseKey(window.field, Qt::Key_Escape, at);
        pressKey(window.field, Qt::Key_Escape, at);
    }
    EXPECT_EQ(window.escapes, 1);
}

TEST_F(GestureFilterTest, WhatEditsRepeats) {
    for (quint64 at = t; at < t + 330; at += 33) {
        pressKey(window.field, Qt::Key_A, at);
        releaseKey(window.field, Qt::Key_A, at + 33);
    }
    EXPECT_EQ(window.field.text(), QStringLiteral("aaaaaaaaaa"));
    for (quint64 at = t + 1000; at < t + 1100; at += 33) {
        pressKey(window.field, Qt::Key_Backspace, at, {.repeat = at != t + 1000});
    }
    EXPECT_EQ(window.field.text(), QStringLiteral("aaaaaa"));
    for (quint64 at = t + 2000; at < t + 2100; at += 33) {
        pressKey(window.field, Qt::Key_Space, at, {.repeat = at != t + 2000});
        pressKey(window.field, Qt::Key_Left, at, {.repeat = at != t + 2000});
    }
    EXPECT_EQ(window.field.text(), QStringLiteral("aaaaaa    "));
    EXPECT_EQ(window.field.cursorPosition(), 6);
}

TEST_F(GestureFilterTest, AHeldEnterMakesLinesOnlyWhereItWasPressed) {
    pressKey(window.lines, Qt::Key_Return, t);
    pressKey(window.lines, Qt::Key_Return, t + 300, {.repeat = true});
    EXPECT_EQ(window.lines.document()->blockCount(), 3);
    releaseKey(window.lines, Qt::Key_Return, t + 500);
    pressKey(window.field, Qt::Key_Return, t + 1000);
    pressKey(window.lines, Qt::Key_Return, t + 1300, {.repeat = true});
    EXPECT_EQ(window.lines.document()->blockCount(), 3);
}

TEST_F(GestureFilterTest, AHeldShortcutActsOnce) {
    for (const auto& [key, modifiers] : std::initializer_list<std::pair<int, Qt::KeyboardModifier>>{
             {Qt::Key_F5, Qt::NoModifier},
             {Qt::Key_P, Qt::ControlModifier},
             {Qt::Key_Y, Qt::AltModifier}}) {
        const quint64 start = later();
        int keys = 0;
        class Counter : public QWidget {
        public:
            explicit Counter(int& count) : count_(count) {}

        protected:
            void keyPressEvent(QKeyEvent* /*event*/) override { ++count_; }

        private:
            int& count_;
        } counter(keys);
        pressKey(counter, key, start, {}, modifiers);
        for (quint64 at = start + 300; at < start + 500; at += 33) {
            releaseKey(counter, key, at, {}, modifiers);
            pressKey(counter, key, at, {}, modifiers);
        }
        EXPECT_EQ(keys, 1) << key;
    }
}

TEST_F(GestureFilterTest, AHeldShortcutIsTakenFromTheShortcutsToo) {
    QKeyEvent first(QEvent::ShortcutOverride, Qt::Key_F5, Qt::NoModifier);
    first.setTimestamp(t);
    first.ignore();
    QCoreApplication::sendEvent(&window.field, &first);
    EXPECT_FALSE(first.isAccepted());
    QKeyEvent held(QEvent::ShortcutOverride, Qt::Key_F5, Qt::NoModifier, {}, true);
    held.setTimestamp(t + 300);
    held.ignore();
    QCoreApplication::sendEvent(&window.field, &held);
    EXPECT_TRUE(held.isAccepted()) << "an override that is taken runs no shortcut";
}

TEST_F(GestureFilterTest, EventsWithoutATimeAreJudgedByTheirMark) {
    QTest::keyClick(&window.button, Qt::Key_Return);
    QTest::keyClick(&window.button, Qt::Key_Return);
    EXPECT_EQ(acts, 2);
    pressKey(window.button, Qt::Key_Return, 0, {.repeat = true});
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, ATripleClickIsOneActOfAButton) {
    clickAt(window.button, middle(), t);
    clickAt(window.button, middle(), t + 150, true);
    clickAt(window.button, middle(), t + 300);
    clickAt(window.button, middle(), t + 450, true);
    EXPECT_EQ(acts, 1);
    EXPECT_FALSE(window.button.isDown());
    const auto interval =
        static_cast<quint64>(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    clickAt(window.button, middle(), t + 450 + interval);
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, AFastClickElsewhereIsAClickOfItsOwn) {
    clickAt(window.button, middle(), t);
    clickAt(window.other, window.other.rect().center(), t + 100);
    EXPECT_EQ(acts, 1);
    EXPECT_EQ(otherActs, 1);
}

TEST_F(GestureFilterTest, ADoubleClickTogglesABoxOnce) {
    const QPoint there(window.tick.height() / 2, window.tick.height() / 2);
    clickAt(window.tick, there, t);
    clickAt(window.tick, there, t + 150, true);
    EXPECT_TRUE(window.tick.isChecked());
}

TEST_F(GestureFilterTest, ADoubleClickReachesAGridAndAThirdClickDoesNot) {
    QWidget& cells = *window.grid.viewport();
    window.grid.setItem(0, 0, new QTableWidgetItem);
    const QPoint cell = window.grid.visualRect(window.grid.model()->index(0, 0)).center();
    const QSignalSpy clicks(&window.grid, &QTableWidget::cellClicked);
    const QSignalSpy doubles(&window.grid, &QTableWidget::cellDoubleClicked);
    clickAt(cells, cell, t);
    EXPECT_EQ(clicks.count(), 1);
    clickAt(cells, cell, t + 150, true);
    EXPECT_EQ(doubles.count(), 1);
    EXPECT_EQ(clicks.count(), 1) << "the end of a double click ticks nothing";
    clickAt(cells, cell, t + 300);
    EXPECT_EQ(clicks.count(), 1);
}

TEST_F(GestureFilterTest, ADoubleClickMarksAWordOfAText) {
    window.field.setText(QStringLiteral("conta corrente"));
    const QPoint there(12, window.field.height() / 2);
    clickAt(window.field, there, t);
    clickAt(window.field, there, t + 150, true);
    EXPECT_EQ(window.field.selectedText(), QStringLiteral("conta"));
}

TEST_F(GestureFilterTest, FastClicksScroll) {
    QScrollBar bar(Qt::Vertical, &window);
    bar.setRange(0, 100);
    bar.resize(20, 200);
    bar.show();
    const QPoint below(10, 150);
    for (quint64 turn = 0; turn < 3; ++turn) {
        clickAt(bar, below, t + 100 * turn, turn % 2 == 1);
    }
    EXPECT_GE(bar.value(), 30);
}

TEST_F(GestureFilterTest, TheSecondClickDoesNothingInAWindowThatCameUnderIt) {
    clickAt(window.button, middle(), t);
    QDialog box(&window);
    QLineEdit text(&box);
    box.show();
    const QPoint same = text.mapFromGlobal(window.button.mapToGlobal(middle()));
    mouseEvent(QEvent::MouseButtonDblClick, text, same, t + 150);
    EXPECT_FALSE(text.hasSelectedText());
    text.setText(QStringLiteral("palavra"));
    clickAt(text, same, t + 300);
    EXPECT_FALSE(text.hasFocus());
}

TEST_F(GestureFilterTest, AnImpatientClickAtTheSamePlaceDoesNothing) {
    clickAt(window.button, middle(), t);
    ignoreClicksHere(window.button);
    clickAt(window.button, middle(), t + 600);
    clickAt(window.button, middle() + QPoint(2, 1), t + 1200);
    EXPECT_EQ(acts, 1);
    clickAt(window.other, window.other.rect().center(), t + 2400);
    EXPECT_EQ(otherActs, 1);
}

TEST_F(GestureFilterTest, MovingThePointerEndsTheImpatience) {
    clickAt(window.button, middle(), t);
    ignoreClicksHere(window.button);
    mouseEvent(QEvent::MouseMove, window.button, middle() + QPoint(10, 0), t + 300);
    mouseEvent(QEvent::MouseMove, window.button, middle(), t + 500);
    clickAt(window.button, middle(), t + 600);
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, AKeyEndsTheImpatienceAndAHeldOneDoesNot) {
    pressKey(window.field, Qt::Key_Down, t - 50);
    clickAt(window.button, middle(), t);
    ignoreClicksHere(window.button);
    pressKey(window.field, Qt::Key_Down, t + 500, {.repeat = true});
    clickAt(window.button, middle(), t + 600);
    EXPECT_EQ(acts, 1);
    releaseKey(window.field, Qt::Key_Down, t + 700);
    pressKey(window.field, Qt::Key_Down, t + 1000);
    clickAt(window.button, middle(), t + 1600);
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, TheImpatienceEnds) {
    clickAt(window.button, middle(), t);
    ignoreClicksHere(window.button);
    QTest::qWait(1600);
    clickAt(window.button, middle(), t + 2000);
    EXPECT_EQ(acts, 2);
}

TEST_F(GestureFilterTest, AKeyPressesTheRestingButton) {
    clickAt(window.button, middle(), t);
    ignoreClicksHere(window.button);
    tapKey(window.button, Qt::Key_Space, t + 600);
    EXPECT_EQ(acts, 2);
}

}  // namespace
}  // namespace tarn::test
