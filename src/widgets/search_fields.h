// Fields that the searches of documents share: the chosen customer, date ranges, buttons.
#pragma once

#include <initializer_list>
#include <string>

class QLineEdit;
class QPushButton;

namespace tarn {

struct Environment;

// Shows a name that is chosen elsewhere; looks read-only, and Enter is a Tab stroke.
void prepareCustomerField(QLineEdit& field, Environment& environment);
// `id` goes along behind the name; both empty for all customers.
void showCustomer(QLineEdit& field, const std::string& id, const std::string& name);
std::string customerId(const QLineEdit& field);

// Date fields as wide as a date. They belong to their screens.
void prepareDates(std::initializer_list<QLineEdit*> fields, Environment& environment);

// With its picture. An access key brings the focus along, so that the field being typed
// in is completed.
void prepareButton(QPushButton& button, const char* pictureName);

}  // namespace tarn
