// What a clerk does to a screen, by clicks and keys on the real widgets. A control that
// isn't there ends the program: a walk names the controls of its own screens.
#pragma once

#include <QComboBox>
#include <QWidget>
#include <string>

namespace tarn {

[[noreturn]] void missingOnScreen(const char* name);

template <typename T>
T& child(QWidget& window, const char* name) {
    T* match = window.findChild<T*>(QLatin1StringView(name));
    if (match == nullptr) {
        missingOnScreen(name);
    }
    return *match;
}

void click(QWidget& window, const char* button);
// Radio buttons and check boxes are clicked on their mark, not on the middle.
void tickOption(QWidget& window, const char* option);
// One key stroke a character, accented ones too, where the focus is.
void key(QWidget& field, const std::string& text);
void typeIn(QWidget& window, const char* field, const std::string& text);

// The menus of the main window.
void openMenu(QWidget& window, const char* menu);
void choose(QWidget& window, const char* menu, const char* input);
// An entry that stands in the bar itself.
void clickInBar(QWidget& window, const char* input);

// Clicks a cell of sprDados; row and column are counted from 0.
void clickInGrid(QWidget& screen, int line, int column);
// Opens the list and clicks the item of that row.
void chooseInList(QWidget& screen, const char* list, int line);

// Answers a message box by its default button.
void accept(QWidget& box);

}  // namespace tarn
