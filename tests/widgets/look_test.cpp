// Edges, texts and the focus are easy to tell from what they stand on, as drawn.
#include "widgets/look.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>
#include <QToolTip>
#include <QVBoxLayout>

#include "tests/support/contrast.h"
#include "tests/support/dark_desktop.h"
#include "widgets/grid_model.h"
#include "widgets/grid_view.h"

namespace tarn::test {
namespace {

constexpr double edgeContrast = 3;
constexpr double textContrast = 4.5;

class Look : public testing::Test {
protected:
    // The widget on a screen, without the focus.
    template <class Widget>
    Widget& shown(Widget* widget) {
        column->addWidget(widget);
        screen.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&screen));
        widget->show();
        column->activate();
        screen.setFocus();
        return *widget;
    }
    // What is drawn of a part of it; nullptr: all.
    QImage picture(const QWidget& widget, const QRect& part = {}) {
        const QRect place = part.isNull() ? widget.rect() : part;
        return screen.grab(QRect(widget.mapTo(&screen, place.topLeft()), place.size())).toImage();
    }
    // The strongest dot on a line of `length` dots inward from the middle of the left side.
    double edge(const QWidget& widget, const QColor& ground) {
        const QImage all = picture(widget);
        double most = 1;
        for (int x = 0; x < 3; ++x) {
            most = std::max(most, contrast(ground, all.pixelColor(x, all.height() / 2)));
        }
        return most;
    }
    QColor window() const { return screen.palette().color(QPalette::Window); }

    QWidget screen;
    QVBoxLayout* column = new QVBoxLayout(&screen);
};

TEST_F(Look, FieldsHaveAnEdge) {
    for (QWidget* field : std::initializer_list<QWidget*>{new QLineEdit, new QComboBox,
                                                          new QPlainTextEdit, new QTableView}) {
        const char* kind = field->metaObject()->className();
        shown(field);
        EXPECT_GE(edge(*field, window()), edgeContrast) << kind;
        EXPECT_GE(edge(*field, Qt::white), edgeContrast) << kind;
    }
}

TEST_F(Look, EmptyOptionsHaveAnEdge) {
    for (QAbstractButton* option :
         std::initializer_list<QAbstractButton*>{new QCheckBox, new QRadioButton}) {
        shown(option);
        EXPECT_GE(contrastIn(picture(*option)), edgeContrast) << option->metaObject()->className();
    }
}

TEST_F(Look, EmptyBoxesOfAGridHaveAnEdge) {
    static constexpr std::array<GridColumn, 2> columns{
        {{"", "", 4, Treatment::Tick}, {"NOME", "Nome", 20}}};
    GridModel model(columns, nullptr);
    QTableView grid;
    grid.setAlternatingRowColors(true);
    prepareGrid(grid, model);
    model.show({GridRow{{"", "a"}}, GridRow{{"", "b"}}, GridRow{{"", "c"}}});
    shown(&grid);
    for (const int row : {1, 2}) {  // the first is the selected one
        const QRect cell = grid.visualRect(model.index(row, 0)).adjusted(1, 1, -2, -2);
        const QImage all = grid.viewport()->grab(cell).toImage();
        EXPECT_GE(contrastIn(all), edgeContrast) << row;
    }
    column->removeWidget(&grid);
    grid.setParent(nullptr);
}

TEST_F(Look, WhatWaitsForTypingAndWhatIsDisabledCanBeRead) {
    EXPECT_GE(worstTextContrast(QApplication::palette()), textContrast);
    auto& field = shown(new QLineEdit);
    field.setPlaceholderText(QStringLiteral("Todos os clientes"));
    EXPECT_GE(contrast(field.palette().color(QPalette::PlaceholderText), window()), textContrast)
        << "also in a field for reading";
}

// Two dots of colour all around.
TEST_F(Look, TheFocusOfAPictureButtonStandsOut) {
    auto& button = shown(new QPushButton);
    button.setIcon(tarn::picture(QStringLiteral("print")));
    const QImage before = picture(button);
    button.setFocus();
    ASSERT_TRUE(button.hasFocus());
    const QImage after = picture(button);
    const int middle = after.height() / 2;
    for (int dot = 0; dot < 2; ++dot) {
        const QPoint place(dot, middle);
        EXPECT_GE(contrast(after.pixelColor(place), window()), edgeContrast) << dot;
    }
    EXPECT_GE(contrast(after.pixelColor(1, middle), before.pixelColor(1, middle)), edgeContrast);
}

TEST_F(Look, ADarkDesktopChangesNothing) {
    const QPalette usual = QApplication::palette();
    setDarkDesktop();
    applyLook(*qApp);
    EXPECT_EQ(QApplication::palette(), usual);
    for (const char* kind : {"QMenu", "QHeaderView", "QLabel", "QAbstractButton", "QTextEdit"}) {
        EXPECT_EQ(QApplication::palette(kind), usual) << kind;
    }
    EXPECT_EQ(QToolTip::palette(), usual);
}

// What the toolkit's own translation leaves in English.
TEST(ToolkitTexts, AFileDialogTellsAFolderInPortuguese) {
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("notas")));
    QFileDialog dialog(nullptr, QString(), folder.path());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.show();
    const auto* model = dialog.findChild<QFileSystemModel*>();
    ASSERT_NE(model, nullptr);
    const auto kind = [&] {
        return model->type(model->index(folder.filePath(QStringLiteral("notas"))));
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return kind() == QStringLiteral("Pasta"); }))
        << kind().toStdString();
}

}  // namespace
}  // namespace tarn::test
