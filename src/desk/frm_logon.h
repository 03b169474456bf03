// The one door of the program: company, user, password.
#pragma once

#include <QDialog>
#include <memory>

#include "widgets/desk_context.h"

class QLineEdit;

namespace Ui {
class FrmLogon;
}

namespace tarn {

class FrmLogon : public QDialog {
    Q_OBJECT

public:
    FrmLogon(DeskContext& desk, QWidget* parent);
    ~FrmLogon() override;

    // Before it shows: imposes the date format. False: refused, the user was told, the
    // program must end.
    bool load();

    // Esc, cmdFechar and the window's own close button end the program.
    void reject() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void btnLogin_Click();
    QLineEdit& fieldToReturnTo() const;
    bool tryLogon();

    DeskContext& desk_;
    std::unique_ptr<Ui::FrmLogon> ui_;
};

}  // namespace tarn
