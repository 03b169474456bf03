// What screens do with their fields: lists, the chosen customer, date ranges, buttons, and
// the focus after a refusal.
#pragma once

#include <QPushButton>
#include <cstdint>
#include <initializer_list>
#include <span>
#include <string>
#include <utility>

#include "common/list_items.h"
#include "widgets/shortcuts.h"

class QComboBox;
class QLineEdit;

namespace tarn {

struct Environment;

// Empties the list, adds the items and stands on the first one.
void fillList(QComboBox& list, std::span<const ListItem> items);

// Item data of the current item; 0 when none is.
std::int32_t currentItemData(const QComboBox& list);

// Shows a name that is chosen elsewhere; looks read-only, and Enter is a Tab stroke.
void prepareCustomerField(QLineEdit& field, Environment& environment);
// `id` goes along behind the name; both empty for all customers.
void showCustomer(QLineEdit& field, const std::string& id, const std::string& name);
std::string customerId(const QLineEdit& field);

// The field is never too narrow for the text that stands in it while it is empty.
void showPlaceholderWhole(QLineEdit& field);

// Date fields as wide as a date. They belong to their screens.
void prepareDates(std::initializer_list<QLineEdit*> fields, Environment& environment);

// With its picture. An access key brings the focus along, so that the field being typed
// in is completed.
void prepareButton(QPushButton& button, const char* pictureName);

// The buttons of a screen: each gets its picture, as `look` shows it, what its click does and
// the keys that press it.
template <class Screen>
class Buttons {
public:
    using Look = void (*)(QPushButton& button, const char* pictureName);

    Buttons(Screen* screen, Look look) : screen_(screen), look_(look) {}

    template <class Routine>
    void add(QPushButton* button, const char* pictureName, Routine routine,
             std::initializer_list<ScreenKey> keys = {}) const {
        look_(*button, pictureName);
        giveKeys(*button, keys);
        QObject::connect(button, &QPushButton::clicked, screen_, routine);
    }

private:
    Screen* screen_;
    Look look_;
};

// Closes a screen along with the inner window of the desk that holds it.
void closeScreen(QWidget& screen);

// Moves the focus to the field that a refusal names.
template <class Field>
void focusField(Field which, std::initializer_list<std::pair<Field, QWidget*>> fields) {
    for (const auto& [field, widget] : fields) {
        if (field == which) {
            widget->setFocus();
        }
    }
}

}  // namespace tarn
