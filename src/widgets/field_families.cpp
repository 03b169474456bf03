#include "widgets/field_families.h"

#include <algorithm>

#include "platform/clock.h"
#include "platform/environment.h"

namespace tarn {
namespace {

constexpr int quantityLength = 13;

}  // namespace

DateField::DateField(QLineEdit* edit, KeyFilter filter, Environment& environment, Test test)
    : FieldController(edit, filter, environment), test_(test) {
    edit->setMaxLength(dateLengthShown);
}

void DateField::entered() {
    edit().setText(QString::fromStdString(dateOnEnter(edit().text().toStdString())));
    edit().setMaxLength(dateLengthEditing);
    edit().selectAll();
}

void DateField::left() {
    edit().setMaxLength(dateLengthShown);
    const std::string typed = edit().text().toStdString();
    const Date today = environment().clock.today();
    apply(test_ == Test::Calendar ? testedDateOnLeave(typed, today)
                                  : FieldResult{dateOnLeave(typed, today), {}, false});
}

QuantityField::QuantityField(QLineEdit* edit, const QuantityMessages& messages,
                             Environment& environment)
    : FieldController(edit, KeyFilter::Decimal, environment, EnterKey::TabOnly),
      messages_(messages) {
    edit->setMaxLength(quantityLength);
    edit->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

// Rounding may leave one character more than can be typed; it is shown all the same.
void QuantityField::left() {
    const FieldResult result = quantityOnLeave(edit().text().toStdString(), messages_);
    edit().setMaxLength(std::max(quantityLength, static_cast<int>(result.text.size())));
    apply(result);
}

MoneyField::MoneyField(QLineEdit* edit, Environment& environment)
    : FieldController(edit, KeyFilter::Decimal, environment) {}

void MoneyField::left() {
    apply(moneyOnLeave(edit().text().toStdString()));
}

}  // namespace tarn
