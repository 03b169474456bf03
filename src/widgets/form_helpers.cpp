#include "widgets/form_helpers.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QVariant>

#include "widgets/field_families.h"
#include "widgets/look.h"

namespace tarn {
namespace {

// A field's tag: the code behind what it shows.
constexpr char tag[] = "Tag";
// Characters.
constexpr int dateWidth = 13;
constexpr int placeholderMargin = 3;

}  // namespace

void fillList(QComboBox& list, std::span<const ListItem> items) {
    list.clear();
    for (const ListItem& item : items) {
        list.addItem(QString::fromStdString(item.text), item.data);
    }
    list.setCurrentIndex(0);
}

std::int32_t currentItemData(const QComboBox& list) {
    return list.currentData().toInt();
}

void prepareCustomerField(QLineEdit& field, Environment& environment) {
    QPalette forReading = field.palette();
    forReading.setColor(QPalette::Base, forReading.color(QPalette::Window));
    field.setPalette(forReading);
    new FieldController(&field, KeyFilter::None, environment, FieldController::EnterKey::TabOnly);
}

void showCustomer(QLineEdit& field, const std::string& id, const std::string& name) {
    field.setProperty(tag, QString::fromStdString(id));
    field.setText(QString::fromStdString(name));
    field.setCursorPosition(0);
}

std::string customerId(const QLineEdit& field) {
    return field.property(tag).toString().toStdString();
}

void showPlaceholderWhole(QLineEdit& field) {
    const QFontMetrics letters = field.fontMetrics();
    field.setMinimumWidth(letters.horizontalAdvance(field.placeholderText()) +
                          letters.averageCharWidth() * placeholderMargin);
}

void prepareDates(std::initializer_list<QLineEdit*> fields, Environment& environment) {
    for (QLineEdit* field : fields) {
        new DateField(field, KeyFilter::Decimal, environment);
        field->setFixedWidth(dateWidth * field->fontMetrics().averageCharWidth());
    }
}

void prepareButton(QPushButton& button, const char* pictureName) {
    setIcon(button, pictureName);
    button.setAutoDefault(false);
    QObject::connect(&button, &QPushButton::pressed, &button, [&button] { button.setFocus(); });
}

void closeScreen(QWidget& screen) {
    if (auto* window = qobject_cast<QMdiSubWindow*>(screen.parentWidget())) {
        window->close();
    } else {
        screen.close();
    }
}

}  // namespace tarn
