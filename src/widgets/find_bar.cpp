#include "widgets/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>

#include "platform/qt/acting_keys.h"
#include "widgets/grid_search.h"
#include "widgets/shortcuts.h"

namespace tarn {

FindBar::FindBar(QTableView& grid, QWidget* parent)
    : QWidget(parent), grid_(grid), text_(new QLineEdit(this)), result_(new QLabel(this)) {
    build();
    hide();
    text_->installEventFilter(this);
    grid.installEventFilter(this);
    connect(text_, &QLineEdit::textChanged, this, [this] {
        found_ = QModelIndex();
        say({});
    });
    onKeys(grid, {QKeySequence(Qt::CTRL | Qt::Key_F)}, [this] { openBar(); });
    onKeys(grid, {QKeySequence(Qt::Key_F3)}, [this] {
        if (isHidden()) {
            openBar();
        } else {
            nextFind();
        }
    });
}

void FindBar::build() {
    setObjectName(QStringLiteral("findBar"));
    text_->setObjectName(QStringLiteral("findText"));
    text_->setAccessibleName(QStringLiteral("Procurar na lista"));
    const QString hint = QStringLiteral("Enter ou F3: próxima; Esc: fechar");
    text_->setPlaceholderText(hint);
    text_->setMinimumWidth(fontMetrics().horizontalAdvance(hint + QStringLiteral("000")));
    result_->setObjectName(QStringLiteral("findResult"));
    result_->setTextFormat(Qt::PlainText);
    auto* label = new QLabel(QStringLiteral("Procurar na lista"), this);
    label->setBuddy(text_);
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins({});
    line->addWidget(label);
    line->addWidget(text_);
    line->addWidget(result_, 1);
}

void FindBar::openBar() {
    show();
    text_->setFocus(Qt::ShortcutFocusReason);
    text_->selectAll();
}

void FindBar::closeBar() {
    grid_.setFocus(Qt::OtherFocusReason);
    hide();
}

void FindBar::nextFind() {
    const QString text = text_->text().trimmed();
    if (text.isEmpty()) {
        return;
    }
    const bool again = found_.isValid() && found_ == grid_.currentIndex();
    const QModelIndex current = grid_.currentIndex();
    const FoundCell next =
        findCell(grid_, text, again ? current : current.siblingAtColumn(0), again);
    if (!next.cell.isValid()) {
        say(QStringLiteral("Nada encontrado"));
        return;
    }
    grid_.setCurrentIndex(next.cell);
    grid_.scrollTo(next.cell);
    found_ = next.cell;
    const QString heading =
        grid_.model()->headerData(next.cell.column(), Qt::Horizontal).toString().trimmed();
    say(QStringLiteral("%1linha %2%3")
            .arg(next.fromTop ? QStringLiteral("Do começo: ") : QString())
            .arg(next.cell.row() + 1)
            .arg(heading.isEmpty() ? QString() : QStringLiteral(", ") + heading));
}

void FindBar::say(const QString& text) {
    result_->setText(text.left(1).toUpper() + text.mid(1));
}

// Esc in the grid closes an open bar before it does anything else.
bool FindBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || isHidden()) {
        return false;
    }
    const auto& stroke = static_cast<const QKeyEvent&>(*event);
    if (stroke.key() == Qt::Key_Escape) {
        closeBar();
        return true;
    }
    if (watched == text_ && isEnter(stroke)) {
        nextFind();
        return true;
    }
    return false;
}

}  // namespace tarn
