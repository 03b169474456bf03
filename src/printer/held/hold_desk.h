// The held jobs of the virtual printer: keeps what comes in, and passes it on to a queue of
// the machine when the user says so, or by itself after a time. The queue is spoken to in a
// thread of its own, one job after the other.
#pragma once

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "hold/hand_over.h"
#include "hold/hold_folder.h"
#include "printer/intake/job_intake.h"

namespace tarn::dotmatrix {

// A job in the list.
struct HeldEntry {
    hold::Job job;
    bool setsUp = false;  // it only sets the printer up, for the job behind it
};

class HoldDesk : public QObject, public JobKeeper {
    Q_OBJECT

public:
    using MakeSpooler = std::function<std::unique_ptr<Spooler>()>;
    // So many jobs that were passed on stay in the list, the latest.
    static constexpr std::size_t mostPassedOn = 200;

    explicit HoldDesk(MakeSpooler makeSpooler);
    ~HoldDesk() override;

    // Keeps jobs in this folder from now on, and finds those that are there. What is wrong,
    // a whole sentence; empty for nothing.
    QString open(const QString& folder);
    bool isOpen() const { return folder_ != nullptr; }

    // What is still held on the paper again, in its order.
    void showHeld(JobIntake& intake);

    // Where released jobs go. `after` so long they release themselves; nothing: never.
    void passTo(const QString& queue, std::optional<std::chrono::milliseconds> after);
    const QString& queue() const { return queue_; }
    std::optional<std::chrono::milliseconds> after() const { return after_; }
    // Between two tries of a queue that takes no job.
    void setPause(std::chrono::milliseconds pause) { pause_ = pause; }

    const std::vector<HeldEntry>& entries() const { return entries_; }
    const HeldEntry* entry(int number) const;
    std::size_t count(hold::State state) const;  // without those that only set up
    std::optional<QByteArray> bytesOf(int number) const;
    // A job waits for the queue to take it.
    bool isLeaving(int number) const;
    // The queue can't say whether it has it.
    static bool isDoubtful(const hold::Job& job);

    // With the job that sets the printer up for it.
    void release(int number);
    void releaseAll();
    void refuse(int number);
    // Of one that was refused or passed on: no longer on the disk.
    void forget(int number);
    // The user has looked whether a doubtful job is on the paper.
    void settle(int number, bool isOnPaper);

    bool begin() override;
    bool add(std::string_view bytes) override;
    bool keep(const Arrival& arrival) override;
    void drop() override;
    bool knows(const QString& source) const override;

signals:
    void changed();
    void kept(int number);  // while the paper's last job is the job's
    // A job goes nowhere for now; a whole sentence.
    void troubled(int number, const QString& text);
    void doubted(int number);
    void passedOn(int number);

private:
    HeldEntry* find(int number);
    std::vector<int> withSetUp(int number) const;
    void workOn();
    std::optional<int> nextByItself() const;
    void startTask(const HeldEntry& entry);
    void taskEnded(const hold::Job& job, bool wasSettling);
    void forgetOld();

    MakeSpooler makeSpooler_;
    std::unique_ptr<hold::HoldFolder> folder_;
    QString queue_;
    std::optional<std::chrono::milliseconds> after_;
    std::chrono::milliseconds pause_{5000};
    std::int64_t notBefore_ = 0;  // milliseconds since 1970: the queue is left alone
    std::vector<HeldEntry> entries_;
    std::deque<int> released_;    // by the user, in their order
    std::optional<int> working_;  // the job that is being handed over
    std::string incomingHead_;    // the first bytes of the job that comes in
    std::uintmax_t incomingSize_ = 0;
    QTimer clock_;
    QThreadPool worker_;
};

}  // namespace tarn::dotmatrix
