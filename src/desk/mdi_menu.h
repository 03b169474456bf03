// The main desk: the frame that checks the version, lets the user log on and opens
// the screens from its menu.
#pragma once

#include <QMainWindow>
#include <memory>

#include "labels/queue.h"
#include "platform/qt/close_request.h"
#include "widgets/desk_context.h"

class QAction;
class QDialog;
class QMdiSubWindow;

namespace Ui {
class MDIMenu;
}

namespace tarn {

class CollectionScreens;
class StatusPanel;
enum class NoteJob;

class MDIMenu : public QMainWindow {
    Q_OBJECT

public:
    explicit MDIMenu(DeskContext& desk);
    ~MDIMenu() override;

    // The start of the program: version gate, logon, first activation. Returns when the
    // user has logged on, or when the program must end. To be called in the event loop.
    void load();

    // The bulk selection of labels, which no entry of the menu opens. Returns when it has
    // been closed.
    void openLabelSelection();

    // The line of what was done last, on Panel3.
    void tell(const QString& line);
    // The server, on a panel of its own: it isn't the usual one.
    void showServer(const QString& address);

    // Enables mnuEtiquetas and mnuNF again when a screen that disabled them closes.
    void LiberaMenus();

protected:
    // Closing the window by any means ends the program at once.
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void connectMenu();
    void preparePanels();
    void lockMenus();
    bool logOn();
    void activate();
    bool hasRight(const char* transaction);
    void runModal(QDialog& screen);
    // Puts a screen that stays open beside the menu into the desk's area; while it is
    // there mnuEtiquetas and mnuNF are disabled.
    template <typename Screen>
    void openInArea(Screen* screen);
    void centre(QMdiSubWindow* window);
    // Screens follow the area: as large as they like to be, as far as it goes.
    void fitScreens();

    void labels(const char* kind);
    void mOFT_Click();
    void note(const char* transaction, NoteJob job);
    void mnuDuplicata_Click();
    void mnuBoleto_Click();
    void mnuChequeImpressao_Click();
    void mnuAjuda_Click();

    DeskContext& desk_;
    std::unique_ptr<Ui::MDIMenu> ui_;
    std::unique_ptr<CollectionScreens> collection_;
    CloseRequest closeRequest_{*this};
    labels::LabelValues labelValues_;  // from one opening to the next
    StatusPanel* panel1_ = nullptr;    // printer notice
    StatusPanel* panel2_ = nullptr;    // establishment's name
    StatusPanel* panel3_ = nullptr;    // what was done last, or is waited for
    StatusPanel* panel4_ = nullptr;    // server, where it was replaced for the run
};

}  // namespace tarn
