#include "apps/tarnroteiro/walk.h"

#include <QApplication>
#include <QCursor>
#include <QDir>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <utility>

namespace tarn {
namespace {

constexpr int intervaloMs = 20;
constexpr int maximoDeOlhadas = 60 * 1000 / intervaloMs;  // a minute for each step

}  // namespace

Roteiro::Roteiro(QString pasta) : pasta_(std::move(pasta)) {
    relogio_.setInterval(intervaloMs);
    relogio_.setSingleShot(true);
    connect(&relogio_, &QTimer::timeout, this, &Roteiro::olha);
}

Roteiro& Roteiro::quando(const QString& janela, const QString& nome, Passo passo) {
    passos_.push_back({janela, nome, std::move(passo)});
    return *this;
}

void Roteiro::comeca() {
    relogio_.start();
}

QWidget* Roteiro::naFrente(const QString& nome) const {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr) {
        return modal->objectName() == nome ? modal : nullptr;
    }
    for (QWidget* janela : QApplication::topLevelWidgets()) {
        QWidget* achada = janela->objectName() == nome ? janela : janela->findChild<QWidget*>(nome);
        if (achada != nullptr && achada->isVisible()) {
            return achada;
        }
    }
    return nullptr;
}

void Roteiro::olha() {
    relogio_.start();  // a step may stay in a modal window's loop, in which the next one comes
    // While a request is under way what is clicked is discarded.
    if (QGuiApplication::overrideCursor() != nullptr &&
        QGuiApplication::overrideCursor()->shape() == Qt::WaitCursor) {
        return;
    }
    if (passos_.empty()) {
        termina({});
        return;
    }
    QWidget* janela = naFrente(passos_.front().janela);
    if (janela == nullptr) {
        ++olhadas_;
        const auto* aviso = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (aviso != nullptr) {
            termina(
                QStringLiteral("uma caixa que não faz parte do roteiro: %1").arg(aviso->text()));
        } else if (olhadas_ == maximoDeOlhadas) {
            termina(QStringLiteral("a janela %1 não abriu").arg(passos_.front().janela));
        }
        return;
    }
    // Off-screen the activation doesn't come back by itself from a window that closed;
    // without it no field is ever left.
    if (++olhadas_ < maximoDeOlhadas && !janela->isActiveWindow()) {
        janela->activateWindow();
        return;
    }
    olhadas_ = 0;
    const Espera espera = std::exchange(passos_.front(), {});
    passos_.pop_front();
    if (!espera.nome.isEmpty()) {
        fotografa(*janela, espera.nome);
    }
    espera.passo(*janela);
}

void Roteiro::termina(const QString& motivo) {
    relogio_.stop();
    emit acabou(motivo);
}

void Roteiro::fotografa(QWidget& janela, const QString& nome) {
    // A dialog is shown over the desk, as the clerk sees it.
    QWidget* mesa = nullptr;
    for (QWidget* topo : QApplication::topLevelWidgets()) {
        mesa = topo->objectName() == QStringLiteral("MDIMenu") ? topo : mesa;
    }
    QPixmap foto = mesa == nullptr ? janela.grab() : mesa->grab();
    if (mesa != nullptr && janela.isWindow() && &janela != mesa) {
        const QPixmap dialogo = janela.grab();
        QPainter pintor(&foto);
        const QPoint lugar((mesa->width() - janela.width()) / 2,
                           (mesa->height() - janela.height()) / 2);
        pintor.drawPixmap(lugar, dialogo);
        pintor.setPen(Qt::darkGray);
        pintor.drawRect(QRect(lugar, janela.size()).adjusted(-1, -1, 0, 0));
    }
    ++fotos_;
    foto.save(QDir(pasta_).filePath(
        QStringLiteral("passo-%1-%2.png").arg(fotos_, 2, 10, QLatin1Char('0')).arg(nome)));
}

}  // namespace tarn
