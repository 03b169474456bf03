// A grid under real clicks and keys.
#include "widgets/grid_view.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QTableView>
#include <QTest>
#include <QToolTip>

#include "widgets/grid_model.h"

#include "tests/widgets/small_grid.h"

namespace tarn::test {
namespace {

class GridViewTest : public testing::Test {
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

TEST_F(GridViewTest, ShowsItsColumns) {
    EXPECT_TRUE(grid.isColumnHidden(2)) << "kept for the printing";
    for (const int column : {0, 1, 3}) {
        EXPECT_FALSE(grid.isColumnHidden(column));
    }
    EXPECT_EQ(grid.columnWidth(1), 20 * grid.fontMetrics().averageCharWidth());
}

TEST_F(GridViewTest, AClickInTheFirstColumnTicksTheRow) {
    click(1, 0);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, true, false}));
    click(1, 0);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, false, false}));
    click(1, 1);
    click(1, 0, Qt::RightButton);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, false, false}));
}

TEST_F(GridViewTest, SpaceTicksTheActiveRow) {
    click(2, 1);
    QTest::keyClick(&grid, Qt::Key_Space);
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(ticks(), (std::vector<bool>{true, false, true}));
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, false, true}));
}

TEST_F(GridViewTest, ADoubleClickIsTwoTicks) {
    const QPoint box = grid.visualRect(model.index(1, 0)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, box);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, true, false}));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, box);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, true, false}));
}

TEST_F(GridViewTest, AClickThatEndsInAnotherCellTicksNothing) {
    const auto middle = [&](int line, int column) {
        return grid.visualRect(model.index(line, column)).center();
    };
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middle(0, 0));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middle(2, 0));
    QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, middle(1, 1));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, middle(1, 0));
    EXPECT_EQ(ticks(), (std::vector<bool>{false, false, false}));
}

TEST_F(GridViewTest, SpaceHeldDownTicksOnce) {
    click(1, 1);
    QTest::keyPress(&grid, Qt::Key_Space);
    for (int turn = 0; turn < 3; ++turn) {
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QStringLiteral(" "),
                           true);
        QCoreApplication::sendEvent(&grid, &repeated);
    }
    EXPECT_EQ(ticks(), (std::vector<bool>{false, true, false}));
}

TEST_F(GridViewTest, TheHeadingSetsAllRowsByTheLastOne) {
    click(0, 0);
    clickHeading(0);
    EXPECT_EQ(ticks(), (std::vector<bool>{true, true, true}));
    click(0, 0);
    clickHeading(0);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, false, false}));
    click(2, 0);
    clickHeading(0);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, false, false}));
    clickHeading(1);
    EXPECT_EQ(ticks(), (std::vector<bool>{false, false, false})) << "another heading does nothing";
}

TEST_F(GridViewTest, WithoutRowsNothingHappens) {
    model.show({});
    clickHeading(0);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(GridViewTest, TheCurrentRowIsTheSelectedOne) {
    const auto onlySelected = [this](int line) {
        const QModelIndexList rows = grid.selectionModel()->selectedRows();
        return rows.size() == 1 && rows.front().row() == line && grid.currentIndex().row() == line;
    };
    EXPECT_TRUE(onlySelected(0)) << "of new rows the first one";
    click(2, 1);
    EXPECT_TRUE(onlySelected(2));
    const QPoint cell = grid.visualRect(model.index(2, 1)).center();
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::ControlModifier, cell);
    EXPECT_TRUE(onlySelected(2)) << "Ctrl unselects nothing";
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, Qt::ShiftModifier,
                      grid.visualRect(model.index(1, 1)).center());
    EXPECT_TRUE(onlySelected(1));
    QTest::keyClick(&grid, Qt::Key_Up, Qt::ControlModifier);
    EXPECT_EQ(grid.selectionModel()->selectedRows().value(0).row(), grid.currentIndex().row());
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {},
                      QPoint(5, grid.viewport()->height() - 5));
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1) << "below the last row";
    clickHeading(1);
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1);
    grid.selectRow(2);
    model.show({{{"", "D"}}, {{"", "E"}}});
    EXPECT_TRUE(onlySelected(0));
    model.show({});
    EXPECT_FALSE(grid.currentIndex().isValid());
}

TEST_F(GridViewTest, CtrlCCopiesTheShownCellsOfTheCurrentRow) {
    model.show({{{"", "A\tB\nC", "x", "1,00"}}, {{"", " D ", "y", "2,00"}}});
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("A B C\t1,00"));
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral(" D \t2,00"));
    EXPECT_EQ(ticks(), (std::vector<bool>{false, false}));
    model.show({});
    QTest::keyClick(&grid, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral(" D \t2,00")) << "no row";
}

TEST_F(GridViewTest, ACutCellShowsItsTextAsAToolTip) {
    const std::string name(60, 'n');
    model.show({{{"", name + " <b>", "x", "1,00"}}, {{"", "curto", "y", "2,00"}}});
    const auto tipAt = [this](int row, int column) {
        QToolTip::hideText();  // takes its time
        EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
        const QPoint place = grid.visualRect(model.index(row, column)).center();
        QHelpEvent help(QEvent::ToolTip, place, grid.viewport()->mapToGlobal(place));
        QCoreApplication::sendEvent(grid.viewport(), &help);
        return QToolTip::isVisible() ? QToolTip::text().toStdString() : "";
    };
    EXPECT_EQ(tipAt(0, 1), "<p>" + name + " &lt;b&gt;</p>") << "whole, and as text";
    EXPECT_EQ(tipAt(1, 1), "") << "nothing is cut";
    grid.setColumnWidth(1, 10);
    EXPECT_EQ(tipAt(1, 1), "<p>curto</p>");
    EXPECT_EQ(tipAt(1, 0), "") << "a box has no text";
}

// Where the space key has no box to tick, the view takes it for the selection.
TEST(GridViewWithoutBoxes, NoKeyUnselectsTheCurrentRow) {
    enum class Only { Name, End };
    static constexpr auto table = gridOf<Only>({{Only::Name, {"NOME", "Nome", 20}}});
    GridModel model(table, nullptr);
    QTableView grid;
    prepareGrid(grid, model);
    grid.setSelectionBehavior(QAbstractItemView::SelectRows);
    grid.setSelectionMode(QAbstractItemView::SingleSelection);
    grid.setEditTriggers(QAbstractItemView::NoEditTriggers);
    model.show({{{"A"}}, {{"B"}}});
    grid.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&grid));
    QTest::keyClick(&grid, Qt::Key_Down);
    QTest::keyClick(&grid, Qt::Key_Space, Qt::ControlModifier);
    ASSERT_EQ(grid.selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(grid.selectionModel()->selectedRows().front().row(), 1);
    EXPECT_EQ(grid.currentIndex().row(), 1);
}

}  // namespace
}  // namespace tarn::test
