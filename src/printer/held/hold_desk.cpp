#include "printer/held/hold_desk.h"

#include <QDateTime>
#include <QFile>
#include <algorithm>

#include "dotmatrix/set_up.h"
#include "runtime/file_names.h"

namespace tarn::dotmatrix {

namespace {

using hold::State;
using std::chrono::milliseconds;

constexpr milliseconds betweenLooks(100);
// A job that only sets the printer up has a few bytes.
constexpr std::size_t headBytes = 512;

std::int64_t now() {
    return QDateTime::currentMSecsSinceEpoch();
}

// Behind its size and its time.
QString fileOf(const std::string& source) {
    return QString::fromStdString(source).section(u' ', 2);
}

}  // namespace

HoldDesk::HoldDesk(MakeSpooler makeSpooler) : makeSpooler_(std::move(makeSpooler)) {
    worker_.setMaxThreadCount(1);
    clock_.setInterval(betweenLooks);
    connect(&clock_, &QTimer::timeout, this, &HoldDesk::workOn);
}

HoldDesk::~HoldDesk() {
    worker_.waitForDone();
}

QString HoldDesk::open(const QString& folder) {
    auto opened = std::make_unique<hold::HoldFolder>(QFile::encodeName(folder).toStdString());
    if (const auto wrong = opened->open()) {
        return QString::fromStdString(*wrong);
    }
    folder_ = std::move(opened);
    entries_.clear();
    for (const hold::Job& job : folder_->jobs()) {
        entries_.push_back({.job = job});
        const auto bytes = job.size <= headBytes ? bytesOf(job.number) : std::nullopt;
        entries_.back().setsUp = bytes && onlySetsUp(bytes->toStdString());
    }
    emit changed();
    return {};
}

void HoldDesk::showHeld(JobIntake& intake) {
    for (const HeldEntry& entry : entries_) {
        if (entry.job.state == State::PassedOn || entry.job.state == State::Refused) {
            continue;
        }
        const auto bytes = bytesOf(entry.job.number);
        if (bytes && intake.begin(QString::fromStdString(entry.job.name), JobIntake::Kind::LookedAt,
                                  entry.job.kind)) {
            if (intake.take(*bytes)) {
                intake.end();
            }
            emit kept(entry.job.number);
        }
    }
}

void HoldDesk::passTo(const QString& queue, std::optional<milliseconds> after) {
    queue_ = queue;
    after_ = after;
    released_.clear();
    notBefore_ = 0;
    clock_.start();
    emit changed();
}

HeldEntry* HoldDesk::find(int number) {
    const auto place = std::ranges::lower_bound(
        entries_, number, {}, [](const HeldEntry& entry) { return entry.job.number; });
    return place != entries_.end() && place->job.number == number ? &*place : nullptr;
}

const HeldEntry* HoldDesk::entry(int number) const {
    return const_cast<HoldDesk*>(this)->find(number);
}

std::size_t HoldDesk::count(State state) const {
    return static_cast<std::size_t>(std::ranges::count_if(
        entries_,
        [state](const HeldEntry& entry) { return entry.job.state == state && !entry.setsUp; }));
}

std::optional<QByteArray> HoldDesk::bytesOf(int number) const {
    const HeldEntry* known = entry(number);
    if (known == nullptr) {
        return std::nullopt;
    }
    QFile file(QString::fromStdString(nameOf(folder_->bytesOf(known->job))));
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

bool HoldDesk::isLeaving(int number) const {
    return working_ == number || std::ranges::find(released_, number) != released_.end();
}

bool HoldDesk::isDoubtful(const hold::Job& job) {
    return job.state == State::HandingOver && !job.remark.empty();
}

// The jobs right before it that only set the printer up belong to it.
std::vector<int> HoldDesk::withSetUp(int number) const {
    std::vector<int> numbers{number};
    auto place = std::ranges::find_if(
        entries_, [number](const HeldEntry& entry) { return entry.job.number == number; });
    const bool leaves = place != entries_.end() && !place->setsUp;
    while (leaves && place != entries_.begin()) {
        --place;
        const bool open = place->job.state == State::Held || place->job.state == State::Refused;
        if (!place->setsUp || !open) {
            break;
        }
        numbers.insert(numbers.begin(), place->job.number);
    }
    return numbers;
}

void HoldDesk::release(int number) {
    if (queue_.isEmpty()) {
        return;
    }
    for (const int one : withSetUp(number)) {
        const HeldEntry* known = entry(one);
        const bool open = known != nullptr &&
                          (known->job.state == State::Held || known->job.state == State::Refused);
        if (open && !isLeaving(one)) {
            released_.push_back(one);
        }
    }
    notBefore_ = 0;
    emit changed();
    workOn();
}

void HoldDesk::releaseAll() {
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (entries_[i].job.state == State::Held) {
            release(entries_[i].job.number);
        }
    }
}

void HoldDesk::refuse(int number) {
    for (const int one : withSetUp(number)) {
        HeldEntry* known = find(one);
        if (known == nullptr || working_ == one) {
            continue;
        }
        std::erase(released_, one);
        if (known->job.state == State::Held || isDoubtful(known->job)) {
            folder_->move(known->job, State::Refused);
        }
    }
    emit changed();
}

void HoldDesk::forget(int number) {
    for (const int one : withSetUp(number)) {
        const HeldEntry* known = entry(one);
        const bool over = known != nullptr && (known->job.state == State::Refused ||
                                               known->job.state == State::PassedOn);
        if (over && working_ != one && folder_->remove(known->job)) {
            std::erase_if(entries_,
                          [one](const HeldEntry& entry) { return entry.job.number == one; });
        }
    }
    emit changed();
}

void HoldDesk::settle(int number, bool isOnPaper) {
    HeldEntry* known = find(number);
    if (known == nullptr || !isDoubtful(known->job) || working_ == number) {
        return;
    }
    known->job.remark.clear();
    folder_->move(known->job, isOnPaper ? State::PassedOn : State::Held);
    emit changed();
    workOn();
}

bool HoldDesk::begin() {
    incomingHead_.clear();
    incomingSize_ = 0;
    return folder_->begin();
}

bool HoldDesk::add(std::string_view bytes) {
    incomingSize_ += bytes.size();
    incomingHead_.append(bytes.substr(0, headBytes - std::min(headBytes, incomingHead_.size())));
    return folder_->add(bytes);
}

// What came by half is kept, and never leaves by itself.
bool HoldDesk::keep(const Arrival& arrival) {
    const bool whole = arrival.remark.isEmpty();
    const auto job = folder_->keep({.state = whole ? State::Held : State::Refused,
                                    .name = arrival.name.toStdString(),
                                    .source = arrival.source.toStdString(),
                                    .remark = arrival.remark.toStdString(),
                                    .arrived = now(),
                                    .kind = arrival.kind});
    if (!job) {
        return false;
    }
    entries_.push_back(
        {.job = *job, .setsUp = incomingSize_ <= headBytes && onlySetsUp(incomingHead_)});
    emit kept(job->number);
    emit changed();
    return true;
}

void HoldDesk::drop() {
    folder_->drop();
}

bool HoldDesk::knows(const QString& source) const {
    const std::string text = source.toStdString();
    return std::ranges::any_of(
        entries_, [&text](const HeldEntry& entry) { return entry.job.source == text; });
}

// In their order: none overtakes one that waits or of which the queue can't tell.
std::optional<int> HoldDesk::nextByItself() const {
    if (!after_) {
        return std::nullopt;
    }
    for (const HeldEntry& entry : entries_) {
        if (entry.job.state == State::HandingOver) {
            return std::nullopt;
        }
        if (entry.job.state == State::Held) {
            return entry.job.arrived + after_->count() <= now() ? std::optional(entry.job.number)
                                                                : std::nullopt;
        }
    }
    return std::nullopt;
}

void HoldDesk::workOn() {
    if (!isOpen() || queue_.isEmpty() || working_ || now() < notBefore_) {
        return;
    }
    // What a crash, or a queue that fell silent, left open comes first.
    const auto open = std::ranges::find_if(entries_, [](const HeldEntry& entry) {
        return entry.job.state == State::HandingOver &&
               (entry.job.remark.empty() || entry.job.remark == spoolerIsSilent);
    });
    if (open != entries_.end()) {
        return startTask(*open);
    }
    const std::optional<int> next =
        released_.empty() ? nextByItself() : std::optional(released_.front());
    if (next) {
        if (const HeldEntry* known = entry(*next)) {
            startTask(*known);
        } else {
            std::erase(released_, *next);
        }
    }
}

void HoldDesk::startTask(const HeldEntry& entry) {
    working_ = entry.job.number;
    worker_.start([this, job = entry.job, queue = queue_.toStdString()]() mutable {
        const bool settling = job.state == State::HandingOver;
        if (const std::unique_ptr<Spooler> spooler = makeSpooler_()) {
            hold::HandOver over(*folder_, *spooler, queue);
            settling ? static_cast<void>(over.settle(job)) : over.pass(job);
        } else {
            job.remark = "esta máquina não tem serviço de impressão";
        }
        QMetaObject::invokeMethod(
            this, [this, job, settling] { taskEnded(job, settling); }, Qt::QueuedConnection);
    });
}

void HoldDesk::taskEnded(const hold::Job& job, bool wasSettling) {
    working_.reset();
    if (HeldEntry* known = find(job.number)) {
        known->job = job;
    }
    if (job.state == State::PassedOn) {
        std::erase(released_, job.number);
        forgetOld();
        emit passedOn(job.number);
    } else if (!wasSettling || !job.remark.empty()) {
        released_.clear();
        notBefore_ = now() + pause_.count();
        emit troubled(job.number, QStringLiteral("O trabalho %1 continua retido: %2.")
                                      .arg(job.number)
                                      .arg(QString::fromStdString(job.remark)));
        if (isDoubtful(job) && job.remark != spoolerIsSilent) {
            notBefore_ = 0;
            emit doubted(job.number);
        }
    }
    emit changed();
    workOn();
}

// A file that is there still would be taken for a new job.
void HoldDesk::forgetOld() {
    std::size_t over = static_cast<std::size_t>(std::ranges::count_if(
        entries_, [](const HeldEntry& entry) { return entry.job.state == State::PassedOn; }));
    std::erase_if(entries_, [&](const HeldEntry& entry) {
        if (over <= mostPassedOn || entry.job.state != State::PassedOn) {
            return false;
        }
        --over;
        const QString file = fileOf(entry.job.source);
        return (file.isEmpty() || !QFile::exists(file)) && folder_->remove(entry.job);
    });
}

}  // namespace tarn::dotmatrix
