// Shows a text of the billing desk and takes a yes or no to it.
#pragma once

#include <QDialog>
#include <memory>

#include "billing/alert.h"
#include "gateway/sessao.h"

namespace Ui {
class frmMensagemAlerta;
}

namespace tarn {

class frmMensagemAlerta : public QDialog {
    Q_OBJECT

public:
    frmMensagemAlerta(Sessao& sessao, ModoAlerta modo, QWidget* parent);
    ~frmMensagemAlerta() override;

private:
    void responde(const char* resposta);

    Sessao& sessao_;
    std::unique_ptr<Ui::frmMensagemAlerta> ui_;
};

// The dialog as the billing flows see it, in front of a screen.
class AlertaNaTela : public AlertaDialogo {
public:
    AlertaNaTela(Sessao& sessao, QWidget* tela) : sessao_(sessao), tela_(tela) {}
    void mostra(ModoAlerta modo) override;

private:
    Sessao& sessao_;
    QWidget* tela_;
};

}  // namespace tarn
