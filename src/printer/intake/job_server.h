// A raw network printer: each connection is a job. Connections wait for each other, and
// what they send waits in the sender meanwhile. One that has sent nothing is no job yet and
// keeps none waiting. A connection is closed when its job is taken, and reset when it isn't.
#pragma once

#include <QTcpServer>
#include <QTimer>
#include <chrono>
#include <deque>

#include "printer/intake/job_intake.h"

namespace tarn::dotmatrix {

inline constexpr quint16 rawPort = 9100;

class JobServer : public QTcpServer {
    Q_OBJECT

public:
    // Where so many wait, the oldest that has sent nothing goes; where all have sent
    // something, the new one is turned away.
    static constexpr std::size_t mostWaiting = 64;

    // `intake` must outlive this. listen() as of QTcpServer.
    explicit JobServer(JobIntake& intake);
    ~JobServer() override;

    // A connection that falls silent ends after this time when jobs wait behind it.
    void setPatience(std::chrono::milliseconds patience) { patience_.setInterval(patience); }
    std::size_t waiting() const { return waiting_.size(); }
    std::size_t waitingJobs() const;  // those of them that have sent something

protected:
    void incomingConnection(qintptr handle) override;

private:
    class Sender;
    using Waiting = std::deque<Sender*>;

    Waiting::iterator nextJob();
    bool makeRoom();
    void startNext();
    void readSome();
    void finish(const QString& remark);

    JobIntake& intake_;
    Waiting waiting_;            // in the order of arrival
    Sender* current_ = nullptr;  // has sent something
    bool begun_ = false;         // the intake has taken of it
    QTimer patience_;
};

}  // namespace tarn::dotmatrix
