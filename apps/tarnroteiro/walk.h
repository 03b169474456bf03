// A walk through the real screens by clicks and keys: one step after the other,
// each as soon as its window is there.
#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

namespace tarn {

class Roteiro : public QObject {
    Q_OBJECT

public:
    // Pictures go to `pasta` as passo-01-NAME.png.
    explicit Roteiro(QString pasta);

    using Passo = std::function<void(QWidget& janela)>;
    // Waits until the window in front (modal, else a visible one) has this object name,
    // takes its picture under `nome` unless that is empty, and acts. A message box that
    // isn't awaited ends the walk.
    Roteiro& quando(const QString& janela, const QString& nome, Passo passo);

    // From now on the steps run in the event loop. A window that doesn't come within the
    // time limit ends the walk.
    void comeca();
    bool completo() const { return passos_.empty(); }

    void fotografa(QWidget& janela, const QString& nome);

signals:
    // `motivo` is empty when every step was taken.
    void acabou(const QString& motivo);

private:
    struct Espera {
        QString janela;
        QString nome;
        Passo passo;
    };
    void olha();
    void termina(const QString& motivo);
    QWidget* naFrente(const QString& nome) const;

    QString pasta_;
    std::deque<Espera> passos_;
    QTimer relogio_;
    int olhadas_ = 0;
    int fotos_ = 0;
};

}  // namespace tarn
