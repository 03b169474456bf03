// The bar that searches a grid: Enter or F3 goes to the next cell with the text, Esc closes
// the bar and gives the keyboard back to the grid.
#pragma once

#include <QPersistentModelIndex>
#include <QWidget>

class QLabel;
class QLineEdit;
class QTableView;

namespace tarn {

class FindBar : public QWidget {
    Q_OBJECT

public:
    // Hidden until it is opened. The grid must have its model.
    FindBar(QTableView& grid, QWidget* parent);

    void openBar();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void closeBar();
    void nextFind();
    void say(const QString& text);

    QTableView& grid_;
    QLineEdit* text_;
    QLabel* result_;
    QPersistentModelIndex found_;  // the cell on which the search stands
};

}  // namespace tarn
