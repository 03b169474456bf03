#include "apps/tarnroteiro/gestures.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace tarn {
namespace {

QMenuBar& barOf(QWidget& window) {
    return *static_cast<QMainWindow&>(window).menuBar();
}

void clickAction(QMenuBar& bar, QAction* action) {
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(action).center());
}

}  // namespace

void missingOnScreen(const char* name) {
    qFatal("%s não está na tela", name);
}

void click(QWidget& window, const char* button) {
    QTest::mouseClick(&child<QPushButton>(window, button), Qt::LeftButton);
}

void tickOption(QWidget& window, const char* option) {
    auto& tick = child<QWidget>(window, option);
    QTest::mouseClick(&tick, Qt::LeftButton, {}, {8, tick.height() / 2});
}

void key(QWidget& field, const std::string& text) {
    const QString letters = QString::fromStdString(text);
    for (const QChar letter : letters) {
        QTest::sendKeyEvent(QTest::Click, &field, Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
}

void typeIn(QWidget& window, const char* field, const std::string& text) {
    auto& line = child<QLineEdit>(window, field);
    line.setFocus();
    key(line, text);
}

void openMenu(QWidget& window, const char* menu) {
    clickAction(barOf(window), child<QMenu>(window, menu).menuAction());
}

void choose(QWidget& window, const char* menu, const char* input) {
    auto& open = child<QMenu>(window, menu);
    const QRect place = open.actionGeometry(&child<QAction>(window, input));
    QTest::mouseClick(&open, Qt::LeftButton, {}, place.center());
}

void clickInBar(QWidget& window, const char* input) {
    clickAction(barOf(window), &child<QAction>(window, input));
}

void clickInGrid(QWidget& screen, int line, int column) {
    auto& grid = child<QTableView>(screen, "sprDados");
    const QModelIndex cell = grid.model()->index(line, column);
    grid.scrollTo(cell);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.visualRect(cell).center());
}

void chooseInList(QWidget& screen, const char* list, int line) {
    auto& combo = child<QComboBox>(screen, list);
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Space);
    QAbstractItemView& items = *combo.view();
    const QRect place = items.visualRect(items.model()->index(line, 0));
    QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, place.center());
}

void accept(QWidget& box) {
    QTest::keyClick(&box, Qt::Key_Return);
}

}  // namespace tarn
