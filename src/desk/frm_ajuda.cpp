#include "desk/frm_ajuda.h"

#include <QIcon>

#include "desk/server_address.h"
#include "desk/start.h"
#include "maker.h"
#include "platform/message_boxes.h"
#include "runtime/version.h"
#include "ui_frm_ajuda.h"
#include "widgets/look.h"
#include "widgets/manual.h"
#include "widgets/shortcuts.h"

namespace tarn {

frmAjuda::frmAjuda(DeskContext& desk, QWidget* parent)
    : QDialog(parent), desk_(desk), ui_(std::make_unique<Ui::frmAjuda>()) {
    ui_->setupUi(this);
    const int side = fontMetrics().height() * 5;
    ui_->Image1->setPixmap(
        picture(QStringLiteral("help")).pixmap(QSize(side, side), devicePixelRatio()));
    ui_->Label1->setText(QString::fromUtf8(makerName));
    ui_->Label2->setText(QStringLiteral("Telefone: %1").arg(QString::fromUtf8(supportPhone)));
    ui_->Label3->setText(QStringLiteral("Suporte: %1").arg(QString::fromUtf8(supportAddress)));
    ui_->lblVersion->setText(QStringLiteral("Versão: %1").arg(QLatin1StringView(productVersion)));
    ui_->lblServer->setText(
        QStringLiteral("Servidor: %1")
            .arg(QString::fromStdString(shownAddress(desk.environment.baseUrl))));
    ui_->Label5->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    giveKeys(*ui_->cmdVoltar, {ScreenKey::Escape, ScreenKey::Close});
    ui_->cmdVoltar->setFocus();
    connect(ui_->cmdManual, &QPushButton::clicked, this, [this] {
        const std::string trouble = openManual(nullptr);
        if (!trouble.empty()) {
            desk_.environment.boxes.show({.text = trouble, .icon = BoxIcon::Exclamation});
        }
    });
    connect(ui_->cmdVoltar, &QPushButton::clicked, this, &QDialog::accept);
}

frmAjuda::~frmAjuda() = default;

bool frmAjuda::load() {
    return imposeDateFormat(desk_.environment);
}

}  // namespace tarn
