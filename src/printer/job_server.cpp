#include "printer/job_server.h"

#include <QHostAddress>
#include <QTcpSocket>
#include <QTime>

namespace tarn::dotmatrix {

namespace {

constexpr qint64 readAtOnce = 256LL * 1024;
constexpr std::chrono::seconds patience(60);

QString nameOf(const QTcpSocket& socket) {
    return QStringLiteral("rede %1, %2")
        .arg(socket.peerAddress().toString(), QTime::currentTime().toString("HH:mm:ss"));
}

}  // namespace

JobServer::JobServer(JobIntake& intake) : intake_(intake) {
    patience_.setInterval(patience);
    connect(&patience_, &QTimer::timeout, this, [this] {
        if (current_ != nullptr && !waiting_.empty()) {
            finish(QStringLiteral("a conexão ficou em silêncio e outros trabalhos esperavam."));
        }
    });
    connect(&intake_, &JobIntake::idle, this, &JobServer::readSome, Qt::QueuedConnection);
}

JobServer::~JobServer() {
    close();
    for (QTcpSocket* socket : waiting_) {
        socket->disconnect(this);
    }
    if (current_ != nullptr) {
        current_->disconnect(this);
    }
}

void JobServer::incomingConnection(qintptr handle) {
    auto* socket = new QTcpSocket(this);
    // What is more waits in the sender.
    socket->setReadBufferSize(readAtOnce);
    if (!socket->setSocketDescriptor(handle) || waiting_.size() >= mostWaiting) {
        delete socket;
        return;
    }
    waiting_.push_back(socket);
    startNext();
}

void JobServer::startNext() {
    if (current_ != nullptr || waiting_.empty()) {
        return;
    }
    current_ = waiting_.front();
    waiting_.pop_front();
    begun_ = false;
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
            if (!intake_.begin(nameOf(*current_))) {
                return;  // a job from elsewhere; its end calls this again
            }
            begun_ = true;
        }
        patience_.start();
        if (!intake_.take(current_->read(readAtOnce))) {
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

void JobServer::finish(const QString& remark) {
    patience_.stop();
    QTcpSocket* socket = current_;
    current_ = nullptr;
    socket->disconnect(this);
    socket->abort();
    socket->deleteLater();
    if (begun_) {
        begun_ = false;
        intake_.end(remark);
    }
    startNext();
}

}  // namespace tarn::dotmatrix
