// The menus, tool bar and keys of the virtual printer's window, but for its forms.
#pragma once

#include <QMainWindow>

#include "dotmatrix/paper_painter.h"
#include "printer/window_commands.h"

namespace tarn::dotmatrix {

class HoldView;
class PaperFiles;
class PaperSearchBar;
class PaperView;
class SheetDock;

class PrinterMenus : public QObject {
    Q_OBJECT

public:
    // All but `looks`, what is ticked at first, must outlive this. The help comes last, in a
    // call of its own.
    PrinterMenus(QMainWindow& window, PaperView& view, PaperSearchBar& search, PaperFiles& files,
                 HoldView& holding, SheetDock& sheets, const PaintOptions& looks);

    void addHelp();
    // Ticks the marks on the paper, as the user can.
    void tickMarks() { marks_->setChecked(true); }

signals:
    void openWanted();
    void copyWanted();
    void selectWanted();
    void previousWanted();
    void nextWanted();
    void tearOffWanted();
    void checkWanted();
    void logWanted();
    void rulerWanted(bool on);
    void bandsWanted(bool on);
    void marksWanted(bool on);
    void aboutWanted();

private:
    void makeFileMenu(WindowCommands& commands);
    void makeEditMenu(WindowCommands& commands);
    void makePaperMenu(WindowCommands& commands);
    void makeHelpMenu(WindowCommands& commands);
    void makeViewMenu(WindowCommands& commands, const PaintOptions& looks);

    QMainWindow& window_;
    WindowCommands commands_;
    PaperView& view_;
    PaperSearchBar& search_;
    PaperFiles& files_;
    SheetDock& sheets_;
    QAction* marks_ = nullptr;
};

}  // namespace tarn::dotmatrix
