#include "printer/held/held_panel.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace tarn::dotmatrix {

namespace {

using hold::State;

constexpr int numberColumn = 0;
constexpr int timeColumn = 1;
constexpr int nameColumn = 2;
constexpr int findingsColumn = 3;
constexpr int stateColumn = 4;

QString arrivalOf(const hold::Job& job) {
    const QDateTime arrived = QDateTime::fromMSecsSinceEpoch(job.arrived);
    return arrived.toString(arrived.date() == QDate::currentDate() ? QStringLiteral("HH:mm:ss")
                                                                   : QStringLiteral("dd/MM HH:mm"));
}

QString wordOf(const HoldDesk& desk, const hold::Job& job) {
    if (HoldDesk::isDoubtful(job)) {
        return QStringLiteral("em dúvida");
    }
    if (desk.isLeaving(job.number)) {
        return QStringLiteral("indo para a fila");
    }
    switch (job.state) {
        case State::Held:
            return QStringLiteral("retido");
        case State::HandingOver:
            return QStringLiteral("indo para a fila");
        case State::PassedOn:
            return QStringLiteral("repassado");
        case State::Refused:
            return QStringLiteral("recusado");
    }
    return {};
}

QString stateOf(const HoldDesk& desk, const hold::Job& job) {
    const QString word = wordOf(desk, job);
    return job.remark.empty() || desk.isLeaving(job.number)
               ? word
               : word + QStringLiteral(": ") + QString::fromStdString(job.remark);
}

QString queueText(const HoldDesk& desk) {
    if (desk.queue().isEmpty()) {
        return QStringLiteral("Nenhuma fila escolhida: use Fila, Repassar para...");
    }
    const QString after = desk.after() ? QStringLiteral("cada trabalho sai sozinho depois de %1 s")
                                             .arg(static_cast<double>(desk.after()->count()) / 1000)
                                       : QStringLiteral("os trabalhos esperam por você");
    return QStringLiteral("Fila %1: %2").arg(desk.queue(), after);
}

}  // namespace

HeldPanel::HeldPanel(HoldDesk& desk, QWidget* parent)
    : QWidget(parent), desk_(desk), queue_(new QLabel(this)), table_(new QTableWidget(this)) {
    queue_->setObjectName(QStringLiteral("heldQueue"));
    queue_->setTextFormat(Qt::PlainText);
    queue_->setWordWrap(true);
    table_->setObjectName(QStringLiteral("heldJobs"));
    table_->setAccessibleName(QStringLiteral("Trabalhos retidos"));
    table_->setColumnCount(5);
    table_->setHorizontalHeaderLabels({QStringLiteral("Nº"), QStringLiteral("Chegou"),
                                       QStringLiteral("Trabalho"), QStringLiteral("Conferência"),
                                       QStringLiteral("Estado")});
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->verticalHeader()->setDefaultSectionSize(table_->fontMetrics().height() + 8);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->horizontalHeader()->setSectionResizeMode(stateColumn, QHeaderView::Stretch);
    table_->setWordWrap(false);
    table_->horizontalHeader()->setHighlightSections(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(queue_);
    layout->addWidget(table_, 1);
    makeButtons();
    connect(&desk_, &HoldDesk::changed, this, &HeldPanel::refresh);
    connect(table_, &QTableWidget::itemSelectionChanged, this, [this] {
        enable();
        if (const auto number = chosen()) {
            emit jobChosen(*number);
        }
    });
    refresh();
}

void HeldPanel::makeButtons() {
    auto* row = new QHBoxLayout;
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    release_ =
        add("heldRelease", QStringLiteral("Repa&ssar"),
            QStringLiteral("Manda o trabalho escolhido à fila, como chegou"), &HeldPanel::release);
    releaseAll_ = add("heldReleaseAll", QStringLiteral("Repassar &todos"),
                      QStringLiteral("Manda à fila todos os trabalhos retidos, na ordem"),
                      &HeldPanel::releaseAll);
    refuse_ =
        add("heldRefuse", QStringLiteral("Re&cusar"),
            QStringLiteral("Guarda o trabalho escolhido sem mandar à fila"), &HeldPanel::refuse);
    forget_ = add("heldForget", QStringLiteral("Apa&gar"),
                  QStringLiteral("Apaga do disco o trabalho escolhido, recusado ou já repassado"),
                  &HeldPanel::forget);
    onPaper_ = add("heldOnPaper", QStringLiteral("Está &no papel"),
                   QStringLiteral("Você conferiu: a impressora imprimiu este trabalho"),
                   &HeldPanel::onPaper);
    notOnPaper_ = add("heldNotOnPaper", QStringLiteral("Não sai&u"),
                      QStringLiteral("Você conferiu: a impressora não imprimiu este trabalho"),
                      &HeldPanel::notOnPaper);
    for (QPushButton* button : {release_, releaseAll_, refuse_, forget_, onPaper_, notOnPaper_}) {
        row->addWidget(button);
    }
    row->addStretch(1);
}

QPushButton* HeldPanel::add(const char* name, const QString& text, const QString& hint,
                            void (HeldPanel::*run)()) {
    auto* button = new QPushButton(text, this);
    button->setObjectName(QLatin1StringView(name));
    button->setToolTip(hint);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, run);
    return button;
}

