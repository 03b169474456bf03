// Where all jobs enter the printer, from the network and from folders, one after the other, in
// pieces as they arrive.
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include "dotmatrix/paper_roll.h"

namespace tarn::dotmatrix {

class JobIntake : public QObject {
    Q_OBJECT

public:
    static constexpr qint64 maxJobBytes = 64LL * 1024 * 1024;

    // `roll` must outlive this.
    explicit JobIntake(PaperRoll& roll, qint64 mostJobBytes = maxJobBytes);

    bool busy() const { return busy_; }
    // False while another job is being taken; `idle` tells when to ask again.
    bool begin(const QString& name);
    // Prints the bytes at once. False when the job is over its size or the disk is full:
    // it is ended then, with a remark, and takes no more.
    bool take(const QByteArray& bytes);
    // `remark` (Portuguese) says what went wrong with the job, empty for nothing.
    void end(const QString& remark = {});

    std::size_t ended() const { return ended_; }

signals:
    void changed();
    void jobEnded(const QString& name, const QString& remark);
    void idle();

private:
    PaperRoll& roll_;
    qint64 mostJobBytes_;
    bool busy_ = false;
    QString name_;
    qint64 taken_ = 0;
    std::size_t ended_ = 0;
};

}  // namespace tarn::dotmatrix
