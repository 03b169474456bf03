#include "apps/tarnemissao-treino/piece.h"

#include <QCoreApplication>
#include <QDir>

#include "apps/tarnemissao-treino/tie.h"

#ifdef Q_OS_LINUX
#include <csignal>
#endif

namespace tarn::practice {
namespace {

constexpr int mostRestarts = 3;
constexpr int endPatienceMs = 3000;

// A signal by which somebody asks a program to end; of a program that a signal ended, Qt tells
// the signal's number as its status.
bool wasAskedToEnd([[maybe_unused]] int signal) {
#ifdef Q_OS_LINUX
    return signal == SIGTERM || signal == SIGINT || signal == SIGHUP;
#else
    return false;
#endif
}

}  // namespace

Piece::Piece(const QString& program, const QString& told, QObject* parent)
    : QObject(parent), program_(program) {
    tieBeforeStart(process_);
    process_.setStandardErrorFile(told, QIODevice::Append);
    connect(&process_, &QProcess::readyReadStandardOutput, this, &Piece::read);
    connect(&process_, &QProcess::finished, this, &Piece::finished);
    connect(&process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) {
            emit ended(1, true);
        }
    });
}

Piece::~Piece() {
    stop();
}

void Piece::start(const QStringList& arguments) {
    arguments_ = arguments;
    process_.start(QDir(QCoreApplication::applicationDirPath()).filePath(program_), arguments_);
    tieStarted(process_);
}

void Piece::stop() {
    stopping_ = true;
    if (!isRunning()) {
        return;
    }
    process_.terminate();
    if (!process_.waitForFinished(endPatienceMs)) {
        process_.kill();
        process_.waitForFinished(endPatienceMs);
    }
}

void Piece::read() {
    while (process_.canReadLine()) {
        emit said(QString::fromUtf8(process_.readLine()).trimmed());
    }
}

void Piece::finished(int status, QProcess::ExitStatus how) {
    if (stopping_) {
        return;
    }
    if (how == QProcess::NormalExit || wasAskedToEnd(status)) {
        emit ended(how == QProcess::NormalExit ? status : 0, false);
    } else if (restarts_ < mostRestarts) {
        ++restarts_;
        start(arguments_);
    } else {
        emit ended(status, true);
    }
}

}  // namespace tarn::practice
