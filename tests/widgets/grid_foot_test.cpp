// What stands under a grid, by real keys.
#include "widgets/grid_foot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDialog>
#include <QLabel>
#include <QTableView>
#include <QVBoxLayout>

#include "tests/support/user.h"
#include "tests/widgets/small_grid.h"
#include "widgets/grid_model.h"
#include "widgets/grid_view.h"

namespace tarn::test {
namespace {

class GridFootTest : public testing::Test {
protected:
    void SetUp() override {
        auto* layout = new QVBoxLayout(&screen);
        layout->addWidget(&field);
        layout->addWidget(&grid);
        layout->addWidget(&foot);
        prepareGrid(grid, model);
        grid.setSelectionBehavior(QAbstractItemView::SelectRows);
        foot.serve(grid, model, {"documento", "documentos"});
        show({{"José", "segredo", "1,00"}, {"Ana", "y", "1.234,56"}, {"JOSEFA", "z", "9,00"}});
        screen.resize(600, 400);
        screen.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
        grid.setFocus();
    }
    void show(const std::vector<std::vector<std::string>>& rows) {
        std::vector<GridRow> lines;
        for (const std::vector<std::string>& row : rows) {
            lines.push_back({{"", row[0], row[1], row[2]}});
        }
        model.show(std::move(lines));
    }
    std::string count() const { return named<QLabel>(foot, "count").text().toStdString(); }
    std::string result() const { return named<QLabel>(foot, "findResult").text().toStdString(); }
    QLineEdit& text() const { return named<QLineEdit>(foot, "findText"); }
    bool barIsOpen() const { return named<QWidget>(foot, "findBar").isVisible(); }
    void stroke(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        QTest::keyClick(screen.focusWidget(), key, with);
    }
    // A key that is held down, as the window system repeats it.
    void hold(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
        for (int time = 0; time < 5; ++time) {
            QTest::simulateEvent(screen.focusWidget(), true, key, with, {}, true);
        }
    }
    void find(const char* wanted) {
        stroke(Qt::Key_F, Qt::ControlModifier);
        ASSERT_TRUE(barIsOpen());
        text().selectAll();
        keys(text(), wanted);
        stroke(Qt::Key_Return);
    }

