#include "reprint/frm_reimprime_nf.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QShortcut>
#include <QStyledItemDelegate>
#include <QVariant>

#include "platform/qt/wait_cursor.h"
#include "ui_frm_reimprime_nf.h"
#include "widgets/field_controller.h"
#include "widgets/look.h"

namespace tarn {
namespace {

// A label's tag: the code behind what it shows.
constexpr char tag[] = "Tag";
constexpr int folgaDoItem = 6;  // pixels added to the height of an open list's item

std::string texto(const QLabel& rotulo) {
    return rotulo.text().toStdString();
}

std::string tagDe(const QLabel& rotulo) {
    return rotulo.property(tag).toString().toStdString();
}

void poe(QLabel& rotulo, const std::string& valor) {
    rotulo.setText(QString::fromStdString(valor));
}

void poe(QLabel& rotulo, const std::string& valor, const std::string& codigo) {
    poe(rotulo, valor);
    rotulo.setProperty(tag, QString::fromStdString(codigo));
}

// An open list is as wide as its items; the code behind a series' gap isn't shown.
class ItemDeSerie : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& item, const QLocale& /*locale*/) const override {
        const QString inteiro = item.toString();
        return inteiro.left(inteiro.lastIndexOf(u'|')).trimmed();
    }
    QSize sizeHint(const QStyleOptionViewItem& opcao, const QModelIndex& item) const override {
        return QStyledItemDelegate::sizeHint(opcao, item) + QSize(0, folgaDoItem);
    }
};

}  // namespace

