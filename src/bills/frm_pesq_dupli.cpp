#include "bills/frm_pesq_dupli.h"

#include <QBuffer>
#include <QImageReader>

#include "bills/bill_search.h"
#include "bills/print_bills.h"
#include "common/boxes.h"
#include "ui_frm_pesq_dupli.h"
#include "widgets/form_helpers.h"
#include "widgets/grid_foot.h"
#include "widgets/grid_model.h"
#include "widgets/grid_view.h"
#include "widgets/progress_window.h"

namespace tarn {
namespace {

constexpr int visibleLines = 14;
constexpr RowNoun rowNoun{"documento", "documentos"};
constexpr int pictureHeight = 2;  // lines

// Decoded at the size shown, however many dots the file has. Nothing for no picture.
QPixmap thumbnail(const Picture& picture, const QSize& space) {
    QByteArray bytes = QByteArray::fromRawData(picture.bytes->data(),
                                               static_cast<qsizetype>(picture.bytes->size()));
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    const QSize whole = reader.size();
    if (!whole.isValid()) {
        return {};
    }
    reader.setScaledSize(whole.scaled(space, Qt::KeepAspectRatio).expandedTo({1, 1}));
    return QPixmap::fromImage(reader.read());
}

}  // namespace

FrmPesqDupli::FrmPesqDupli(DeskContext& desk, QWidget* parent)
    : DeskDialog(desk, Esc::ClosesNothing, parent),
      ui_(std::make_unique<Ui::FrmPesqDupli>()),
      documents_(new GridModel(billGrid(), this)) {
    ui_->setupUi(this);
    prepareGrid(*ui_->sprDados, *documents_);
    ui_->gridFoot->serve(*ui_->sprDados, *documents_, rowNoun);
    prepareFields();
    prepareButtons();
    fitToGrid(*this, *ui_->sprDados, visibleLines);
    ui_->cboFilial->setFocus();  // txtCliente takes no typing (decision D116)
}

FrmPesqDupli::~FrmPesqDupli() = default;

void FrmPesqDupli::prepareFields() {
    prepareCustomerField(*ui_->txtCliente, desk_.environment);
    prepareDates({ui_->txtDtEmsDe, ui_->txtDtEmsAte, ui_->txtDtVncDe, ui_->txtDtVncAte},
                 desk_.environment);
    for (QRadioButton* option : {ui_->optDupl, ui_->optTripl}) {
        QSizePolicy place = option->sizePolicy();
        place.setRetainSizeWhenHidden(true);
        option->setSizePolicy(place);
    }
}

void FrmPesqDupli::prepareButtons() {
    const Buttons buttons(this, prepareButton);
    buttons.add(ui_->cmdPesqCli, "search_customer", &FrmPesqDupli::cmdPesqCli_Click);
    buttons.add(ui_->cmdLimpar, "clear", [this] { takeCustomer({}); });
    buttons.add(ui_->cmdPesquisar, "search", &FrmPesqDupli::cmdPesquisar_Click);
    buttons.add(ui_->cmdVoltar, "close", &QDialog::reject, {ScreenKey::Close});
    buttons.add(ui_->cmdImprimir, "print", &FrmPesqDupli::cmdImprimir_Click,
                {ScreenKey::Print, ScreenKey::MainAct});
}

void FrmPesqDupli::takeCustomer(const Customer& customer) {
    showCustomer(*ui_->txtCliente, customer.id, customer.name);
}

// The first activation comes when the user sees the screen.
void FrmPesqDupli::opened() {
    QMetaObject::invokeMethod(this, &FrmPesqDupli::activate, Qt::QueuedConnection);
}

void FrmPesqDupli::activate() {
    Carrega_CboTpDocto();
    Carrega_CboFilial();
    pictures_ = loadPictures(desk_.environment.pictureFolder);
    showPictures();
}

void FrmPesqDupli::Carrega_CboTpDocto() {
    fillList(*ui_->cboTpDocto, documentKinds());
}

void FrmPesqDupli::Carrega_CboFilial() {
    fillList(*ui_->cboFilial, branchesForFilter(desk_.environment, desk_.session));
}

// Small, so that the user sees what the pages will show.
void FrmPesqDupli::showPictures() {
    const auto show = [](QLabel& where, const std::optional<Picture>& picture) {
        const int height = where.fontMetrics().height() * pictureHeight;
        const QPixmap pictureName = picture ? thumbnail(*picture, {height * 4, height}) : QPixmap();
        where.setPixmap(pictureName);
        where.setVisible(!pictureName.isNull());
    };
    show(*ui_->picLogo, pictures_.picLogo);
    show(*ui_->picVert, pictures_.picVert);
    show(*ui_->picAss, pictures_.picAss);
}

void FrmPesqDupli::cmdPesqCli_Click() {
    emit customerWanted();
    if (!desk_.end.ended()) {
        activate();
    }
}

void FrmPesqDupli::cmdPesquisar_Click() {
    const std::string dueTo = ui_->txtDtVncAte->text().toStdString();
    if (const auto refuse = searchRefusal(ui_->cboTpDocto->currentIndex(), dueTo)) {
        inform(desk_.environment, refuse->text);
        focusField(refuse->field, {{BillSearchField::DocumentKind, ui_->cboTpDocto},
                                   {BillSearchField::DueTo, ui_->txtDtVncAte}});
        return;
    }
    const std::int32_t kind = currentItemData(*ui_->cboTpDocto);
    ui_->optDupl->setVisible(kind == billKind);
    ui_->optTripl->setVisible(kind == billKind);
    const auto text = [](const QLineEdit* field) { return field->text().toStdString(); };
    const commands::SearchFilter filter{.customer = customerId(*ui_->txtCliente),
                                        .branch = currentItemData(*ui_->cboFilial),
                                        .dueFrom = text(ui_->txtDtVncDe),
                                        .dueTo = dueTo,
                                        .issuedFrom = text(ui_->txtDtEmsDe),
                                        .issuedTo = text(ui_->txtDtEmsAte)};
    if (auto lines = searchBills(desk_.environment, desk_.session, kind, filter)) {
        documents_->show(std::move(*lines));
    }
}

void FrmPesqDupli::cmdImprimir_Click() {
    ProgressWindow progress(*this);
    printSelected(desk_.environment, desk_.session,
                  {.lines = documents_->lines(),
                   .triplicate = !ui_->optDupl->isChecked(),
                   .pictures = pictures_},
                  progress.notices());
}

}  // namespace tarn
