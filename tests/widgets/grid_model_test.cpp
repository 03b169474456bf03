// The rows of a grid as its view asks for them.
#include "widgets/grid_model.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "tests/widgets/small_grid.h"

namespace tarn::test {
namespace {

constexpr auto table =
    gridOf<Column>({{Column::Tick, {"", "", 4, Treatment::Tick}},
                    {Column::Name, {"NOME", "Nome", 20}},
                    {Column::Kept, {"ID", "ID", 0}},
                    {Column::Value, {"VL", "", 12, Treatment::Amount, "Valor"}}});
constexpr auto withoutTicks =
    gridOf<Column>({{Column::Tick, {"", " ", 4, Treatment::TickAlone}},
                    {Column::Name, {"NOME", "Nome", 20}},
                    {Column::Kept, {"NR", "Número", 5, Treatment::Number}},
                    {Column::Value, {"QT", "", 12, Treatment::Quantity, "Quantidade"}}});

class GridModelTest : public testing::Test {
protected:
    GridModelTest() { model.show({{{"", "A", "x", "1,00"}}, {{"", "B"}}, {{"", "C"}}}); }
    QVariant heading(int column, int role) const {
        return model.headerData(column, Qt::Horizontal, role);
    }

    GridModel model{table, nullptr};
};

TEST_F(GridModelTest, ACellIsTheTextOfItsRow) {
    EXPECT_EQ(model.rowCount(), 3);
    EXPECT_EQ(model.columnCount(), 4);
    EXPECT_EQ(model.index(0, 1).data(), QStringLiteral("A"));
    EXPECT_EQ(model.index(0, 2).data(), QStringLiteral("x"));
    EXPECT_EQ(model.index(1, 3).data(), QVariant()) << "a row may be shorter";
    EXPECT_EQ(model.index(0, 0).data(), QVariant()) << "a box has no text";
    EXPECT_EQ(model.line(2).text(Column::Name), "C");
}

TEST_F(GridModelTest, NumbersStandAtTheRightEdge) {
    const QVariant right = QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    EXPECT_EQ(model.index(0, 3).data(Qt::TextAlignmentRole), right);
    EXPECT_FALSE(model.index(0, 1).data(Qt::TextAlignmentRole).isValid());
    GridModel other(withoutTicks, nullptr);
    other.show({{{"", "A", "7", "1,000"}}});
    EXPECT_EQ(other.index(0, 2).data(Qt::TextAlignmentRole), right);
    EXPECT_EQ(other.index(0, 3).data(Qt::TextAlignmentRole), right);
}

TEST_F(GridModelTest, HeadingsAndWhatTheyHint) {
    EXPECT_EQ(heading(1, Qt::DisplayRole), QStringLiteral("Nome"));
    EXPECT_FALSE(heading(1, Qt::ToolTipRole).isValid());
    EXPECT_FALSE(heading(1, Qt::AccessibleTextRole).isValid()) << "the heading itself is read";
    EXPECT_EQ(heading(0, Qt::ToolTipRole), QStringLiteral("Marcar ou desmarcar todas as linhas"));
    EXPECT_EQ(heading(3, Qt::ToolTipRole), QStringLiteral("Valor"));
    EXPECT_EQ(heading(3, Qt::AccessibleTextRole), QStringLiteral("Valor"));
    EXPECT_EQ(
        GridModel(withoutTicks, nullptr).headerData(0, Qt::Horizontal, Qt::AccessibleTextRole),
        QStringLiteral("Marcada"));
    EXPECT_EQ(model.headerData(1, Qt::Vertical, Qt::DisplayRole), 2) << "rows count from 1";
    const GridModel other(withoutTicks, nullptr);
    EXPECT_FALSE(other.headerData(0, Qt::Horizontal, Qt::ToolTipRole).isValid());
    EXPECT_EQ(other.headerData(0, Qt::Horizontal, Qt::DisplayRole), QStringLiteral(" "));
}

TEST_F(GridModelTest, ABoxIsTickedByItsState) {
    EXPECT_TRUE(model.hasCheckBox());
    EXPECT_TRUE(model.flags(model.index(1, 0)) & Qt::ItemIsUserCheckable);
    EXPECT_FALSE(model.flags(model.index(1, 1)) & Qt::ItemIsUserCheckable);
    EXPECT_EQ(model.index(1, 0).data(Qt::CheckStateRole), Qt::Unchecked);
    EXPECT_TRUE(model.setData(model.index(1, 0), Qt::Checked, Qt::CheckStateRole));
    EXPECT_EQ(model.index(1, 0).data(Qt::CheckStateRole), Qt::Checked);
    EXPECT_TRUE(model.line(1).ticked);
    EXPECT_FALSE(model.setData(model.index(1, 1), Qt::Checked, Qt::CheckStateRole));
    EXPECT_FALSE(model.setData(model.index(1, 0), "x", Qt::EditRole));
}

TEST_F(GridModelTest, TheLastRowDecidesForAll) {
    const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.tick(0, true);
    model.toggleByLastRow();
    EXPECT_TRUE(model.ticked(0) && model.ticked(1) && model.ticked(2));
    model.tick(0, false);
    model.toggleByLastRow();
    EXPECT_FALSE(model.ticked(0) || model.ticked(1) || model.ticked(2));
    EXPECT_EQ(changes.size(), 4) << "all rows are one change";
}

TEST_F(GridModelTest, NewRowsComeUnticked) {
    model.toggleByLastRow();
    model.show({{{"", "D", "", ""}}});
    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_FALSE(model.ticked(0));
    model.show({});
    model.toggleByLastRow();
    EXPECT_EQ(model.rowCount(), 0);
}

TEST_F(GridModelTest, TheTallyFollowsEachTick) {
    model.show({{{"", "A", "x", "1,00"}}, {{"", "B", "y", "1.234,56"}}, {{"", "C", "z", "-0,01"}}});
    EXPECT_TRUE(model.countsAmounts());
    const auto tally = [this] { return std::pair(model.tally().ticked, model.tally().cents); };
    EXPECT_EQ(tally(), std::pair(0, std::int64_t{0}));
    model.tick(1, true);
    model.tick(1, true);
    EXPECT_EQ(tally(), std::pair(1, std::int64_t{123456})) << "ticked twice it counts once";
    model.setData(model.index(2, 0), Qt::Checked, Qt::CheckStateRole);
    EXPECT_EQ(tally(), std::pair(2, std::int64_t{123455}));
    model.tick(1, false);
    EXPECT_EQ(tally(), std::pair(1, std::int64_t{-1}));
    model.toggleByLastRow();
    EXPECT_EQ(tally(), std::pair(0, std::int64_t{0}));
    model.toggleByLastRow();
    EXPECT_EQ(tally(), std::pair(3, std::int64_t{123555}));
    model.show({{{"", "D", "x", "2,00"}, true}, {{"", "E", "y", "sem valor"}, true}});
    EXPECT_EQ(tally(), std::pair(2, std::int64_t{200})) << "what is no amount counts nothing";
    GridModel none(withoutTicks, nullptr);
    EXPECT_FALSE(none.countsAmounts()) << "a quantity is no amount";
}

TEST_F(GridModelTest, ATallyOfManyAmountsHasNoFractionOfACent) {
    std::vector<GridRow> rows(20'000, GridRow{{"", "A", "x", "0,10"}});
    rows.push_back({{"", "B", "y", "9.999.999.999.999.999.999,00"}});
    model.show(std::move(rows));
    model.toggleByLastRow();
    model.tick(20'000, false);
    EXPECT_EQ(model.tally().cents, 200'000);
}

}  // namespace
}  // namespace tarn::test
