#include "apps/tarnemissao-treino/notice_window.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>

#include "apps/tarnemissao-treino/session_folder.h"

namespace tarn::practice {
namespace {

constexpr int widthInCharacters = 56;
constexpr int edge = 24;  // pixels, with the window's frame

}  // namespace

QString noticeText(const SessionFolder& folder) {
    return QStringLiteral(
               "Entre com empresa 1361, usuário clara, senha pratica.\n\n"
               "Nada é impresso de verdade. O papel sai na janela da impressora virtual e fica até "
               "o próximo treino em\n%1\n\n"
               "Feche a mesa para terminar.")
        .arg(folder.path());
}

NoticeWindow::NoticeWindow(const SessionFolder& folder) {
    setWindowTitle(QStringLiteral("Treino do TarnEmissao"));
    // The desk and the paper fill most monitors, and this tells what to type there.
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* text = new QLabel(noticeText(folder), this);
    text->setObjectName(QStringLiteral("text"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * widthInCharacters);
    auto* buttons = new QDialogButtonBox(this);
    auto* paper =
        buttons->addButton(QStringLiteral("&Abrir a pasta do papel"), QDialogButtonBox::ActionRole);
    auto* end =
        buttons->addButton(QStringLiteral("&Encerrar o treino"), QDialogButtonBox::ActionRole);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(buttons);
    connect(paper, &QPushButton::clicked, this,
            [path = folder.path()] { QDesktopServices::openUrl(QUrl::fromLocalFile(path)); });
    connect(end, &QPushButton::clicked, this, &NoticeWindow::endWanted);
    adjustSize();
    const QRect monitor = screen()->availableGeometry();
    move(monitor.right() - width() - edge, monitor.top() + edge);
}

}  // namespace tarn::practice
