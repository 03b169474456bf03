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
void clickAt(QWidget& widget, QPoint place);

void click(const QObject& screen, const char* name);

// Keystrokes of a text of any letters, accented ones too.
void keys(QWidget& widget, const char* text);

// Gives the field the focus and types over what it holds.
void type(const QObject& screen, const char* name, const char* text);

// Opens a drop-down list and clicks the item.
void pick(const QObject& screen, const char* name, int row);

// A key to whatever has the focus in the window.
void key(QWidget& window, Qt::Key stroke);

std::string focused(const QWidget& window);

// Names of the fields and buttons as Tab reaches them, from `first` on.
std::vector<std::string> tabOrder(QWidget& window, const char* first, std::size_t count);

// Opens a menu of the menu bar with the mouse and clicks the entry.
void choose(QMainWindow& desk, const char* menuName, const char* entry);

// Clicks an entry that stands on the menu bar itself.
void choose(QMainWindow& desk, const char* entry);

}  // namespace tarn::test
