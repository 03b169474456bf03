#include "labels/frm_imprimir_etiqueta.h"

#include <QKeyEvent>
#include <QShowEvent>

#include "labels/label_values.h"
#include "labels/print_labels.h"
#include "ui_frm_imprimir_etiqueta.h"
#include "widgets/combo_items.h"
#include "widgets/enter_presses_button.h"
#include "widgets/field_controller.h"
#include "widgets/look.h"
#include "widgets/progress_window.h"

namespace tarn {

frmImprimirEtiqueta::frmImprimirEtiqueta(DeskContext& desk, const labels::ValoresEtiquetas& valores,
                                         QWidget* parent)
    : QDialog(parent),
      desk_(desk),
      valores_(valores),
      ui_(std::make_unique<Ui::frmImprimirEtiqueta>()) {
    ui_->setupUi(this);
    for (QLineEdit* campo : {ui_->txtDe, ui_->txtAte}) {
        new FieldController(campo, KeyFilter::NumeroVirgula, desk.ambiente);
    }
    poeFigura(*ui_->cmdOk, "print");
    poeFigura(*ui_->cmdCancelar, "give_up");
    connect(ui_->cmdOk, &QPushButton::clicked, this, &frmImprimirEtiqueta::cmdOk_Click);
    connect(ui_->cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
}

frmImprimirEtiqueta::~frmImprimirEtiqueta() = default;

void frmImprimirEtiqueta::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        ativa();
    }
}

void frmImprimirEtiqueta::ativa() {
    const labels::Formulario formulario = labels::formularioDe(valores_.TipoFormulario);
    const ItemLista item{std::string(labels::nomeDoFormulario(formulario)),
                         static_cast<std::int32_t>(formulario)};
    encheLista(*ui_->cboTp_Form, std::span(&item, 1));
    ui_->txtDe->setFocus();
}

void frmImprimirEtiqueta::cmdOk_Click() {
    const auto impressao = labels::buscaIntervalo(
        desk_.ambiente, desk_.sessao, valores_,
        {ui_->txtDe->text().toStdString(), ui_->txtAte->text().toStdString()});
    if (!impressao) {
        return;
    }
    Andamento andamento(*this);
    labels::imprimeEtiquetas(desk_.ambiente, labels::formularioDe(valores_.TipoFormulario),
                             *impressao, andamento.avisos());
    accept();
}

void frmImprimirEtiqueta::keyPressEvent(QKeyEvent* event) {
    if (!enterNoBotao(*this, *event)) {
        QDialog::keyPressEvent(event);
    }
}

}  // namespace tarn
