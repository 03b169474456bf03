#include "reprint/frm_reimprime_nf.h"

#include <QAbstractItemView>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QMouseEvent>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QVariant>

#include "platform/qt/wait_cursor.h"
#include "ui_frm_reimprime_nf.h"
#include "widgets/field_controller.h"
#include "widgets/form_helpers.h"
#include "widgets/gesture_filter.h"
#include "widgets/look.h"

namespace tarn {
namespace {

// A label's tag: the code behind what it shows.
constexpr char tag[] = "Tag";
constexpr int itemGap = 6;  // pixels added to the height of an open list's item

std::string text(const QLabel& label) {
    return label.text().toStdString();
}

std::string tagDe(const QLabel& label) {
    return label.property(tag).toString().toStdString();
}

void put(QLabel& label, const std::string& value) {
    label.setText(QString::fromStdString(value));
}

void put(QLabel& label, const std::string& value, const std::string& code) {
    put(label, value);
    label.setProperty(tag, QString::fromStdString(code));
}

// What is read of a series: not the code behind its gap.
QString readable(const QString& series) {
    return series.left(series.lastIndexOf(u'|')).trimmed();
}

// An open list is as wide as its items.
class SeriesItem : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& item, const QLocale& /*locale*/) const override {
        return readable(item.toString());
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& item) const override {
        return QStyledItemDelegate::sizeHint(option, item) + QSize(0, itemGap);
    }
};

// A click on an item that can't be chosen chooses nothing; the toolkit would take the one
// that the keys stand on.
class ClicksOnItems : public QObject {
public:
    explicit ClicksOnItems(QAbstractItemView& items) : QObject(&items), items_(items) {
        items.viewport()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*viewport*/, QEvent* event) override {
        if (event->type() != QEvent::MouseButtonRelease) {
            return false;
        }
        const QPoint place = static_cast<QMouseEvent*>(event)->position().toPoint();
        return items_.viewport()->rect().contains(place) &&
               !items_.indexAt(place).flags().testFlag(Qt::ItemIsEnabled);
    }

private:
    QAbstractItemView& items_;
};

}  // namespace

FrmReImprimeNF::FrmReImprimeNF(DeskContext& desk, NoteJob job)
    : desk_(desk), ui_(std::make_unique<Ui::FrmReImprimeNF>()) {
    ui_->setupUi(this);
    new FieldController(ui_->txtNF, KeyFilter::Decimal, desk.environment,
                        FieldController::EnterKey::BeepOnly);
    ui_->cboSerie->setItemDelegate(new SeriesItem(this));
    connect(ui_->cboSerie, &QComboBox::currentTextChanged, ui_->cboSerie,
            [list = ui_->cboSerie](const QString& series) {
                list->setAccessibleDescription(readable(series));
            });
    new ClicksOnItems(*ui_->CboMot_Can->view());
    // A customer's name may take two lines.
    const QLabel& customer = *ui_->LBLCliente;
    ui_->LBLCliente->setMinimumHeight(2 * customer.fontMetrics().lineSpacing() +
                                      2 * (customer.margin() + customer.frameWidth()));
    prepare(job);
    prepareButtons();
    connect(ui_->txtNF, &QLineEdit::textChanged, this, &FrmReImprimeNF::LimpaDados);
    connect(ui_->cboSerie, &QComboBox::activated, this, &FrmReImprimeNF::LimpaDados);
}

FrmReImprimeNF::~FrmReImprimeNF() = default;

void FrmReImprimeNF::prepare(NoteJob job) {
    const bool cancel = job == NoteJob::Cancellation;
    ui_->FrmCancelaNF->setVisible(cancel);
    ui_->Label5->setText(cancel ? QStringLiteral("Cancelamento de Nota Fiscal")
                                : QStringLiteral("Reimpressão de Nota Fiscal"));
    const QString whatItDoes = cancel ? QStringLiteral("Cancelar a nota fiscal encontrada")
                                      : QStringLiteral("Imprimir de novo a nota fiscal encontrada");
    ui_->cmdSelecionar->setToolTip(whatItDoes);
    ui_->cmdSelecionar->setAccessibleName(whatItDoes);
}

void FrmReImprimeNF::prepareButtons() {
    const Buttons buttons(this, setLargeIcon);
    buttons.add(ui_->cmdPesquisar, "search_note", &FrmReImprimeNF::cmdPesquisar_Click);
    buttons.add(ui_->cmdSelecionar, cancelling() ? "cancel_note" : "reprint_note",
                &FrmReImprimeNF::cmdSelecionar_Click, {ScreenKey::MainAct});
    buttons.add(ui_->CmdFechar, "close", &FrmReImprimeNF::CmdFechar_Click, {ScreenKey::Close});
}