    GridModel model{columns, nullptr};
    QDialog screen;
    QLineEdit field;
    QTableView grid;
    GridFoot foot{&screen};
};

TEST_F(GridFootTest, CountsRowsTicksAndTheirAmount) {
    EXPECT_EQ(count(), "3 documentos, nenhum marcado");
    model.tick(1, true);
    EXPECT_EQ(count(), "3 documentos, 1 marcado, R$ 1.234,56");
    model.toggleByLastRow();
    EXPECT_EQ(count(), "3 documentos, 3 marcados, R$ 1.244,56");
    show({{"A", "", "1,00"}});
    EXPECT_EQ(count(), "1 documento, nenhum marcado");
    model.show({});
    EXPECT_EQ(count(), "Nenhum documento");
    model.show(std::vector<GridRow>(1786));
    EXPECT_EQ(count(), "1.786 documentos, nenhum marcado");
}

TEST(GridCount, WithoutBoxesOnlyRowsCountAndANounHasItsGender) {
    enum class Only { Name, End };
    static constexpr auto table = gridOf<Only>({{Only::Name, {"NOME", "Nome", 20}}});
    GridModel model(table, nullptr);
    const RowNoun orders{"ordem", "ordens", true};
    EXPECT_EQ(countText(model, orders), "Nenhuma ordem");
    model.show({{{"A"}}, {{"B"}}});
    EXPECT_EQ(countText(model, orders), "2 ordens");
    enum class Ticked { Tick, Name, End };
    static constexpr auto boxes = gridOf<Ticked>(
        {{Ticked::Tick, {"", "", 4, Treatment::Tick}}, {Ticked::Name, {"NOME", "Nome", 20}}});
    GridModel labels(boxes, nullptr);
    labels.show({{{"", "A"}}, {{"", "B"}}});
    EXPECT_EQ(countText(labels, {"etiqueta", "etiquetas", true}), "2 etiquetas, nenhuma marcada");
    labels.toggleByLastRow();
    EXPECT_EQ(countText(labels, {"etiqueta", "etiquetas", true}), "2 etiquetas, 2 marcadas");
}

TEST_F(GridFootTest, CtrlFOpensTheBarFromAnywhereAndEscClosesItAlone) {
    EXPECT_FALSE(barIsOpen());
    field.setFocus();
    stroke(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(barIsOpen());
    EXPECT_EQ(screen.focusWidget(), &text());
    stroke(Qt::Key_Escape);
    EXPECT_FALSE(barIsOpen());
    EXPECT_TRUE(screen.isVisible());
    EXPECT_EQ(screen.focusWidget(), &grid);
    stroke(Qt::Key_F, Qt::ControlModifier);
    grid.setFocus();
    stroke(Qt::Key_Escape);
    EXPECT_FALSE(barIsOpen()) << "in the grid Esc closes the bar first";
    EXPECT_TRUE(screen.isVisible());
    stroke(Qt::Key_Escape);
    EXPECT_FALSE(screen.isVisible());
}

TEST_F(GridFootTest, EnterAndF3GoOnAndRoundNeitherCaseNorAccentCounts) {
    grid.setCurrentIndex(model.index(1, 1));
    find("jose");
    EXPECT_EQ(grid.currentIndex(), model.index(2, 1)) << "from the current row on";
    EXPECT_EQ(result(), "Linha 3, Nome");
    EXPECT_EQ(grid.selectionModel()->selectedRows().value(0).row(), 2);
    stroke(Qt::Key_Return);
    EXPECT_EQ(grid.currentIndex(), model.index(0, 1));
    EXPECT_EQ(result(), "Do começo: linha 1, Nome");
    stroke(Qt::Key_F3);
    EXPECT_EQ(grid.currentIndex(), model.index(2, 1));
    EXPECT_EQ(screen.focusWidget(), &text());
    grid.setFocus();
    stroke(Qt::Key_F3);
    EXPECT_EQ(grid.currentIndex(), model.index(0, 1)) << "also from the grid";
}

TEST_F(GridFootTest, OnlyWhatIsShownIsSearchedAndNothingFoundIsSaid) {
    grid.setCurrentIndex(model.index(1, 1));
    find("1.234");
    EXPECT_EQ(grid.currentIndex(), model.index(1, 3));
    EXPECT_EQ(result(), "Linha 2, Valor");
    stroke(Qt::Key_Return);
    EXPECT_EQ(grid.currentIndex(), model.index(1, 3)) << "the only one";
    find("segredo");
    EXPECT_EQ(result(), "Nada encontrado");
    EXPECT_EQ(grid.currentIndex(), model.index(1, 3));
    keys(text(), "x");
    EXPECT_EQ(result(), "") << "another text isn't searched yet";
    model.show({});
    stroke(Qt::Key_Return);
    EXPECT_EQ(result(), "Nada encontrado");
}

TEST_F(GridFootTest, AHeldKeyActsOnce) {
    find("jose");
    ASSERT_EQ(grid.currentIndex().row(), 0);
    hold(Qt::Key_Return);
    hold(Qt::Key_F3);
    EXPECT_EQ(grid.currentIndex().row(), 0);
    stroke(Qt::Key_Escape);
    hold(Qt::Key_Escape);
    EXPECT_TRUE(screen.isVisible()) << "the Esc of the bar doesn't close the screen";
    hold(Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(barIsOpen());
}

TEST_F(GridFootTest, ADialogInFrontOfTheScreenKeepsItsKeys) {
    QDialog dialog(&screen);
    QLineEdit inside(&dialog);
    dialog.setModal(true);
    dialog.show();
    stroke(Qt::Key_F, Qt::ControlModifier);
    EXPECT_FALSE(barIsOpen());
    dialog.hide();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    stroke(Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(barIsOpen());
}

TEST_F(GridFootTest, TheButtonOpensTheBarToo) {
    click(foot, "find");
    EXPECT_TRUE(barIsOpen());
    EXPECT_EQ(screen.focusWidget(), &text());
}

}  // namespace
}  // namespace tarn::test
