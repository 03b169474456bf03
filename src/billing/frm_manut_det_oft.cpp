#include "billing/frm_manut_det_oft.h"

#include <QTextDocument>
#include <algorithm>
#include <array>

#include "billing/order_maintenance.h"
#include "platform/message_boxes.h"
#include "ui_frm_manut_det_oft.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_families.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int maxObservation = 500;
// Widths and heights in characters and lines.
constexpr int fieldWidth = 40;
constexpr int numberWidth = 15;
constexpr int observationLines = 7;  // all of its characters

// A number that the server holds is shown whole, also where it couldn't be typed.
void showNumber(QLineEdit& field, const std::string& text) {
    field.setMaxLength(std::max(field.maxLength(), static_cast<int>(text.size())));
    field.setText(QString::fromStdString(text));
}

}  // namespace

frmManutDetOFT::frmManutDetOFT(DeskContext& desk, const BillingOrder& order, QWidget* parent)
    : QDialog(parent), desk_(desk), ui_(std::make_unique<Ui::frmManutDetOFT>()) {
    ui_->setupUi(this);
    prepareFields();
    prepareButtons();
    load(order);
    ui_->txtObs->setFocus();
}

frmManutDetOFT::~frmManutDetOFT() = default;

void frmManutDetOFT::prepareFields() {
    const int character = fontMetrics().averageCharWidth();
    QPalette forReading = palette();
    forReading.setColor(QPalette::Base, forReading.color(QPalette::Window));
    for (QLineEdit* field : findChildren<QLineEdit*>()) {
        field->setMinimumWidth(character * fieldWidth);
        if (field->isReadOnly()) {
            field->setPalette(forReading);
        }
    }
    for (QLineEdit* field : {ui_->txtQtde, ui_->txtPesoBruto, ui_->txtPesoLiquido}) {
        field->setMinimumWidth(character * numberWidth);
    }
    new QuantityField(ui_->txtQtde, messagesQtde, desk_.environment);
    new QuantityField(ui_->txtPesoBruto, grossWeightMessages, desk_.environment);
    new QuantityField(ui_->txtPesoLiquido, netWeightMessages, desk_.environment);
    ui_->txtObs->setMaxLength(maxObservation);
    ui_->txtObs->setVisibleLines(observationLines);
}

void frmManutDetOFT::prepareButtons() {
    const int side = fontMetrics().height() * 2;
    ui_->cmdOk->setIcon(picture(QStringLiteral("save")));
    ui_->cmdCancelar->setIcon(picture(QStringLiteral("give_up")));
    for (QPushButton* button : {ui_->cmdOk, ui_->cmdCancelar}) {
        button->setIconSize({side, side});
    }
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmManutDetOFT::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
}

void frmManutDetOFT::load(const BillingOrder& order) {
    const auto& cells = order.cells;
    const std::array<QLineEdit*, 8> forReading{ui_->txtOrdFat, ui_->txtCliente,   ui_->txtEstab,
                                               ui_->txtTpNF,   ui_->txtDtEmissao, ui_->txtOrdCarga,
                                               ui_->txtTransp, ui_->txtMotorista};
    for (std::size_t i = 0; i < forReading.size(); ++i) {
        const QString text = QString::fromStdString(cells[i]);
        forReading[i]->setText(text);
        forReading[i]->setCursorPosition(0);
        if (!text.isEmpty()) {  // whole, where the field is short
            forReading[i]->setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
        }
    }
    ui_->txtObs->loadText(cells[8]);
    showNumber(*ui_->txtQtde, cells[9]);
    showNumber(*ui_->txtPesoBruto, cells[10]);
    showNumber(*ui_->txtPesoLiquido, cells[11]);
}

QLineEdit& frmManutDetOFT::field(OrderField which) const {
    switch (which) {
        case OrderField::GrossWeight:
            return *ui_->txtPesoBruto;
        case OrderField::NetWeight:
            return *ui_->txtPesoLiquido;
        case OrderField::Quantity:
            break;
    }
    return *ui_->txtQtde;
}

void frmManutDetOFT::cmdOk_Click() {
    const std::string number = ui_->txtOrdFat->text().toStdString();
    const std::string observation = ui_->txtObs->text();
    const std::string quantity = ui_->txtQtde->text().toStdString();
    const std::string grossWeight = ui_->txtPesoBruto->text().toStdString();
    const std::string netWeight = ui_->txtPesoLiquido->text().toStdString();
    const commands::OrderData order{.order = number,
                                    .observation = observation,
                                    .quantity = quantity,
                                    .grossWeight = grossWeight,
                                    .netWeight = netWeight};
    if (const auto refusal = dataRefusal(order)) {
        desk_.environment.boxes.show({std::string(refusal->text), BoxIcon::Information, "Atenção"});
        field(refusal->field).setFocus();
        return;
    }
    if (saveOrder(desk_.environment, desk_.session, order)) {
        emit saved();
        accept();
    }
}

void frmManutDetOFT::keyPressEvent(QKeyEvent* event) {
    if (!enterPressesButton(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
