// One screen for two jobs on a fiscal note that exists on the server: to print it
// again, or to cancel it. Which one shows in FrmCancelaNF being visible.
#pragma once

#include <QWidget>
#include <memory>

#include "reprint/reprint_note.h"
#include "widgets/desk_context.h"

namespace Ui {
class FrmReImprimeNF;
}

namespace tarn {

enum class NoteJob { Reprint, Cancellation };

class FrmReImprimeNF : public QWidget {
    Q_OBJECT

public:
    FrmReImprimeNF(DeskContext& desk, NoteJob job);
    ~FrmReImprimeNF() override;

    // On opening: the desk's menus are disabled (loaded), the two lists are read.
    void load();

signals:
    void loaded();
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void prepare(NoteJob job);
    void prepareButtons();
    void fillLists();
    void addReason(const CancelReason& reason);
    NoteFields fields() const;
    void show(const FoundNote& note);
    bool cancelling() const;
    void clearOption();
    // Forgets the note that was found.
    void LimpaDados();

    void cmdPesquisar_Click();
    void cmdSelecionar_Click();
    void CmdFechar_Click();

    DeskContext& desk_;
    std::unique_ptr<Ui::FrmReImprimeNF> ui_;
};

}  // namespace tarn
