// What stands under every grid: a line that counts its rows and ticks, and the bar that
// searches it.
#pragma once

#include <QWidget>

#include "widgets/grid_count.h"

class QLabel;
class QTableView;
class QVBoxLayout;

namespace tarn {

class FindBar;
class GridModel;

class GridFoot : public QWidget {
    Q_OBJECT

public:
    explicit GridFoot(QWidget* parent);

    // The grid shows the model already, and both live as long as this.
    void serve(QTableView& grid, const GridModel& model, const RowNoun& rows);

private:
    QVBoxLayout* lines_;
    QLabel* count_;
};

}  // namespace tarn
