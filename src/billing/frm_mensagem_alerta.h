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
    frmMensagemAlerta(Sessao& session, AlertMode mode, QWidget* parent);
    ~frmMensagemAlerta() override;

private:
    void respond(const char* answer);

    Sessao& session_;
    std::unique_ptr<Ui::frmMensagemAlerta> ui_;
};

// The dialog as the billing flows see it, in front of a screen.
class ScreenAlert : public AlertDialog {
public:
    ScreenAlert(Sessao& session, QWidget* screen) : session_(session), screen_(screen) {}
    void show(AlertMode mode) override;

private:
    Sessao& session_;
    QWidget* screen_;
};

}  // namespace tarn
