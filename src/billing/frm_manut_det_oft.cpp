#include "billing/frm_manut_det_oft.h"

#include <QTextDocument>
#include <algorithm>
#include <array>

#include "billing/orders.h"
#include "common/boxes.h"
#include "ui_frm_manut_det_oft.h"
#include "widgets/field_families.h"
#include "widgets/form_helpers.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int maxObservation = 500;
// Widths and heights in characters and lines.
constexpr int fieldWidth = 30;
constexpr int mostFieldWidth = 58;
constexpr int fieldMargin = 3;
constexpr int numberWidth = 15;
constexpr int observationLines = 7;  // all of its characters

// A number that the server holds is shown whole, also where it couldn't be typed.
void showNumber(QLineEdit& field, const std::string& text) {
    field.setMaxLength(std::max(field.maxLength(), static_cast<int>(text.size())));
    field.setText(QString::fromStdString(text));
}

// As far as a small monitor has room for two such fields.
void showWhole(QLineEdit& field) {
    const QFontMetrics letters = field.fontMetrics();
    const int character = letters.averageCharWidth();
    const int whole = letters.horizontalAdvance(field.text()) + character * fieldMargin;
    field.setMinimumWidth(std::clamp(whole, character * fieldWidth, character * mostFieldWidth));
}

}  // namespace

frmManutDetOFT::frmManutDetOFT(DeskContext& desk, const GridRow& order, QWidget* parent)
    : DeskDialog(desk, Esc::Closes, parent), ui_(std::make_unique<Ui::frmManutDetOFT>()) {
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
    const Buttons buttons(this, setLargeIcon);
    buttons.add(ui_->cmdOk, "save", &frmManutDetOFT::cmdOk_Click, {ScreenKey::MainAct});
    buttons.add(ui_->cmdCancelar, "give_up", &QDialog::reject,
                {ScreenKey::Escape, ScreenKey::Close});
}

void frmManutDetOFT::load(const GridRow& order) {
    struct ForReading {
        QLineEdit* field;
        OrderColumn column;
    };
    const std::array<ForReading, 8> all{{{ui_->txtOrdFat, OrderColumn::Order},
                                         {ui_->txtCliente, OrderColumn::Customer},
                                         {ui_->txtEstab, OrderColumn::Establishment},
                                         {ui_->txtTpNF, OrderColumn::NoteKind},
                                         {ui_->txtDtEmissao, OrderColumn::Generated},
                                         {ui_->txtOrdCarga, OrderColumn::LoadOrder},
                                         {ui_->txtTransp, OrderColumn::Carrier},
                                         {ui_->txtMotorista, OrderColumn::Driver}}};
    for (const ForReading& one : all) {
        const QString text = QString::fromStdString(order.text(one.column));
        one.field->setText(text);
        one.field->setCursorPosition(0);
        showWhole(*one.field);
        if (!text.isEmpty()) {  // whole, where the field is short
            one.field->setToolTip(Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal));
        }
        // Otherwise readers would read the tool tip, markup and all.
        one.field->setAccessibleDescription(QStringLiteral("Só para leitura"));
    }
    ui_->txtObs->loadText(order.text(OrderColumn::Observation));
    showNumber(*ui_->txtQtde, order.text(OrderColumn::Quantity));
    showNumber(*ui_->txtPesoBruto, order.text(OrderColumn::GrossWeight));
    showNumber(*ui_->txtPesoLiquido, order.text(OrderColumn::NetWeight));
}

void frmManutDetOFT::cmdOk_Click() {
    const auto text = [](const QLineEdit* field) { return field->text().toStdString(); };
    const commands::OrderData order{.order = text(ui_->txtOrdFat),
                                    .observation = ui_->txtObs->text(),
                                    .quantity = text(ui_->txtQtde),
                                    .grossWeight = text(ui_->txtPesoBruto),
                                    .netWeight = text(ui_->txtPesoLiquido)};
    if (const auto refusal = dataRefusal(order)) {
        inform(desk_.environment, refusal->text, box_title::attention);
        focusField(refusal->field, {{OrderField::Quantity, ui_->txtQtde},
                                    {OrderField::GrossWeight, ui_->txtPesoBruto},
                                    {OrderField::NetWeight, ui_->txtPesoLiquido}});
        return;
    }
    if (saveOrder(desk_.environment, desk_.session, order)) {
        emit saved();
        accept();
    }
}

}  // namespace tarn
