// A raw network printer: each connection is a job. Connections wait for each other, and
// what they send waits in the sender meanwhile.
#pragma once

#include <QTcpServer>
#include <QTimer>
#include <chrono>
#include <deque>

#include "printer/job_intake.h"

class QTcpSocket;

namespace tarn::dotmatrix {

inline constexpr quint16 rawPort = 9100;

class JobServer : public QTcpServer {
    Q_OBJECT

public:
    // More connections than these are turned away.
    static constexpr std::size_t mostWaiting = 64;

    // `intake` must outlive this. listen() as of QTcpServer.
    explicit JobServer(JobIntake& intake);
    ~JobServer() override;

    // A silent connection ends after this time when others wait behind it.
    void setPatience(std::chrono::milliseconds patience) { patience_.setInterval(patience); }
    std::size_t waiting() const { return waiting_.size(); }

protected:
    void incomingConnection(qintptr handle) override;

private:
    void startNext();
    void readSome();
    void finish(const QString& remark);

    JobIntake& intake_;
    std::deque<QTcpSocket*> waiting_;  // in the order of arrival
    QTcpSocket* current_ = nullptr;
    bool begun_ = false;  // the current connection has sent something
    QTimer patience_;
};

}  // namespace tarn::dotmatrix