void FrmReImprimeNF::load() {
    const WaitCursor hourglass;
    emit loaded();
    fillLists();
    ui_->cboSerie->setFocus();
}

void FrmReImprimeNF::fillLists() {
    std::vector<std::string> series;
    const bool goesOn = loadSeries(desk_.environment, desk_.session, series);
    for (const std::string& one : series) {
        const QString item = QString::fromStdString(one);
        ui_->cboSerie->addItem(item);
        ui_->cboSerie->setItemData(ui_->cboSerie->count() - 1, readable(item),
                                   Qt::AccessibleTextRole);
    }
    ui_->cboSerie->setCurrentIndex(-1);
    if (!goesOn) {
        return;
    }
    for (const CancelReason& reason : loadReasons(desk_.environment, desk_.session)) {
        addReason(reason);
    }
    ui_->CboMot_Can->setCurrentIndex(-1);
}

// One without its number is shown, but neither mouse nor keys stop at it.
void FrmReImprimeNF::addReason(const CancelReason& reason) {
    QComboBox& list = *ui_->CboMot_Can;
    list.addItem(QString::fromStdString(reason.description),
                 reason.id ? QVariant(*reason.id) : QVariant());
    if (!reason.id) {
        auto* items = qobject_cast<QStandardItemModel*>(list.model());
        items->item(list.count() - 1)->setEnabled(false);
    }
}

NoteFields FrmReImprimeNF::fields() const {
    NoteFields fields;
    if (ui_->cboSerie->currentIndex() >= 0) {
        fields.series = ui_->cboSerie->currentText().toStdString();
    }
    fields.number = ui_->txtNF->text().toStdString();
    return fields;
}

bool FrmReImprimeNF::cancelling() const {
    return !ui_->FrmCancelaNF->isHidden();
}

void FrmReImprimeNF::show(const FoundNote& note) {
    put(*ui_->LblTipoNf, note.kindText, note.kind);
    put(*ui_->LblDtEm, note.issued);
    put(*ui_->LBLCliente, note.customer);
    put(*ui_->LBLNOTA, note.number, note.series);
    const bool cancellable = note.kind != uncancellableKind;
    ui_->OptionReimp_0->setEnabled(cancellable);
    ui_->OptionReimp_1->setEnabled(cancellable);
    if (!cancellable) {
        clearOption();
    }
}

void FrmReImprimeNF::clearOption() {
    ui_->OptionReimp->setExclusive(false);  // an exclusive group keeps one option selected
    ui_->OptionReimp_0->setChecked(false);
    ui_->OptionReimp_1->setChecked(false);
    ui_->OptionReimp->setExclusive(true);
}

void FrmReImprimeNF::LimpaDados() {
    put(*ui_->LBLCliente, "");
    put(*ui_->LblTipoNf, "");
    put(*ui_->LblDtEm, "");
    put(*ui_->LBLNOTA, "", "");
    clearOption();
    ui_->CboMot_Can->setCurrentIndex(-1);
}

void FrmReImprimeNF::cmdPesquisar_Click() {
    if (const auto note = searchNote(desk_.environment, desk_.session, fields())) {
        show(*note);
    }
}

void FrmReImprimeNF::cmdSelecionar_Click() {
    const std::string number = text(*ui_->LBLNOTA);
    if (!noteSelected(desk_.environment, fields(), number)) {
        return;
    }
    const std::string series = tagDe(*ui_->LBLNOTA);
    if (!cancelling()) {
        reprintNote(desk_.environment, desk_.session, number, series);
        ignoreClicksHere(*ui_->cmdSelecionar);
        return;
    }
    CancelRequest request{.number = number, .series = series, .noteKind = tagDe(*ui_->LblTipoNf)};
    if (ui_->OptionReimp->checkedButton() != nullptr) {
        request.option = ui_->OptionReimp_1->isChecked() ? Rebilling::Without : Rebilling::With;
    }
    if (const QVariant reason = ui_->CboMot_Can->currentData(); reason.isValid()) {
        request.reason = reason.toInt();
    }
    if (cancelNote(desk_.environment, desk_.session, request)) {
        LimpaDados();
    }
}

void FrmReImprimeNF::CmdFechar_Click() {
    closeScreen(*this);
}

void FrmReImprimeNF::closeEvent(QCloseEvent* event) {
    emit closed();
    event->accept();
}

}  // namespace tarn
