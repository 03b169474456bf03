#include "widgets/grid_view.h"

#include <QApplication>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>

#include "widgets/grid_model.h"

namespace tarn {
namespace {

constexpr double monitorPart = 0.9;

// What a button acts on is what the clerk sees: neither a click with Ctrl on the selected
// row nor one below the last row unselects it. New rows leave no current one behind.
class CurrentRowSelection : public QItemSelectionModel {
public:
    using QItemSelectionModel::QItemSelectionModel;
    using QItemSelectionModel::select;

    void select(const QItemSelection& rows, SelectionFlags command) override {
        const bool unselects =
            command.testAnyFlags(Deselect | Toggle) || (command.testFlag(Clear) && rows.isEmpty());
        if (!unselects || !currentIndex().isValid()) {
            QItemSelectionModel::select(rows, command);
        }
    }
};

// A check box in the middle of its cell; the whole cell takes the click.
class CheckBoxInCell : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem item = option;
        initStyleOption(&item, index);
        const QStyle& style = item.widget != nullptr ? *item.widget->style() : *qApp->style();
        style.drawPrimitive(QStyle::PE_PanelItemViewItem, &item, painter, item.widget);
        const QSize side(style.pixelMetric(QStyle::PM_IndicatorWidth, &item, item.widget),
                         style.pixelMetric(QStyle::PM_IndicatorHeight, &item, item.widget));
        QStyleOptionButton box;
        box.rect = QStyle::alignedRect(item.direction, Qt::AlignCenter, side, item.rect);
        box.state = QStyle::State_Enabled |
                    (item.checkState == Qt::Checked ? QStyle::State_On : QStyle::State_Off);
        box.palette = item.palette;
        style.drawPrimitive(QStyle::PE_IndicatorCheckBox, &box, painter, item.widget);
    }

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model,
                     const QStyleOptionViewItem& /*option*/, const QModelIndex& index) override {
        const bool released = event->type() == QEvent::MouseButtonRelease &&
                              static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
        if (!released) {
            return false;
        }
        const bool ticked = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
        return model->setData(index, ticked ? Qt::Unchecked : Qt::Checked, Qt::CheckStateRole);
    }
};

// The space key in any column of a row is for its check box.
class SpaceKey : public QObject {
public:
    SpaceKey(QTableView& grid, GridModel& model) : QObject(&grid), grid_(grid), model_(model) {
        grid.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress ||
            static_cast<QKeyEvent*>(event)->key() != Qt::Key_Space) {
            return false;
        }
        const QModelIndex activate = grid_.currentIndex();
        if (activate.isValid()) {
            model_.tick(activate.row(), !model_.ticked(activate.row()));
        }
        return true;
    }

private:
    QTableView& grid_;
    GridModel& model_;
};

void prepareBox(QTableView& grid, GridModel& model) {
    grid.setItemDelegateForColumn(0, new CheckBoxInCell(&grid));
    new SpaceKey(grid, model);
    if (model.column(0).treatment == Treatment::TickAlone) {
        return;
    }
    QObject::connect(grid.horizontalHeader(), &QHeaderView::sectionClicked, &model,
                     [&model](int column) {
                         if (column == 0) {
                             model.toggleByLastRow();
                         }
                     });
}

// The view's own answer to new rows comes first: it forgets the current one.
void prepareSelection(QTableView& grid, GridModel& model) {
    delete grid.selectionModel();
    grid.setSelectionModel(new CurrentRowSelection(&model, &grid));
    QObject::connect(&model, &QAbstractItemModel::modelReset, &grid, [&grid, &model] {
        if (model.rowCount() > 0) {
            grid.setCurrentIndex(model.index(0, 0));
        }
    });
}

}  // namespace

void prepareGrid(QTableView& grid, GridModel& model) {
    grid.setModel(&model);
    prepareSelection(grid, model);
    const int character = grid.fontMetrics().averageCharWidth();
    for (int column = 0; column < model.columnCount(); ++column) {
        const int width = model.column(column).width;
        grid.setColumnHidden(column, width == 0);
        grid.setColumnWidth(column, width * character);
    }
    grid.horizontalHeader()->setSectionsClickable(true);
    grid.horizontalHeader()->setHighlightSections(false);
    grid.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid.verticalHeader()->setDefaultSectionSize(grid.fontMetrics().height() * 3 / 2);
    if (model.hasCheckBox()) {
        prepareBox(grid, model);
    }
}

void fitToGrid(QWidget& screen, const QTableView& grid, int lines) {
    screen.ensurePolished();
    const int frame = 2 * grid.frameWidth();
    const int height = grid.horizontalHeader()->sizeHint().height() +
                       grid.verticalHeader()->defaultSectionSize() * lines + frame;
    const int width =
        grid.horizontalHeader()->length() +
        (grid.verticalHeader()->isHidden() ? 0 : grid.verticalHeader()->sizeHint().width()) +
        grid.verticalScrollBar()->sizeHint().width() + frame;
    const QSize missing = QSize(width, height) - grid.sizeHint();
    screen.resize((screen.sizeHint() + missing)
                      .expandedTo(screen.sizeHint())
                      .boundedTo(screen.screen()->availableSize() * monitorPart));
}

}  // namespace tarn
