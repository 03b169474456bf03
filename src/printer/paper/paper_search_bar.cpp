#include "printer/paper/paper_search_bar.h"

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
    makeButtons();
    addWidget(result_);
    hide();
    connect(text_, &QLineEdit::returnPressed, this, &PaperSearchBar::findNext);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, this, &PaperSearchBar::leave);
    searching_.setInterval(0);
    connect(&searching_, &QTimer::timeout, this, &PaperSearchBar::searchOn);
    counting_.setInterval(0);
    connect(&counting_, &QTimer::timeout, this, &PaperSearchBar::countOn);
}

void PaperSearchBar::makeButtons() {
    const auto add = [this](const char* name, const QString& text, const QString& hint,
                            void (PaperSearchBar::*run)()) {
        QAction* action = addAction(text, this, run);
        action->setObjectName(QLatin1StringView(name));
        action->setToolTip(hint);
        return action;
    };
    add("searchPrevious", QStringLiteral("Anterior"),
        QStringLiteral("Procura dali para cima (Shift+F3)"), &PaperSearchBar::findPrevious);
    add("searchNext", QStringLiteral("Próxima"), QStringLiteral("Procura dali para baixo (F3)"),
        &PaperSearchBar::findNext);
    add("searchClose", QStringLiteral("Fechar"), QStringLiteral("Fecha a busca (Esc)"),
        &PaperSearchBar::leave);
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
    counting_.stop();
    search_.reset();
    count_.reset();
    found_.reset();
    result_->clear();
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
        count_.reset();
    }
    if (!count_ || countedVersion_ != roll_.version()) {
        count_ = std::make_unique<PaperCount>(roll_, text);
        countedVersion_ = roll_.version();
        counted_ = false;
        counting_.stop();
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
        counting_.stop();
        result_->setText(QStringLiteral("O papel não tem este texto."));
        view_.mark(std::nullopt);
        return;
    }
    found_ = search_->found();
    wrapped_ = search_->wrapped();
    view_.mark(found_);
    view_.reveal(*found_);
    showResult();
    if (!counted_) {
        counting_.start();
    }
}

void PaperSearchBar::countOn() {
    counted_ = count_->step(formsAStep);
    if (counted_) {
        counting_.stop();
        showResult();
    }
}

void PaperSearchBar::showResult() {
    QString text =
        counted_ ? QStringLiteral("%1 de %2").arg(count_->indexOf(*found_)).arg(count_->total())
                 : QStringLiteral("Contando...");
    if (wrapped_) {
        text += QStringLiteral(" · a busca deu a volta no papel");
    }
    result_->setText(text);
}

}  // namespace tarn::dotmatrix
