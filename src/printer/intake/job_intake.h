// Where all jobs enter the printer, from the network and from folders, one after the other, in
// pieces as they arrive.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>
#include <optional>
#include <string>

#include "dotmatrix/paper_roll.h"
#include "forms/job_papers.h"
#include "platform/job_kind.h"
#include "printer/intake/job_keeper.h"

namespace tarn::dotmatrix {

class JobIntake : public QObject {
    Q_OBJECT

public:
    static constexpr qint64 maxJobBytes = 64LL * 1024 * 1024;
    static constexpr qint64 readAtOnce = 256LL * 1024;  // of a file or a sender

    // Jobs from elsewhere are for the printer; what the user opens is only looked at.
    enum class Kind { Printed, LookedAt };

    // `roll` must outlive this.
    explicit JobIntake(PaperRoll& roll, qint64 mostJobBytes = maxJobBytes);

    // Jobs to be printed are kept there too; null for nowhere. It must outlive this.
    void keepIn(JobKeeper* keeper) { keeper_ = keeper; }
    JobKeeper* keeper() const { return keeper_; }

    bool busy() const { return busy_; }
    // Some of the job under way is on the paper already. One that doesn't say what it prints
    // comes there when it is whole, or too slow or long for that: then it may be known by its
    // bytes.
    bool isOnPaper() const { return busy_ && onPaper_; }
    // False while another job is being taken; `idle` tells when to ask again.
    // `told` is what the job says that it prints.
    bool begin(const QString& name, Kind kind = Kind::LookedAt, const JobKind& told = {});
    // Prints the bytes at once. False when the job is over its size or the disk is full:
    // it is ended then, with a remark, and takes no more.
    bool take(const QByteArray& bytes);
    // `remark` (Portuguese) says what went wrong with the job, empty for nothing; `source`
    // as in Arrival. False when the job should have been kept and could not be.
    bool end(const QString& remark = {}, const QString& source = {});

    std::size_t ended() const { return ended_; }

signals:
    void changed();
    void jobEnded(const QString& name, const QString& remark);
    void idle();

private:
    void putOnPaper(JobPaper paper);
    bool give(const QString& remark, const QString& source);
    void giveUp();
    void finish(const QString& remark);

    PaperRoll& roll_;
    JobPapers papers_;
    JobKeeper* keeper_ = nullptr;
    qint64 mostJobBytes_;
    bool busy_ = false;
    bool keeping_ = false;  // the job under way
    bool lost_ = false;     // it could not be kept
    QString name_;
    JobKind kind_;  // of the job under way
    qint64 taken_ = 0;
    bool onPaper_ = false;
    std::string heldBack_;            // of the job under way, not yet on the paper
    std::optional<QString> failure_;  // of putting it there
    QTimer patience_;
    std::size_t ended_ = 0;
};

}  // namespace tarn::dotmatrix
