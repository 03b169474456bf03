// The field families: date, quantity of three decimals, money. Fields that are only
// filtered take a FieldController as it is.
#pragma once

#include <QLineEdit>

#include "widgets/field_controller.h"

namespace tarn {

// Bare digits while edited, dd/mm/yyyy when left; what was left out of the date is
// today's. A tested one refuses what is no day of the calendar.
class DateField : public FieldController {
    Q_OBJECT

public:
    enum class Test { None, Calendar };

    DateField(QLineEdit* edit, KeyFilter filter, Environment& environment, Test test = Test::None);

protected:
    void entered() override;
    void left() override;

private:
    Test test_;
};

// Three decimals, up to 9.999.999,999. The messages' texts must outlive the field.
class QuantityField : public FieldController {
    Q_OBJECT

public:
    QuantityField(QLineEdit* edit, const QuantityMessages& messages, Environment& environment);

protected:
    void entered() override { edit().selectAll(); }
    void left() override;

private:
    QuantityMessages messages_;
};

// Two decimals. Leaving it with a text that is no number raises TypeMismatch.
class MoneyField : public FieldController {
    Q_OBJECT

public:
    MoneyField(QLineEdit* edit, Environment& environment);

protected:
    void entered() override { edit().selectAll(); }
    void left() override;
};

}  // namespace tarn
