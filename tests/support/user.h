// What a user does to a screen: real clicks and keys on widgets found by name.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <string>

#include "platform/qt/input_gate.h"

namespace tarn::test {

// The widget (or other object) of that name; a name that the screen lacks fails the
// test at once.
template <typename T = QWidget>
T& named(const QObject& screen, const char* name) {
    T* found = screen.findChild<T*>(QLatin1StringView(name));
    if (found == nullptr) {
        throw std::runtime_error(std::string("the screen has no ") + name);
    }
    return *found;
}

// Users look before they go on: what the gesture sets off is over, unless it was made in
// haste while the program worked.
template <typename Gesture>
void atLeisure(Gesture gesture) {
    const InputGate& gate = InputGate::ofApplication();
    const bool ready = gate.isQuiet();
    gesture();
    if (ready) {
        EXPECT_TRUE(QTest::qWaitFor([&gate] { return gate.isQuiet(); }));
    }
}

// The pointer comes from elsewhere and clicks once.
inline void clickAt(QWidget& widget, QPoint place) {
    QMouseEvent coming(QEvent::MouseMove, QPoint(-50, -50), widget.mapToGlobal(QPoint(-50, -50)),
                       Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &coming);
    atLeisure([&] { QTest::mouseClick(&widget, Qt::LeftButton, {}, place); });
}

inline void click(const QObject& screen, const char* name) {
    auto& widget = named<QWidget>(screen, name);
    clickAt(widget, widget.rect().center());
}

// Keystrokes of a text of any letters, accented ones too.
inline void keys(QWidget& widget, const char* text) {
    for (const QChar letter : QString::fromUtf8(text)) {
        const auto code = static_cast<Qt::Key>(letter.toUpper().unicode());
        QTest::sendKeyEvent(QTest::Click, &widget, code, QString(letter), Qt::NoModifier);
    }
}

// Gives the field the focus and types over what it holds.
inline void type(const QObject& screen, const char* name, const char* text) {
    auto& field = named<QLineEdit>(screen, name);
    atLeisure([&field] { field.setFocus(); });
    field.selectAll();
    keys(field, text);
}

// Opens a drop-down list and clicks the item.
inline void pick(const QObject& screen, const char* name, int row) {
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

// A key to whatever has the focus in the window.
inline void key(QWidget& window, Qt::Key stroke) {
    QWidget* target = window.focusWidget() != nullptr ? window.focusWidget() : &window;
    atLeisure([&] { QTest::keyClick(target, stroke); });
}

inline std::string focused(const QWidget& window) {
    const QWidget* widget = window.focusWidget();
    return widget == nullptr ? std::string() : widget->objectName().toStdString();
}

// Names of the fields and buttons as Tab reaches them, from `first` on.
inline std::vector<std::string> tabOrder(QWidget& window, const char* first, std::size_t count) {
    named<QWidget>(window, first).setFocus();
    std::vector<std::string> order{focused(window)};
    while (order.size() < count) {
        key(window, Qt::Key_Tab);
        order.push_back(focused(window));
    }
    return order;
}

// Opens a menu of the menu bar with the mouse and clicks the entry.
inline void choose(QMainWindow& desk, const char* menuName, const char* entry) {
    QMenuBar& bar = *desk.menuBar();
    auto& menu = named<QMenu>(desk, menuName);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(menu.menuAction()).center());
    ASSERT_TRUE(menu.isVisible()) << menuName << " didn't open";
    auto& action = named<QAction>(desk, entry);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
    menu.hide();
}

// Clicks an entry that stands on the menu bar itself.
inline void choose(QMainWindow& desk, const char* entry) {
    QMenuBar& bar = *desk.menuBar();
    QTest::mouseClick(&bar, Qt::LeftButton, {},
                      bar.actionGeometry(&named<QAction>(desk, entry)).center());
}

}  // namespace tarn::test
