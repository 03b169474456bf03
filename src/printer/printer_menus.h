// The menus, tool bar and keys of the virtual printer's window, but for its forms.
#pragma once

#include <QMainWindow>

#include "dotmatrix/paper_painter.h"

namespace tarn::dotmatrix {

class HoldView;
class PaperFiles;
class PaperSearchBar;
class PaperView;
class WindowCommands;

class PrinterMenus : public QObject {
    Q_OBJECT

public:
    // All but `looks`, what is ticked at first, must outlive this.
    PrinterMenus(QMainWindow& window, PaperView& view, PaperSearchBar& search, PaperFiles& files,
                 HoldView& holding, const PaintOptions& looks);

signals:
    void openWanted();
    void copyWanted();
    void selectWanted();
    void previousWanted();
    void nextWanted();
    void tearOffWanted();
    void logWanted();
    void rulerWanted(bool on);
    void bandsWanted(bool on);

private:
    void makeFileMenu(WindowCommands& commands);
    void makeEditMenu(WindowCommands& commands);
    void makePaperMenu(WindowCommands& commands);
    void makeViewMenu(WindowCommands& commands, const PaintOptions& looks);

    QMainWindow& window_;
    PaperView& view_;
    PaperSearchBar& search_;
    PaperFiles& files_;
};

}  // namespace tarn::dotmatrix
