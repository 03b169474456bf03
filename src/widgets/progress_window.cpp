#include "widgets/progress_window.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

namespace tarn {
namespace {

constexpr std::size_t muitos = 50;
constexpr qint64 demoraMs = 400;    // a run that lasts longer is shown
constexpr qint64 intervaloMs = 50;  // between two repaints
constexpr int larguraDaBarra = 40;  // characters

}  // namespace

Andamento::Andamento(QWidget& tela) : tela_(tela) {
    inicio_.start();
    pintura_.start();
}

Andamento::~Andamento() = default;

Progress Andamento::avisos() {
    return [this](std::size_t feitos, std::size_t total) { avisa(feitos, total); };
}

void Andamento::avisa(std::size_t feitos, std::size_t total) {
    const bool fim = feitos >= total;
    const bool abriu = !fim && !janela_ && (total >= muitos || inicio_.elapsed() >= demoraMs);
    if (abriu) {
        abre();
    }
    if (janela_) {
        barra_->setRange(0, static_cast<int>(total));
        barra_->setValue(static_cast<int>(feitos));
        texto_->setText(QStringLiteral("Imprimindo: %1 de %2").arg(feitos).arg(total));
    }
    if (abriu || fim || pintura_.elapsed() >= intervaloMs) {
        repinta();
    }
    if (fim) {
        fecha();
    }
}

void Andamento::abre() {
    janela_ = std::make_unique<QWidget>(&tela_,
                                        Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    janela_->setObjectName(QStringLiteral("andamento"));
    janela_->setWindowTitle(QStringLiteral("Impressão"));
    auto* coluna = new QVBoxLayout(janela_.get());
    texto_ = new QLabel(janela_.get());
    texto_->setObjectName(QStringLiteral("lblAndamento"));
    barra_ = new QProgressBar(janela_.get());
    barra_->setObjectName(QStringLiteral("barAndamento"));
    barra_->setAccessibleName(QStringLiteral("Andamento da impressão"));
    barra_->setMinimumWidth(larguraDaBarra * janela_->fontMetrics().averageCharWidth());
    coluna->addWidget(texto_);
    coluna->addWidget(barra_);
    janela_->adjustSize();
    janela_->move(tela_.mapToGlobal(tela_.rect().center()) - janela_->rect().center());
    ampulheta_.emplace();
    janela_->show();
}

void Andamento::fecha() {
    janela_.reset();
    ampulheta_.reset();
}

void Andamento::repinta() {
    const ShutGate fechada(porta_);
    QCoreApplication::processEvents();
    pintura_.restart();
}

}  // namespace tarn
