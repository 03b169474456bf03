#include "desk/frm_logon.h"

#include <QKeyEvent>
#include <exception>
#include <string>

#include "desk/start.h"
#include "maker.h"
#include "platform/message_boxes.h"
#include "platform/qt/wait_cursor.h"
#include "runtime/runtime_error.h"
#include "ui_frm_logon.h"
#include "widgets/field_controller.h"

namespace tarn {

FrmLogon::FrmLogon(DeskContext& desk, QWidget* parent)
    : QDialog(parent), desk_(desk), ui_(std::make_unique<Ui::FrmLogon>()) {
    ui_->setupUi(this);
    ui_->lblFabricante->setText(QString::fromUtf8(makerName));
    const int lado = fontMetrics().height() * 5 / 2;
    ui_->imgPrograma->setPixmap(windowIcon().pixmap(QSize(lado, lado), devicePixelRatio()));
    for (QLineEdit* campo : {ui_->txtEmpresa, ui_->txtUsuario}) {
        campo->installEventFilter(this);
        campo->setMinimumWidth(campo->fontMetrics().averageCharWidth() * 32);
    }
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui_->btnLogin, &QPushButton::clicked, this, &FrmLogon::btnLogin_Click);
    connect(ui_->cmdFechar, &QPushButton::clicked, this, &FrmLogon::reject);
}

FrmLogon::~FrmLogon() = default;

bool FrmLogon::carrega() {
    return impoeFormatoData(desk_.ambiente);
}

void FrmLogon::reject() {
    desk_.fim.encerra();
    QDialog::reject();
}

// Enter in the first two fields is a Tab stroke; in the password the default button
// takes it.
bool FrmLogon::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter) {
        return false;
    }
    if (watched == ui_->txtUsuario) {
        ui_->txtSenha->selectAll();
    }
    sendTab(*static_cast<QWidget*>(watched));
    return true;
}

// Where the focus goes for another try: the first field left empty, else the company.
QLineEdit& FrmLogon::campoDaVolta() const {
    for (QLineEdit* campo : {ui_->txtEmpresa, ui_->txtUsuario, ui_->txtSenha}) {
        if (campo->text().isEmpty()) {
            return *campo;
        }
    }
    return *ui_->txtEmpresa;
}

void FrmLogon::btnLogin_Click() {
    try {
        if (tentaEntrar()) {
            accept();
        } else {
            campoDaVolta().setFocus();
        }
    } catch (const std::exception& erro) {
        desk_.ambiente.boxes.show(
            {"Aconteceu um erro inesperado no sistema. Por favor avise a RVL\nErro = " +
                 std::string(erro.what()),
             BoxIcon::Critical, "Aviso"});
        desk_.fim.encerra(statusErroExecucao);
        QDialog::reject();
    }
}

bool FrmLogon::tentaEntrar() {
    const WaitCursor hourglass;
    return entra(desk_.ambiente, desk_.sessao, ui_->txtEmpresa->text().toStdString(),
                 ui_->txtUsuario->text().toStdString(), ui_->txtSenha->text().toStdString());
}

}  // namespace tarn
