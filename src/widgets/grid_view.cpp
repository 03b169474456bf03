#include "widgets/grid_view.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QHelpEvent>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScreen>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolTip>

#include "widgets/column_widths.h"
#include "widgets/grid_model.h"

namespace tarn {
namespace {

constexpr int fewestLines = 4;
// Pixels: what a window manager puts around a screen, at most; and the size up to which a
// screen may be larger than the desk.
constexpr int frameWidth = 8;
constexpr int frameHeight = 38;
constexpr int usefulWidth = 1016;
constexpr int usefulHeight = 720;

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

// What a cell has no room for is its tool tip.
class Cell : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override {
        if (event->type() != QEvent::ToolTip) {
            return QStyledItemDelegate::helpEvent(event, view, option, index);
        }
        const QRect seen = option.rect.intersected(view->viewport()->rect());
        const bool cut = sizeHint(option, index).width() > seen.width();
        QToolTip::showText(event->globalPos(), cut ? tip(index) : QString(), view->viewport(),
                           option.rect);
        return true;
    }

private:
    static QString tip(const QModelIndex& index) {
        const QString text = index.data().toString();
        return text.isEmpty() ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
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

// A row as a line of a table: the texts shown, with a tab between two.
QString lineOf(const QTableView& grid, const GridModel& model, int row) {
    QStringList texts;
    for (int column = 0; column < model.columnCount(); ++column) {
        if (!grid.isColumnHidden(column) && !isTick(model.column(column))) {
            QString text = model.index(row, column).data().toString();
            texts += text.replace(u'\t', u' ').replace(u'\n', u' ').replace(u'\r', u' ');
        }
    }
    return texts.join(u'\t');
}

// The space key in any column of a row is for its check box, Ctrl+C copies the row.
class RowKeys : public QObject {
public:
    RowKeys(QTableView& grid, GridModel& model) : QObject(&grid), grid_(grid), model_(model) {
        grid.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return false;
        }
        const auto& stroke = static_cast<const QKeyEvent&>(*event);
        const bool tick = stroke.key() == Qt::Key_Space && model_.hasCheckBox();
        const bool copy = stroke.matches(QKeySequence::Copy);
        const QModelIndex current = grid_.currentIndex();
        if (current.isValid() && tick) {
            model_.tick(current.row(), !model_.ticked(current.row()));
        } else if (current.isValid() && copy) {
            QGuiApplication::clipboard()->setText(lineOf(grid_, model_, current.row()));
        }
        return tick || copy;
    }

private:
    QTableView& grid_;
    GridModel& model_;
};

void prepareBox(QTableView& grid, GridModel& model) {
    grid.setItemDelegateForColumn(0, new CheckBoxInCell(&grid));
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

// However small its screen is made.
void keepSomeLines(QTableView& grid) {
    grid.setMinimumHeight(grid.horizontalHeader()->sizeHint().height() +
                          grid.verticalHeader()->defaultSectionSize() * fewestLines +
                          grid.horizontalScrollBar()->sizeHint().height() + 2 * grid.frameWidth());
}

// What is good to look at, and a window manager's frame around it.
QSize mostFor(const QWidget& screen) {
    const QSize monitor = screen.screen()->availableSize() - QSize(frameWidth, frameHeight);
    const QWidget* desk = screen.parentWidget();
    return desk == nullptr
               ? monitor
               : desk->window()->size().expandedTo({usefulWidth, usefulHeight}).boundedTo(monitor);
}

}  // namespace

void prepareGrid(QTableView& grid, GridModel& model) {
    grid.setModel(&model);
    prepareSelection(grid, model);
    grid.setItemDelegate(new Cell(&grid));
    new RowKeys(grid, model);
    adaptColumns(grid, model);
    grid.horizontalHeader()->setSectionsClickable(true);
    grid.horizontalHeader()->setHighlightSections(false);
    grid.verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid.verticalHeader()->setDefaultSectionSize(grid.fontMetrics().height() * 3 / 2);
    keepSomeLines(grid);
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
                      .expandedTo(screen.minimumSizeHint())
                      .boundedTo(mostFor(screen)));
}

}  // namespace tarn
