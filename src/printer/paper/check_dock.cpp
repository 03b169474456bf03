#include "printer/paper/check_dock.h"

#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

namespace tarn::dotmatrix {

namespace {

constexpr std::size_t formsAStep = 20;
constexpr std::size_t mostRows = 1000;
constexpr std::chrono::milliseconds untilPaperRests(500);
constexpr int someRows = 200;  // pixels

bool tellsCuts(const RollJob& job) {
    return !job.shows || job.paper.cuts.has_value();
}

}  // namespace

CheckDock::CheckDock(PaperRoll& roll, PaperView& view, const PaintOptions& looks,
                     QMainWindow& window)
    : QDockWidget(QStringLiteral("Conferência do papel"), &window),
      roll_(roll),
      view_(view),
      looks_(looks),
      result_(new QLabel),
      table_(new QTableWidget) {
    setObjectName(QStringLiteral("checkPanel"));
    result_->setObjectName(QStringLiteral("checkResult"));
    result_->setTextFormat(Qt::PlainText);
    result_->setWordWrap(true);
    makeTable();
    auto* inside = new QWidget(this);
    auto* layout = new QVBoxLayout(inside);
    layout->addWidget(result_);
    layout->addWidget(table_);
    setWidget(inside);
    window.addDockWidget(Qt::BottomDockWidgetArea, this);
    window.resizeDocks({this}, {someRows}, Qt::Vertical);
    hide();
    again_.setSingleShot(true);
    again_.setInterval(untilPaperRests);
    connect(&again_, &QTimer::timeout, this, &CheckDock::begin);
    connect(&step_, &QTimer::timeout, this, &CheckDock::step);
}

void CheckDock::makeTable() {
    table_->setObjectName(QStringLiteral("checkFaults"));
    table_->setAccessibleName(QStringLiteral("O que o papel mostra cortado ou fora das caixas"));
    table_->setColumnCount(6);
    table_->setHorizontalHeaderLabels({QStringLiteral("Formulário"), QStringLiteral("Linha"),
                                       QStringLiteral("Coluna"), QStringLiteral("Caixa"),
                                       QStringLiteral("O que se vê"), QStringLiteral("Texto")});
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
    table_->setWordWrap(false);
    table_->horizontalHeader()->setHighlightSections(false);
    table_->horizontalHeader()->setStretchLastSection(true);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    connect(table_, &QTableWidget::itemSelectionChanged, this,
            [this] { goTo(table_->currentRow()); });
    connect(table_, &QTableWidget::cellClicked, this, [this](int row) { goTo(row); });
}

void CheckDock::check() {
    show();
    begin();
    table_->setFocus();
}

void CheckDock::paperChanged() {
    if (isVisible()) {
        again_.start();
    }
}

void CheckDock::begin() {
    const QSignalBlocker quiet(table_);
    table_->setRowCount(0);
    faults_.clear();
    form_ = 0;
    total_ = 0;
    withBoxes_ = 0;
    result_->setText(QStringLiteral("Conferindo..."));
    step_.start(0);
}

void CheckDock::step() {
    const std::size_t forms = roll_.printedForms();
    for (std::size_t i = 0; i < formsAStep && form_ < forms; ++i, ++form_) {
        const auto faults = faultsOn(*roll_.page(form_), looks_.design.get(), roll_.jobs());
        if (!faults) {
            continue;
        }
        ++withBoxes_;
        std::ranges::for_each(*faults, [this](const PaperFault& fault) { add(fault); });
    }
    if (form_ >= forms) {
        step_.stop();
        tell();
    }
}

void CheckDock::add(const PaperFault& fault) {
    ++total_;
    if (faults_.size() >= mostRows) {
        return;
    }
    const QSignalBlocker quiet(table_);
    const int row = table_->rowCount();
    table_->insertRow(row);
    const QStringList words{QString::number(fault.form + 1),
                            fault.row > 0 ? QString::number(fault.row) : QString(),
                            fault.column > 0 ? QString::number(fault.column) : QString(),
                            fault.box,
                            describe(fault),
                            fault.text};
    for (int column = 0; column < words.size(); ++column) {
        table_->setItem(row, column, new QTableWidgetItem(words[column]));
    }
    faults_.push_back(fault);
}

void CheckDock::tell() {
    for (int column = 0; column + 1 < table_->columnCount(); ++column) {
        table_->resizeColumnToContents(column);
    }
    result_->setText(resultText());
}

QString CheckDock::resultText() const {
    if (withBoxes_ == 0) {
        return QStringLiteral("O papel está em branco: não há caixas para conferir.");
    }
    QString text = total_ == 0   ? QStringLiteral("Nada aparece cortado nem fora das caixas.")
                   : total_ == 1 ? QStringLiteral("1 lugar para conferir.")
                                 : QStringLiteral("%1 lugares para conferir.").arg(total_);
    if (total_ > faults_.size()) {
        text += QStringLiteral(" Aqui estão os primeiros %1.").arg(faults_.size());
    }
    return std::ranges::all_of(roll_.jobs(), tellsCuts)
               ? text
               : text + QStringLiteral(
                            " O que o programa cortou antes de imprimir não está no papel.");
}

void CheckDock::goTo(int row) {
    if (row >= 0 && static_cast<std::size_t>(row) < faults_.size()) {
        const PaperFault& fault = faults_[static_cast<std::size_t>(row)];
        view_.reveal(fault.region);
        view_.mark(fault.region);
    }
}

}  // namespace tarn::dotmatrix
