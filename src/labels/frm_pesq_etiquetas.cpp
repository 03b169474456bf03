#include "labels/frm_pesq_etiquetas.h"

#include <utility>

#include "common/boxes.h"
#include "labels/frm_excluir_etiqueta.h"
#include "labels/frm_imprimir_etiqueta.h"
#include "labels/queue.h"
#include "platform/qt/wait_cursor.h"
#include "ui_frm_pesq_etiquetas.h"
#include "widgets/form_helpers.h"
#include "widgets/grid_foot.h"
#include "widgets/grid_model.h"
#include "widgets/grid_view.h"
#include "widgets/look.h"

namespace tarn {
namespace {

constexpr int visibleLines = 14;
constexpr RowNoun rowNoun{"etiqueta", "etiquetas", true};

}  // namespace

frmPesqEtiquetas::frmPesqEtiquetas(DeskContext& desk, labels::LabelValues& values, QWidget* parent)
    : DeskDialog(desk, Esc::ClosesNothing, parent),
      values_(values),
      ui_(std::make_unique<Ui::frmPesqEtiquetas>()),
      queue_(new GridModel(labels::queueGrid(), this)) {
    ui_->setupUi(this);
    for (QWidget* ofSender :
         {static_cast<QWidget*>(ui_->LblFilialRemet), static_cast<QWidget*>(ui_->CboFilialRemet)}) {
        QSizePolicy place = ofSender->sizePolicy();
        place.setRetainSizeWhenHidden(true);  // the other fields stay where they are
        ofSender->setSizePolicy(place);
    }
    QPalette forReading = palette();
    forReading.setColor(QPalette::Base, forReading.color(QPalette::Window));
    ui_->txtTipo->setPalette(forReading);
    prepareButtons();
    prepareQueueGrid();
    connect(ui_->cboMotivo, &QComboBox::activated, this, &frmPesqEtiquetas::readQueue);
    connect(ui_->cboTp_Form, &QComboBox::currentIndexChanged, this,
            &frmPesqEtiquetas::cboTp_Form_Click);
    connect(ui_->CboFilialRemet, &QComboBox::activated, this,
            &frmPesqEtiquetas::CboFilialRemet_Click);
    ui_->cboMotivo->setFocus();
}

frmPesqEtiquetas::~frmPesqEtiquetas() = default;

void frmPesqEtiquetas::prepareQueueGrid() {
    prepareGrid(*ui_->sprDados, *queue_);
    ui_->gridFoot->serve(*ui_->sprDados, *queue_, rowNoun);
    fitToGrid(*this, *ui_->sprDados, visibleLines);
}

void frmPesqEtiquetas::prepareButtons() {
    const Buttons buttons(this, setIcon);
    buttons.add(ui_->cmdImprimir, "print", &frmPesqEtiquetas::cmdImprimir_Click,
                {ScreenKey::Print, ScreenKey::MainAct});
    buttons.add(ui_->cmdExcluir, "cancel_order", &frmPesqEtiquetas::cmdExcluir_Click);
    buttons.add(ui_->cmdVoltar, "close", &QDialog::reject, {ScreenKey::Close});
}

void frmPesqEtiquetas::load() {
    const WaitCursor hourglass;
    ui_->txtTipo->setText(desk_.session.TipoEtiqueta == "C" ? QStringLiteral(" CLIENTES")
                                                            : QStringLiteral(" FORNECEDORES"));
    for (const std::string_view form : labels::queueForms) {
        ui_->cboTp_Form->addItem(QString::fromStdString(std::string(form)),
                                 ui_->cboTp_Form->count());
    }
    cboTp_Form_Click();
    CarregaCboFilialRemet();
    Carrega_Cbo_Motivo();
}

void frmPesqEtiquetas::CarregaCboFilialRemet() {
    const auto branches = labels::loadSenderBranches(desk_.environment, desk_.session);
    if (!branches) {
        return;
    }
    fillList(*ui_->CboFilialRemet, *branches);
    CboFilialRemet_Click();
}

void frmPesqEtiquetas::Carrega_Cbo_Motivo() {
    fillList(*ui_->cboMotivo, labels::loadReasons(desk_.environment, desk_.session));
    readQueue();
}

void frmPesqEtiquetas::readQueue() {
    const std::string reason = ui_->cboMotivo->currentText().toStdString();
    if (auto queue = labels::readQueue(desk_.environment, desk_.session, reason, values_)) {
        queue_->show(std::move(*queue));
    }
}

void frmPesqEtiquetas::runModal(QDialog& screen) {
    screen.exec();
    if (!desk_.end.ended()) {
        activate();
    }
}

void frmPesqEtiquetas::activate() {
    if (ui_->cboMotivo->currentIndex() != 0) {
        readQueue();
    }
}

void frmPesqEtiquetas::cboTp_Form_Click() {
    const bool withSender = ui_->cboTp_Form->currentIndex() == labels::positionWithSender;
    ui_->LblFilialRemet->setVisible(withSender);
    ui_->CboFilialRemet->setVisible(withSender);
}

void frmPesqEtiquetas::CboFilialRemet_Click() {
    values_.FilialRemetente = currentItemData(*ui_->CboFilialRemet);
}

void frmPesqEtiquetas::cmdImprimir_Click() {
    const int position = ui_->cboTp_Form->currentIndex();
    if (const auto refusal = labels::choiceRefusal(values_, position)) {
        inform(desk_.environment, refusal->text);
        return focusField(refusal->field, {{labels::QueueField::Reason, ui_->cboMotivo},
                                           {labels::QueueField::LabelForm, ui_->cboTp_Form}});
    }
    values_.TipoFormulario = std::to_string(position);
    frmImprimirEtiqueta run(desk_, values_, this);
    runModal(run);
}

void frmPesqEtiquetas::cmdExcluir_Click() {
    frmExcluirEtiqueta deletion(desk_, values_, this);
    runModal(deletion);
}

}  // namespace tarn
