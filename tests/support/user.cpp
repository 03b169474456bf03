#include "tests/support/user.h"

namespace tarn::test {

void clickAt(QWidget& widget, QPoint place) {
    QMouseEvent coming(QEvent::MouseMove, QPoint(-50, -50), widget.mapToGlobal(QPoint(-50, -50)),
                       Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &coming);
    atLeisure([&] { QTest::mouseClick(&widget, Qt::LeftButton, {}, place); });
}

void click(const QObject& screen, const char* name) {
    auto& widget = named<QWidget>(screen, name);
    clickAt(widget, widget.rect().center());
}

void keys(QWidget& widget, const char* text) {
    for (const QChar letter : QString::fromUtf8(text)) {
        const auto code = static_cast<Qt::Key>(letter.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, &widget, code, QString(letter), Qt::NoModifier);
    }
}

void type(const QObject& screen, const char* name, const char* text) {
    auto& field = named<QLineEdit>(screen, name);
    atLeisure([&field] { field.setFocus(); });
    field.selectAll();
    keys(field, text);
}

void pick(const QObject& screen, const char* name, int row) {
    auto& list = named<QComboBox>(screen, name);
    atLeisure([&list] { list.setFocus(); });
    QTest::keyClick(&list, Qt::Key_Space);
    QAbstractItemView& items = *list.view();
    ASSERT_TRUE(items.isVisible()) << name << " didn't open";
    const QModelIndex item = items.model()->index(row, 0);
    QTest::mouseClick(items.viewport(), Qt::LeftButton, {}, items.visualRect(item).center());
    ASSERT_FALSE(items.isVisible()) << name << " stayed open";
    ASSERT_EQ(list.currentIndex(), row);
}

void key(QWidget& window, Qt::Key stroke) {
    QWidget* target = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    atLeisure([&] { QTest::keyClick(target, stroke); });
}

std::string focused(const QWidget& window) {
    const QWidget* widget = window.focusWidget();
    return widget == nullptr ? std::string() : widget->objectName().toStdString();
}

// With the focus events of a window in front, by which options decide where Tab stops.
static void bringFocusTo(QWidget& field) {
    field.activateWindow();
    field.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&field] { return QApplication::focusWidget() == &field; }))
        << field.objectName().toStdString();
}

std::vector<std::string> tabOrder(QWidget& window, const char* first, std::size_t count) {
    bringFocusTo(named<QWidget>(window, first));
    std::vector<std::string> order{focused(window)};
    while (order.size() < count) {
        key(window, Qt::Key_Tab);
        order.push_back(focused(window));
    }
    return order;
}

void choose(QMainWindow& desk, const char* menuName, const char* entry) {
    QMenuBar& bar = *desk.menuBar();
    auto& menu = named<QMenu>(desk, menuName);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu.menuAction()).center());
    ASSERT_TRUE(menu.isVisible()) << menuName << " didn't open";
    auto& action = named<QAction>(desk, entry);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    menu.hide();
}

void choose(QMainWindow& desk, const char* entry) {
    QMenuBar& bar = *desk.menuBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {},
                      bar.actionGeometry(&named<QAction>(desk, entry)).center());
}

}  // namespace tarn::test
