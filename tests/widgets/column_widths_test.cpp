// The columns of a grid in windows of several widths.
#include "widgets/column_widths.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QTableView>
#include <QTest>
#include <array>

#include "widgets/grid_model.h"

namespace tarn::test {
namespace {

constexpr std::array<GridColumn, 5> fiveColumns{{{"A", "Nº", 10},
                                                 {"B", "Cliente", 40},
                                                 {"C", "", 0},
                                                 {"D", "Valor", 12, Treatment::Amount},
                                                 {"E", "Cidade", 30}}};

class ColumnWidthsTest : public testing::Test {
protected:
    void SetUp() override {
        grid.setModel(&model);
        adaptColumns(grid, model);
        grid.verticalHeader()->hide();
        grid.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid));
    }
    int points(int characters) const { return characters * grid.fontMetrics().averageCharWidth(); }
    // Makes room for so many characters.
    void widen(int characters) {
        grid.resize(points(characters) + grid.width() - grid.viewport()->width(), 200);
        QCoreApplication::processEvents();
        ASSERT_EQ(grid.viewport()->width(), points(characters));
    }
    // But for what sharing leaves of a point.
    void expectCharacters(const std::array<int, 4>& expected) const {
        constexpr std::array shown{0, 1, 3, 4};
        for (std::size_t i = 0; i < shown.size(); ++i) {
            EXPECT_NEAR(grid.columnWidth(shown[i]), points(expected[i]), 2) << shown[i];
        }
    }

    GridModel model{fiveColumns, nullptr};
    QTableView grid;
};

TEST_F(ColumnWidthsTest, StandAsTheTableSaysWhereThereIsRoomForThem) {
    widen(92);
    expectCharacters({10, 40, 12, 30});
    EXPECT_TRUE(grid.isColumnHidden(2));
}

TEST_F(ColumnWidthsTest, NamesTakeWhatIsLeftOver) {
    widen(127);
    EXPECT_EQ(grid.horizontalHeader()->length(), points(127));
    expectCharacters({10, 60, 12, 45});
}

TEST_F(ColumnWidthsTest, NamesGiveWayAndNothingElseDoes) {
    widen(57);
    EXPECT_EQ(grid.horizontalHeader()->length(), points(57));
    expectCharacters({10, 20, 12, 15});
}

TEST_F(ColumnWidthsTest, WhereThatIsNotEnoughTheAmountStaysInView) {
    widen(50);
    expectCharacters({10, 28, 12, 30});
}

TEST_F(ColumnWidthsTest, AColumnIsNeverNarrowerThanItsHeading) {
    constexpr std::array<GridColumn, 1> narrow{{{"A", "Estabelecimento", 3}}};
    GridModel one{narrow, nullptr};
    QTableView other;
    other.setModel(&one);
    adaptColumns(other, one);
    EXPECT_GE(other.columnWidth(0), other.horizontalHeader()->sectionSizeHint(0));
}

TEST_F(ColumnWidthsTest, WhatTheUserHasDrawnStays) {
    widen(92);
    grid.horizontalHeader()->resizeSection(1, points(25));
    widen(127);
    expectCharacters({10, 25, 12, 30});
}

}  // namespace
}  // namespace tarn::test
