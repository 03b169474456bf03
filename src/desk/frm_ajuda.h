// How to reach support.
#pragma once

#include <QDialog>
#include <memory>

#include "widgets/desk_context.h"

namespace Ui {
class frmAjuda;
}

namespace tarn {

class frmAjuda : public QDialog {
    Q_OBJECT

public:
    frmAjuda(DeskContext& desk, QWidget* parent);
    ~frmAjuda() override;

    // Before it shows: imposes the date format, as the logon does. False: refused, the
    // user was told, the program must end.
    bool load();

private:
    DeskContext& desk_;
    std::unique_ptr<Ui::frmAjuda> ui_;
};

}  // namespace tarn
