// Fields that the searches of documents share: the chosen customer, date ranges, buttons.
#pragma once

#include <initializer_list>
#include <string>

class QLineEdit;
class QPushButton;

namespace tarn {

struct Environment;

// Shows a name that is chosen elsewhere; looks read-only, and Enter is a Tab stroke.
void preparaCampoCliente(QLineEdit& campo, Environment& ambiente);
// `id` goes along behind the name; both empty for all customers.
void mostraCliente(QLineEdit& campo, const std::string& id, const std::string& nome);
std::string idDoCliente(const QLineEdit& campo);

// Date fields as wide as a date. They belong to their screens.
void preparaDatas(std::initializer_list<QLineEdit*> campos, Environment& ambiente);

// With its picture. An access key brings the focus along, so that the field being typed
// in is completed.
void preparaBotao(QPushButton& botao, const char* desenho);

}  // namespace tarn