FrmReImprimeNF::FrmReImprimeNF(DeskContext& desk, TrabalhoNota trabalho)
    : desk_(desk), ui_(std::make_unique<Ui::FrmReImprimeNF>()) {
    ui_->setupUi(this);
    new FieldController(ui_->txtNF, KeyFilter::NumeroVirgula, desk.ambiente,
                        FieldController::EnterKey::BeepOnly);
    ui_->cboSerie->setItemDelegate(new ItemDeSerie(this));
    // A customer's name may take two lines.
    const QLabel& cliente = *ui_->LBLCliente;
    ui_->LBLCliente->setMinimumHeight(2 * cliente.fontMetrics().lineSpacing() +
                                      2 * (cliente.margin() + cliente.frameWidth()));
    prepara(trabalho);
    preparaBotoes();
    connect(ui_->txtNF, &QLineEdit::textChanged, this, &FrmReImprimeNF::LimpaDados);
    connect(ui_->cboSerie, &QComboBox::activated, this, &FrmReImprimeNF::LimpaDados);
    auto* esc =
        new QShortcut(Qt::Key_Escape, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(esc, &QShortcut::activated, ui_->CmdFechar, &QPushButton::click);
}

FrmReImprimeNF::~FrmReImprimeNF() = default;

void FrmReImprimeNF::prepara(TrabalhoNota trabalho) {
    const bool cancela = trabalho == TrabalhoNota::Cancelamento;
    ui_->FrmCancelaNF->setVisible(cancela);
    ui_->Label5->setText(cancela ? QStringLiteral("Cancelamento de Nota Fiscal")
                                 : QStringLiteral("Reimpressão de Nota Fiscal"));
    const QString oQueFaz = cancela ? QStringLiteral("Cancelar a nota fiscal encontrada")
                                    : QStringLiteral("Imprimir de novo a nota fiscal encontrada");
    ui_->cmdSelecionar->setToolTip(oQueFaz);
    ui_->cmdSelecionar->setAccessibleName(oQueFaz);
}

void FrmReImprimeNF::preparaBotoes() {
    const int lado = fontMetrics().height() * 2;
    const auto prepara = [this, lado](QPushButton* botao, const char* desenho, auto rotina) {
        botao->setIcon(figura(QLatin1StringView(desenho)));
        botao->setIconSize({lado, lado});
        connect(botao, &QPushButton::clicked, this, rotina);
    };
    prepara(ui_->cmdPesquisar, "search_note", &FrmReImprimeNF::cmdPesquisar_Click);
    prepara(ui_->cmdSelecionar, cancelando() ? "cancel_note" : "reprint_note",
            &FrmReImprimeNF::cmdSelecionar_Click);
    prepara(ui_->CmdFechar, "close", &FrmReImprimeNF::CmdFechar_Click);
}

void FrmReImprimeNF::carrega() {
    const WaitCursor hourglass;
    emit carregou();
    encheListas();
    ui_->cboSerie->setFocus();
}

void FrmReImprimeNF::encheListas() {
    std::vector<std::string> series;
    const bool continua = carregaSeries(desk_.ambiente, desk_.sessao, series);
    for (const std::string& serie : series) {
        ui_->cboSerie->addItem(QString::fromStdString(serie));
    }
    ui_->cboSerie->setCurrentIndex(-1);
    if (!continua) {
        return;
    }
    for (const MotivoCancelamento& motivo : carregaMotivos(desk_.ambiente, desk_.sessao)) {
        ui_->CboMot_Can->addItem(QString::fromStdString(motivo.descricao), motivo.id);
    }
    ui_->CboMot_Can->setCurrentIndex(-1);
}

CamposNota FrmReImprimeNF::campos() const {
    CamposNota campos;
    if (ui_->cboSerie->currentIndex() >= 0) {
        campos.serie = ui_->cboSerie->currentText().toStdString();
    }
    campos.numero = ui_->txtNF->text().toStdString();
    return campos;
}

bool FrmReImprimeNF::cancelando() const {
    return !ui_->FrmCancelaNF->isHidden();
}

void FrmReImprimeNF::mostra(const NotaEncontrada& nota) {
    poe(*ui_->LblTipoNf, nota.descricaoTipo, nota.tipo);
    poe(*ui_->LblDtEm, nota.emissao);
    poe(*ui_->LBLCliente, nota.cliente);
    poe(*ui_->LBLNOTA, nota.numero, nota.serie);
    ui_->OptionReimp_0->setEnabled(nota.tipo != tipoSemCancelamento);
    ui_->OptionReimp_1->setEnabled(nota.tipo != tipoSemCancelamento);
}

void FrmReImprimeNF::LimpaDados() {
    poe(*ui_->LBLCliente, "");
    poe(*ui_->LblTipoNf, "");
    poe(*ui_->LblDtEm, "");
    poe(*ui_->LBLNOTA, "", "");
    ui_->OptionReimp->setExclusive(false);  // an exclusive group keeps one option selected
    ui_->OptionReimp_0->setChecked(false);
    ui_->OptionReimp_1->setChecked(false);
    ui_->OptionReimp->setExclusive(true);
    ui_->CboMot_Can->setCurrentIndex(-1);
}

void FrmReImprimeNF::cmdPesquisar_Click() {
    if (const auto nota = pesquisaNota(desk_.ambiente, desk_.sessao, campos())) {
        mostra(*nota);
    }
}

void FrmReImprimeNF::cmdSelecionar_Click() {
    const std::string numero = texto(*ui_->LBLNOTA);
    if (!notaSelecionada(desk_.ambiente, campos(), numero)) {
        return;
    }
    const std::string serie = tagDe(*ui_->LBLNOTA);
    if (!cancelando()) {
        reimprimeNota(desk_.ambiente, desk_.sessao, numero, serie);
        return;
    }
    PedidoCancelamento pedido{.numero = numero, .serie = serie, .tipoNota = tagDe(*ui_->LblTipoNf)};
    if (ui_->OptionReimp->checkedButton() != nullptr) {
        pedido.opcao =
            ui_->OptionReimp_1->isChecked() ? NovoFaturamento::Sem : NovoFaturamento::Com;
    }
    if (ui_->CboMot_Can->currentIndex() >= 0) {
        pedido.motivo = ui_->CboMot_Can->currentData().toInt();
    }
    if (cancelaNota(desk_.ambiente, desk_.sessao, pedido)) {
        LimpaDados();
    }
}

void FrmReImprimeNF::CmdFechar_Click() {
    if (auto* janela = qobject_cast<QMdiSubWindow*>(parentWidget())) {
        janela->close();
    } else {
        close();
    }
}

void FrmReImprimeNF::closeEvent(QCloseEvent* event) {
    emit fechou();
    event->accept();
}

}  // namespace tarn
