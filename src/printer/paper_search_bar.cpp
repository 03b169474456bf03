#include "printer/paper_search_bar.h"

#include <QLabel>
#include <QLineEdit>
#include <QShortcut>

namespace tarn::dotmatrix {

namespace {

constexpr std::size_t formsAStep = 40;

}  // namespace

PaperSearchBar::PaperSearchBar(PaperRoll& roll, PaperView& view, QWidget* parent)
    : QToolBar(QStringLiteral("Localizar"), parent),
      roll_(roll),
      view_(view),
      text_(new QLineEdit(this)),
      result_(new QLabel(this)) {
    setObjectName(QStringLiteral("searchBar"));
    setMovable(false);
    text_->setObjectName(QStringLiteral("searchText"));
    text_->setMaximumWidth(280);
    text_->setClearButtonEnabled(true);
    auto* label = new QLabel(QStringLiteral(" &Localizar: "), this);
    label->setBuddy(text_);
    result_->setObjectName(QStringLiteral("searchResult"));
    result_->setTextFormat(Qt::PlainText);
    result_->setContentsMargins(8, 0, 0, 0);
    addWidget(label);
    addWidget(text_);
    addWidget(result_);
    hide();
    connect(text_, &QLineEdit::returnPressed, this, &PaperSearchBar::findNext);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &PaperSearchBar::leave);
    searching_.setInterval(0);
    connect(&searching_, &QTimer::timeout, this, &PaperSearchBar::searchOn);
}

void PaperSearchBar::leave() {
    hide();
    view_.mark(std::nullopt);
    view_.setFocus();
}

void PaperSearchBar::find() {
    show();
    text_->setFocus();
    text_->selectAll();
}

void PaperSearchBar::findNext() {
    search(PaperSearch::Direction::Down);
}

void PaperSearchBar::findPrevious() {
    search(PaperSearch::Direction::Up);
}

void PaperSearchBar::forget() {
    searching_.stop();
    search_.reset();
    found_.reset();
}

void PaperSearchBar::search(PaperSearch::Direction direction) {
    const QString text = text_->text();
    if (text.isEmpty()) {
        return find();
    }
    show();
    if (text != foundText_) {
        found_.reset();
        foundText_ = text;
    }
    search_ = std::make_unique<PaperSearch>(roll_, text, direction, found_);
    result_->setText(QStringLiteral("Procurando..."));
    searching_.start();
}

// Some forms each time round the event loop.
void PaperSearchBar::searchOn() {
    const PaperSearch::Step step = search_->step(formsAStep);
    if (step == PaperSearch::Step::Searching) {
        return;
    }
    searching_.stop();
    if (step == PaperSearch::Step::NotThere) {
        result_->setText(QStringLiteral("O papel não tem este texto."));
        view_.mark(std::nullopt);
        return;
    }
    found_ = search_->found();
    result_->setText(search_->wrapped() ? QStringLiteral("A busca deu a volta no papel.")
                                        : QString());
    view_.mark(found_);
    view_.reveal(*found_);
}

}  // namespace tarn::dotmatrix
