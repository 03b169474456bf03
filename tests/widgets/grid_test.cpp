// The ticked grid under real clicks and keys, and the progress of a long run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <array>

#include "tests/support/user.h"
#include "widgets/grid_model.h"
#include "widgets/progress_window.h"

namespace tarn::test {
namespace {

using testing::ElementsAre;

constexpr std::array<GridColumn, 4> columns{{{"", 0, ColumnKind::CheckBox},
                                             {"Nome", 20},
                                             {"Guardada", 0},
                                             {"Valor", 12, ColumnKind::Number}}};

class GridTest : public testing::Test {
protected:
    void SetUp() override {
        prepareGrid(grid, model);
        grid.setSelectionBehavior(QAbstractItemView::SelectRows);
        grid.setSelectionMode(QAbstractItemView::SingleSelection);
        grid.setEditTriggers(QAbstractItemView::NoEditTriggers);
        grid.resize(600, 300);
        model.show({{{"", "A", "x", "1,00"}}, {{"", "B", "y", "2,00"}}, {{"", "C"}}});
        grid.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
    }
    std::vector<bool> ticks() const {
        std::vector<bool> all;
        for (int line = 0; line < model.rowCount(); ++line) {
            all.push_back(model.ticked(line));
        }
        return all;
    }
    void click(int line, int column, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseClick(grid.viewport(), button, {},
                          grid.visualRect(model.index(line, column)).center());
    }
    void clickHeading(int column) {
        QHeaderView& header = *grid.horizontalHeader();
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                          QPoint(header.sectionViewportPosition(column) + 5, 5));
    }

    GridModel model{columns, nullptr};
    QTableView grid;
};

TEST_F(GridTest, ShowsItsColumns) {
    EXPECT_TRUE(grid.isColumnHidden(2)) << "kept for the printing";
    EXPECT_FALSE(grid.isColumnHidden(0));
    EXPECT_EQ(model.index(0, 2).data(), QStringLiteral("x"));
    EXPECT_EQ(model.index(2, 3).data(), QVariant()) << "a row may be shorter";
    EXPECT_EQ(model.index(0, 3).data(Qt::TextAlignmentRole),
              QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_FALSE(model.index(0, 1).data(Qt::TextAlignmentRole).isValid());
    EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole), QStringLiteral("Nome"));
    EXPECT_EQ(model.headerData(1, Qt::Vertical, Qt::DisplayRole), 2);
    EXPECT_FALSE(model.headerData(0, Qt::Horizontal, Qt::ToolTipRole).toString().isEmpty());
}

TEST_F(GridTest, AClickInTheFirstColumnTicksTheRow) {
    click(1, 0);
    EXPECT_THAT(ticks(), ElementsAre(false, true, false));
    click(1, 0);
    EXPECT_THAT(ticks(), ElementsAre(false, false, false));
    click(1, 1);
    click(1, 0, Qt::RightButton);
    EXPECT_THAT(ticks(), ElementsAre(false, false, false));
}

TEST_F(GridTest, SpaceTicksTheActiveRow) {
    click(2, 1);
    QTest::keyClick(&grid, Qt::Key_Space);
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_THAT(ticks(), ElementsAre(true, false, true));
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_THAT(ticks(), ElementsAre(false, false, true));
}

TEST_F(GridTest, ADoubleClickIsTwoTicks) {
    const QPoint box = grid.visualRect(model.index(1, 0)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, box);
    EXPECT_THAT(ticks(), ElementsAre(false, true, false));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, box);
    EXPECT_THAT(ticks(), ElementsAre(false, true, false));
}

TEST_F(GridTest, AClickThatEndsInAnotherCellTicksNothing) {
    const auto middle = [&](int line, int column) {
        return grid.visualRect(model.index(line, column)).center();
    };
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middle(0, 0));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middle(2, 0));
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middle(1, 1));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middle(1, 0));
    EXPECT_THAT(ticks(), ElementsAre(false, false, false));
}

TEST_F(GridTest, SpaceHeldDownTicksOnce) {
    click(1, 1);
    QTest::keyPress(&grid, Qt::Key_Space);
    for (int turn = 0; turn < 3; ++turn) {
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "),
                           true);
        QCoreApplication::sendEvent(&grid, &repeated);
    }
    EXPECT_THAT(ticks(), ElementsAre(false, true, false));
}

TEST_F(GridTest, TheHeadingSetsAllRowsByTheLastOne) {
    click(0, 0);
    clickHeading(0);
    EXPECT_THAT(ticks(), ElementsAre(true, true, true));
    click(0, 0);
    clickHeading(0);
    EXPECT_THAT(ticks(), ElementsAre(false, false, false));
    click(2, 0);
    clickHeading(0);
    EXPECT_THAT(ticks(), ElementsAre(false, false, false));
    clickHeading(1);
    EXPECT_THAT(ticks(), ElementsAre(false, false, false)) << "another heading does nothing";
}

TEST_F(GridTest, WithoutRowsNothingHappens) {
    model.show({});
    clickHeading(0);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(GridTest, NewRowsComeUnticked) {
    clickHeading(0);
    model.show({{{"", "D", "", ""}}});
    EXPECT_THAT(ticks(), ElementsAre(false));
    EXPECT_EQ(model.line(0).column(2), "D");
}

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

TEST_F(ProgressWindowTest, WindowsRepaintAndInputIsDiscarded) {
    PaintCounter painted(&screen);
    painted.resize(100, 100);
    painted.show();
    QLineEdit field(&screen);
    field.show();
    field.setFocus();
    QTimer clock;
    clock.setObjectName(QStringLiteral("Timer"));
    int beats = 0;
    QObject::connect(&clock, &QTimer::timeout, [&] { ++beats; });
    QCoreApplication::processEvents();
    ProgressWindow progress(screen);
    const Progress report = progress.notices();
    report(0, 500);
    const int before = painted.paintings;
    painted.update();
    clock.start(0);
    QCoreApplication::postEvent(&field, new QKeyEvent(QEvent::KeyPress, Qt::Key_A, {}, "a"));
    report(500, 500);
    EXPECT_GT(painted.paintings, before);
    EXPECT_EQ(field.text(), QString());
    EXPECT_EQ(beats, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return beats > 0; })) << "it ticks behind the run";
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
