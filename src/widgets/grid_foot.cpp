#include "widgets/grid_foot.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include "widgets/find_bar.h"
#include "widgets/grid_model.h"
#include "widgets/look.h"

namespace tarn {

GridFoot::GridFoot(QWidget* parent)
    : QWidget(parent), lines_(new QVBoxLayout(this)), count_(new QLabel(this)) {
    lines_->setContentsMargins({});
    lines_->setSpacing(fontMetrics().height() / 4);
    count_->setObjectName(QStringLiteral("count"));
    count_->setTextFormat(Qt::PlainText);
}

void GridFoot::serve(QTableView& grid, const GridModel& model, const RowNoun& rows) {
    auto* bar = new FindBar(grid, this);
    auto* button = new QToolButton(this);
    button->setObjectName(QStringLiteral("find"));
    button->setText(QStringLiteral("Procurar"));
    button->setIcon(picture(QStringLiteral("search")));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setToolTip(QStringLiteral("Procurar na lista (Ctrl+F)"));
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &QToolButton::clicked, bar, &FindBar::openBar);
    auto* line = new QHBoxLayout;
    line->addWidget(count_, 1);
    line->addWidget(button);
    lines_->addWidget(bar);
    lines_->addLayout(line);
    const auto count = [this, &model, rows] {
        count_->setText(QString::fromStdString(countText(model, rows)));
    };
    connect(&model, &QAbstractItemModel::modelReset, this, count);
    connect(&model, &QAbstractItemModel::dataChanged, this, count);
    count();
}

}  // namespace tarn
