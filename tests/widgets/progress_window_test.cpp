// The progress of a long run, and what it keeps from the rest of the program.
#include "widgets/progress_window.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QProgressBar>
#include <QTest>

#include "platform/qt/tick.h"
#include "tests/support/user.h"

namespace tarn::test {
namespace {

// What a run sees of the program while it is under way.
class ProgressWindowTest : public testing::Test {
protected:
    void SetUp() override {
        screen.resize(500, 300);
        screen.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    }
    void TearDown() override { EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr); }
    QWidget* window() { return screen.findChild<QWidget*>(QStringLiteral("progress")); }

    QWidget screen;
};

class PaintCounter : public QWidget {
public:
    using QWidget::QWidget;
    int paintings = 0;

protected:
    void paintEvent(QPaintEvent* /*event*/) override { ++paintings; }
};

TEST_F(ProgressWindowTest, CountsManyItemsFromTheStart) {
    ProgressWindow progress(screen);
    const Progress report = progress.notices();
    report(0, 500);
    ASSERT_NE(window(), nullptr);
    EXPECT_TRUE(window()->isVisible());
    EXPECT_NE(QGuiApplication::overrideCursor(), nullptr);
    report(37, 500);
    EXPECT_EQ(named<QLabel>(screen, "lblProgress").text(), QStringLiteral("Imprimindo: 37 de 500"));
    EXPECT_EQ(named<QProgressBar>(screen, "barProgress").value(), 37);
    EXPECT_EQ(named<QProgressBar>(screen, "barProgress").maximum(), 500);
    report(500, 500);
    EXPECT_EQ(window(), nullptr);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ProgressWindowTest, AShortRunShowsNothing) {
    ProgressWindow progress(screen);
    const Progress report = progress.notices();
    for (std::size_t doneRows = 0; doneRows <= 3; ++doneRows) {
        report(doneRows, 3);
        EXPECT_EQ(window(), nullptr);
    }
}

TEST_F(ProgressWindowTest, ALongRunOfFewItemsShowsItselfInTheEnd) {
    ProgressWindow progress(screen);
    const Progress report = progress.notices();
    report(0, 2);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        report(1, 2);
        return window() != nullptr;
    }));
}

TEST_F(ProgressWindowTest, WindowsRepaintAndInputWaits) {
    PaintCounter painted(&screen);
    painted.resize(100, 100);
    painted.show();
    QLineEdit field(&screen);
    field.show();
    field.setFocus();
    Tick clock(0, nullptr);
    int beats = 0;
    QObject::connect(&clock, &Tick::ticked, [&] { ++beats; });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    ProgressWindow progress(screen);
    const Progress report = progress.notices();
    report(0, 500);
    const int before = painted.paintings;
    painted.update();
    clock.start();
    QCoreApplication::postEvent(&field, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, "a"));
    report(500, 500);
    EXPECT_GT(painted.paintings, before);
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(beats, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return beats > 0; })) << "it ticks behind the run";
    screen.activateWindow();  // off-screen any window that is shown takes the activation along
    EXPECT_TRUE(QTest::qWaitFor([&] { return field.text() == QStringLiteral("a"); }));
}

TEST_F(ProgressWindowTest, AGivenUpRunTakesItsWindowAlong) {
    {
        ProgressWindow progress(screen);
        progress.notices()(1, 500);
        ASSERT_NE(window(), nullptr);
    }
    EXPECT_EQ(window(), nullptr);
}

}  // namespace
}  // namespace tarn::test
