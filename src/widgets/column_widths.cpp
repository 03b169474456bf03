#include "widgets/column_widths.h"

#include <QEvent>
#include <QHeaderView>
#include <QTableView>
#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "widgets/grid_model.h"

namespace tarn {
namespace {

constexpr int freeText = 24;   // characters; wider columns hold names and addresses
constexpr int leastPart = 45;  // per cent of such a column's width

bool isAmount(const GridColumn& column) {
    return column.width > 0 &&
           (column.treatment == Treatment::Amount || column.treatment == Treatment::Quantity);
}

class ColumnWidths : public QObject {
public:
    ColumnWidths(QTableView& grid, const GridModel& model) : QObject(&grid), grid_(grid) {
        const int character = grid.fontMetrics().averageCharWidth();
        for (int column = 0; column < model.columnCount(); ++column) {
            const int characters = model.column(column).width;
            grid.setColumnHidden(column, characters == 0);
            if (characters > 0) {
                add(column, characters * character, characters >= freeText);
            }
            if (isAmount(model.column(column))) {
                toLastAmount_ = columns_.size();
            }
        }
        set(&Column::usual);
        grid.viewport()->installEventFilter(this);
        connect(grid.horizontalHeader(), &QHeaderView::sectionResized, this,
                [this] { drawnByUser_ = drawnByUser_ || !setting_; });
    }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Resize && !drawnByUser_) {
            fit(grid_.viewport()->width());
        }
        return false;
    }

private:
    struct Column {
        int number;
        int usual;
        int least;
        int now;
    };

    void add(int number, int width, bool text) {
        const int heading = grid_.horizontalHeader()->sectionSizeHint(number);
        const int usual = std::max(width, heading);
        const int least = text ? std::max(width * leastPart / 100, heading) : usual;
        columns_.push_back({number, usual, least, usual});
    }

    using Columns = std::span<Column>;

    static int sum(Columns columns, int Column::*width) {
        int all = 0;
        for (const Column& column : columns) {
            all += column.*width;
        }
        return all;
    }

    void fit(int room) {
        const Columns all(columns_);
        const bool scrolls = sum(all, &Column::least) > room;
        if (scrolls && toLastAmount_ < columns_.size()) {
            const Columns front = all.first(toLastAmount_);
            share(all, 0);
            share(front, std::max(sum(front, &Column::usual) - room, 0));
        } else {
            share(all, sum(all, &Column::usual) - room);
        }
        set(&Column::now);
    }

    // The columns that can give way share what is missing, or left over, by what each could
    // give.
    static void share(Columns columns, int missing) {
        const int given = sum(columns, &Column::usual) - sum(columns, &Column::least);
        const int taken = std::min(missing, given);
        int shared = 0;
        int before = 0;
        for (Column& column : columns) {
            shared += column.usual - column.least;
            const int until = given == 0 ? 0 : taken * shared / given;
            column.now = column.usual - (until - before);
            before = until;
        }
    }

    void set(int Column::*width) {
        const bool before = std::exchange(setting_, true);
        for (const Column& column : columns_) {
            grid_.setColumnWidth(column.number, column.*width);
        }
        setting_ = before;
    }

    QTableView& grid_;
    std::vector<Column> columns_;  // those that are shown
    std::size_t toLastAmount_ = 0;
    bool setting_ = false;
    bool drawnByUser_ = false;
};

}  // namespace

void adaptColumns(QTableView& grid, const GridModel& model) {
    new ColumnWidths(grid, model);
}

}  // namespace tarn
