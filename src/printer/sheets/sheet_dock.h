// The loose sheets at the side of the paper.
#pragma once

#include <QDockWidget>
#include <QMainWindow>

#include "dotmatrix/paper_roll.h"
#include "printer/paper/paper_view.h"
#include "printer/sheets/sheet_pile.h"
#include "printer/sheets/sheet_view.h"

namespace tarn::dotmatrix {

class SheetDock : public QDockWidget {
    Q_OBJECT

public:
    // Hidden until the first sheet comes. All must outlive this.
    SheetDock(PaperRoll& roll, PaperView& paper, QMainWindow& window,
              const PdfPrograms& programs = {});

    void watch(const QString& folder) { pile_.watch(folder); }
    // Shows this file too, also to who has closed the panel.
    void open(const QString& path);
    void clear() { pile_.clear(); }
    // For the status bar; empty while there are none.
    QString count() const;

signals:
    void changed();
    void told(const QString& line);  // for the log
    // A file that was opened can't be shown; a whole sentence for the user.
    void refused(const QString& text);

private:
    void arrived(const QString& name);
    const RollJob* jobBefore(const QString& sheet) const;
    QString storyOf(const SheetFile& file) const;
    void showPaperOf(const QString& sheet);

    PaperRoll& roll_;
    PaperView& paper_;
    QMainWindow& window_;
    SheetPile pile_;
    SheetView* view_;
    bool wasShown_ = false;
};

}  // namespace tarn::dotmatrix
