#include "widgets/search_fields.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVariant>

#include "widgets/field_families.h"
#include "widgets/look.h"

namespace tarn {
namespace {

// A field's tag: the code behind what it shows.
constexpr char tag[] = "Tag";
constexpr int larguraData = 13;  // characters

}  // namespace

void preparaCampoCliente(QLineEdit& campo, Environment& ambiente) {
    QPalette paraLeitura = campo.palette();
    paraLeitura.setColor(QPalette::Base, paraLeitura.color(QPalette::Window));
    campo.setPalette(paraLeitura);
    new FieldController(&campo, KeyFilter::None, ambiente, FieldController::EnterKey::TabOnly);
}

void mostraCliente(QLineEdit& campo, const std::string& id, const std::string& nome) {
    campo.setProperty(tag, QString::fromStdString(id));
    campo.setText(QString::fromStdString(nome));
    campo.setCursorPosition(0);
}

std::string idDoCliente(const QLineEdit& campo) {
    return campo.property(tag).toString().toStdString();
}

void preparaDatas(std::initializer_list<QLineEdit*> campos, Environment& ambiente) {
    for (QLineEdit* campo : campos) {
        new DateField(campo, KeyFilter::NumeroVirgula, ambiente);
        campo->setFixedWidth(larguraData * campo->fontMetrics().averageCharWidth());
    }
}

void preparaBotao(QPushButton& botao, const char* desenho) {
    poeFigura(botao, desenho);
    botao.setAutoDefault(false);
    QObject::connect(&botao, &QPushButton::pressed, &botao, [&botao] { botao.setFocus(); });
}

}  // namespace tarn