// A job that only sets the printer up goes with the one behind it, and is shown only where
// there is something to be said of it.
std::vector<const HeldEntry*> HeldPanel::shown() const {
    std::vector<const HeldEntry*> entries;
    for (const HeldEntry& entry : desk_.entries()) {
        if (!entries.empty() && entries.back()->setsUp && entries.back()->job.remark.empty()) {
            entries.pop_back();
        }
        entries.push_back(&entry);
    }
    return entries;
}

void HeldPanel::refresh() {
    const std::optional<int> before = chosen();
    const std::vector<const HeldEntry*> entries = shown();
    const QSignalBlocker quiet(table_);
    table_->setRowCount(static_cast<int>(entries.size()));
    int row = 0;
    int present = -1;
    for (const HeldEntry* entry : entries) {
        fill(row, *entry);
        present = entry->job.number == before ? row : present;
        ++row;
    }
    present >= 0 ? table_->selectRow(present) : table_->clearSelection();
    queue_->setText(queueText(desk_));
    enable();
}

void HeldPanel::fill(int row, const HeldEntry& entry) {
    const auto put = [&](int column, const QString& text) {
        auto* item = new QTableWidgetItem(text);
        item->setToolTip(text);
        item->setData(Qt::UserRole, entry.job.number);
        if (entry.job.state == State::PassedOn) {
            item->setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
        }
        table_->setItem(row, column, item);
    };
    put(numberColumn, QString::number(entry.job.number));
    put(timeColumn, arrivalOf(entry.job));
    put(nameColumn, QString::fromStdString(entry.job.name));
    const auto findings = findings_.find(entry.job.number);
    put(findingsColumn, findings == findings_.end() ? QString() : findings->second);
    put(stateColumn, stateOf(desk_, entry.job));
}

void HeldPanel::setFindings(int number, const QString& words) {
    findings_[number] = words;
    for (int row = 0; row < table_->rowCount(); ++row) {
        QTableWidgetItem* item = table_->item(row, findingsColumn);
        if (item->data(Qt::UserRole).toInt() == number) {
            item->setText(words);
            item->setToolTip(words);
        }
    }
}

std::optional<int> HeldPanel::chosen() const {
    const QList<QTableWidgetItem*> items = table_->selectedItems();
    return items.isEmpty() ? std::nullopt
                           : std::optional(items.front()->data(Qt::UserRole).toInt());
}

void HeldPanel::choose(int number) {
    for (int row = 0; row < table_->rowCount(); ++row) {
        if (table_->item(row, numberColumn)->data(Qt::UserRole).toInt() == number) {
            const QSignalBlocker quiet(table_);
            table_->selectRow(row);
            table_->scrollToItem(table_->item(row, numberColumn));
        }
    }
    enable();
}

void HeldPanel::enable() {
    const auto number = chosen();
    const HeldEntry* entry = number ? desk_.entry(*number) : nullptr;
    const bool idle = entry != nullptr && !desk_.isLeaving(*number);
    const State state = entry != nullptr ? entry->job.state : State::Held;
    const bool hasQueue = !desk_.queue().isEmpty();
    const bool doubtful = idle && HoldDesk::isDoubtful(entry->job);
    release_->setEnabled(hasQueue && idle && (state == State::Held || state == State::Refused));
    releaseAll_->setEnabled(hasQueue && desk_.count(State::Held) > 0);
    refuse_->setEnabled(idle && state == State::Held);
    forget_->setEnabled(idle && (state == State::Refused || state == State::PassedOn));
    onPaper_->setVisible(doubtful);
    notOnPaper_->setVisible(doubtful);
}

void HeldPanel::release() {
    if (const auto number = chosen()) {
        desk_.release(*number);
    }
}

void HeldPanel::releaseAll() {
    desk_.releaseAll();
}

void HeldPanel::refuse() {
    if (const auto number = chosen()) {
        desk_.refuse(*number);
    }
}

void HeldPanel::forget() {
    if (const auto number = chosen()) {
        emit forgetWanted(*number);
    }
}

void HeldPanel::onPaper() {
    if (const auto number = chosen()) {
        desk_.settle(*number, true);
    }
}

void HeldPanel::notOnPaper() {
    if (const auto number = chosen()) {
        desk_.settle(*number, false);
    }
}

}  // namespace tarn::dotmatrix
