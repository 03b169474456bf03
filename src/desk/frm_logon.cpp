#include "desk/frm_logon.h"

#include <QKeyEvent>
#include <exception>
#include <string>

#include "desk/start.h"
#include "maker.h"
#include "platform/message_boxes.h"
#include "platform/qt/acting_keys.h"
#include "platform/qt/wait_cursor.h"
#include "runtime/runtime_error.h"
#include "ui_frm_logon.h"
#include "widgets/field_controller.h"

namespace tarn {

FrmLogon::FrmLogon(DeskContext& desk, QWidget* parent)
    : QDialog(parent), desk_(desk), ui_(std::make_unique<Ui::FrmLogon>()) {
    ui_->setupUi(this);
    ui_->lblMaker->setText(QString::fromUtf8(makerName));
    const int side = fontMetrics().height() * 5 / 2;
    ui_->imgProgram->setPixmap(windowIcon().pixmap(QSize(side, side), devicePixelRatio()));
    for (QLineEdit* field : {ui_->txtEmpresa, ui_->txtUsuario}) {
        field->installEventFilter(this);
        letEnterMoveOn(*field);
        field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 32);
    }
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui_->btnLogin, &QPushButton::clicked, this, &FrmLogon::btnLogin_Click);
    connect(ui_->cmdFechar, &QPushButton::clicked, this, &FrmLogon::reject);
}

FrmLogon::~FrmLogon() = default;

bool FrmLogon::load() {
    return imposeDateFormat(desk_.environment);
}

void FrmLogon::reject() {
    desk_.end.endProgram();
    QDialog::reject();
}

// Enter in the first two fields is a Tab stroke; in the password the default button
// takes it.
bool FrmLogon::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !isEnter(*static_cast<QKeyEvent*>(event))) {
        return false;
    }
    if (watched == ui_->txtUsuario) {
        ui_->txtSenha->selectAll();
    }
    sendTab(*static_cast<QWidget*>(watched));
    return true;
}

// Where the focus goes for another try: the first field left empty, else the company.
QLineEdit& FrmLogon::fieldToReturnTo() const {
    for (QLineEdit* field : {ui_->txtEmpresa, ui_->txtUsuario, ui_->txtSenha}) {
        if (field->text().isEmpty()) {
            return *field;
        }
    }
    return *ui_->txtEmpresa;
}

void FrmLogon::btnLogin_Click() {
    try {
        if (tryLogon()) {
            accept();
        } else {
            fieldToReturnTo().setFocus();
        }
    } catch (const std::exception& error) {
        desk_.environment.boxes.show(
            {"Aconteceu um erro inesperado no sistema. Por favor avise a RVL\nErro = " +
                 std::string(error.what()),
             BoxIcon::Critical, "Aviso"});
        desk_.end.endProgram(runtimeErrorStatus);
        QDialog::reject();
    }
}

// The pointer is busy only once there is something to wait for.
bool FrmLogon::tryLogon() {
    const std::string company = ui_->txtEmpresa->text().toStdString();
    const std::string user = ui_->txtUsuario->text().toStdString();
    const std::string password = ui_->txtSenha->text().toStdString();
    if (!canLogOn(desk_.environment, company, user, password)) {
        return false;
    }
    const WaitCursor hourglass;
    return logOn(desk_.environment, desk_.session, company, user, password);
}

}  // namespace tarn
