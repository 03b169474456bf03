#include "printer/intake/job_server.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTime>
#include <algorithm>
#include <utility>

#include "printer/intake/sender_end.h"

namespace tarn::dotmatrix {

// A connection, which its sender sees open until the job is taken.
class JobServer::Sender : public QTcpSocket {
public:
    Sender(qintptr handle, QObject* parent) : QTcpSocket(parent), end_(handle) {
        setSocketDescriptor(handle);
    }
    // Its job is taken, or it has sent none.
    void letGo() { end_.close(); }

private:
    SenderEnd end_;
};

namespace {

constexpr std::chrono::seconds patience(60);

QString nameOf(const QTcpSocket& socket) {
    return QStringLiteral("rede %1, %2")
        .arg(socket.peerAddress().toString(), QTime::currentTime().toString("HH:mm:ss"));
}

bool hasSent(const QTcpSocket* socket) {
    return socket->bytesAvailable() > 0;
}

bool isGone(const QTcpSocket* socket) {
    return !hasSent(socket) && socket->state() == QAbstractSocket::UnconnectedState;
}

}  // namespace

JobServer::JobServer(JobIntake& intake) : intake_(intake) {
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, [this] {
        if (current_ != nullptr && nextJob() != waiting_.end()) {
            finish(QStringLiteral("a conexão ficou em silêncio e outros trabalhos esperavam."));
        }
    });
    connect(&intake_, &JobIntake::idle, this, &JobServer::readSome, Qt::QueuedConnection);
}

JobServer::~JobServer() {
    close();
    for (Sender* socket : waiting_) {
        socket->disconnect(this);
    }
    if (current_ != nullptr) {
        current_->disconnect(this);
    }
}

void JobServer::incomingConnection(qintptr handle) {
    auto* socket = new Sender(handle, this);
    // What is more waits in the sender.
    socket->setReadBufferSize(JobIntake::readAtOnce);
    if (socket->socketDescriptor() == -1 || !makeRoom()) {
        socket->letGo();  // what it may have sent makes a reset of it all the same
        delete socket;
        return;
    }
    waiting_.push_back(socket);
    connect(socket, &QTcpSocket::readyRead, this, &JobServer::startNext);
    connect(socket, &QTcpSocket::disconnected, this, &JobServer::startNext);
    startNext();
}

std::size_t JobServer::waitingJobs() const {
    return static_cast<std::size_t>(std::ranges::count_if(waiting_, hasSent));
}

JobServer::Waiting::iterator JobServer::nextJob() {
    return std::ranges::find_if(waiting_, hasSent);
}

// False where every connection that waits has sent something.
bool JobServer::makeRoom() {
    if (waiting_.size() < mostWaiting) {
        return true;
    }
    const auto silent = std::ranges::find_if_not(waiting_, hasSent);
    if (silent == waiting_.end()) {
        return false;
    }
    (*silent)->disconnect(this);
    (*silent)->letGo();
    (*silent)->deleteLater();
    waiting_.erase(silent);
    return true;
}

// Whenever a connection that waits sends something or goes.
void JobServer::startNext() {
    std::erase_if(waiting_, [this](Sender* socket) {
        if (isGone(socket)) {
            socket->disconnect(this);
            socket->deleteLater();
        }
        return isGone(socket);
    });
    const auto next = nextJob();
    if (current_ != nullptr || next == waiting_.end()) {
        return;
    }
    current_ = *next;
    waiting_.erase(next);
    begun_ = false;
    current_->disconnect(this);
    connect(current_, &QTcpSocket::readyRead, this, &JobServer::readSome);
    connect(current_, &QTcpSocket::disconnected, this, &JobServer::readSome);
    patience_.start();
    readSome();
}

void JobServer::readSome() {
    if (current_ == nullptr) {
        return;
    }
    if (current_->bytesAvailable() > 0) {
        if (!begun_) {
            if (!intake_.begin(nameOf(*current_), JobIntake::Kind::Printed)) {
                return;  // a job from elsewhere; its end calls this again
            }
            begun_ = true;
        }
        patience_.start();
        if (!intake_.take(current_->read(JobIntake::readAtOnce))) {
            begun_ = false;  // the intake has ended it
            return finish({});
        }
        if (current_->bytesAvailable() > 0) {
            QMetaObject::invokeMethod(this, &JobServer::readSome, Qt::QueuedConnection);
            return;
        }
    }
    if (current_->state() == QAbstractSocket::UnconnectedState) {
        const bool whole = current_->error() == QAbstractSocket::RemoteHostClosedError ||
                           current_->error() == QAbstractSocket::UnknownSocketError;
        finish(whole ? QString()
                     : QStringLiteral("a conexão foi interrompida (%1); o papel tem o que chegou.")
                           .arg(current_->errorString()));
    }
}

// The intake ends the job first: it is on the disk when the sender sees its connection close.
void JobServer::finish(const QString& remark) {
    patience_.stop();
    Sender* sender = current_;
    current_ = nullptr;
    sender->disconnect(this);
    sender->abort();
    if (std::exchange(begun_, false) && intake_.end(remark)) {
        sender->letGo();
    }
    sender->deleteLater();
    startNext();
}

}  // namespace tarn::dotmatrix
