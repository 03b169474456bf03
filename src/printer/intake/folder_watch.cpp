#include "printer/intake/folder_watch.h"

#include <QDateTime>
#include <QFile>
#include <algorithm>
#include <chrono>

#include "platform/job_kind.h"
#include "printer/job_order.h"
#include "runtime/file_names.h"

namespace tarn::dotmatrix {

namespace {

constexpr int quietLooks = 2;

JobKind kindOfJob(const QString& file) {
    return jobKindBeside(pathOf(file.toStdString()));
}

QString kindFileOf(const QString& job) {
    return QString::fromStdString(nameOf(jobKindFile(pathOf(job.toStdString()))));
}

}  // namespace

FolderWatch::FolderWatch(JobIntake& intake, const QString& folder)
    : intake_(intake), folder_(folder) {
    if (folder_.exists()) {
        watcher_.addPath(folder);
    }
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FolderWatch::look);
    connect(&timer_, &QTimer::timeout, this, &FolderWatch::look);
    connect(&soon_, &QTimer::timeout, this, &FolderWatch::look);
    soon_.setSingleShot(true);
    soon_.setInterval(0);
    soon_.start();
    timer_.start(betweenFolderLooks);
}

bool FolderWatch::hasNews(const QFileInfo& file) const {
    const Seen seen = seen_.value(file.fileName());
    return isSettled(file) &&
           (file.size() != seen.taken || (seen.done && file.lastModified() != seen.written));
}

bool FolderWatch::isSettled(const QFileInfo& file) const {
    return intake_.keeper() == nullptr ||
           file.lastModified().msecsTo(QDateTime::currentDateTime()) >= settling_.count();
}

QString FolderWatch::sourceOf(const QString& name) const {
    const QFileInfo file(folder_, name);
    return QStringLiteral("%1 %2 %3")
        .arg(file.size())
        .arg(file.lastModified().toMSecsSinceEpoch())
        .arg(file.absoluteFilePath());
}

void FolderWatch::look() {
    if (watcher_.directories().isEmpty() && folder_.exists()) {
        watcher_.addPath(folder_.path());
    }
    if (!open_.isEmpty()) {
        const QFileInfo file(folder_, open_);
        if (hasNews(file)) {
            return takePiece(QString(open_));
        }
        if (!isSettled(file)) {
            return;
        }
    }
    if (!jobWaits()) {
        list();
    }
    if (!open_.isEmpty()) {
        rest(jobWaits());
        if (!open_.isEmpty()) {
            return;
        }
    }
    if (jobWaits()) {
        takePiece(QString(waiting_.front()));
    }
}

// Only when none is left of the last time: what a job costs doesn't grow with the folder.
void FolderWatch::list() {
    const QFileInfoList files =
        QDir(folder_.path()).entryInfoList({QStringLiteral("*.prn")}, QDir::Files, QDir::Unsorted);
    for (const QFileInfo& file : files) {
        if (hasNews(file)) {
            waiting_.push_back(file.fileName());
        }
    }
    std::sort(waiting_.begin(), waiting_.end(), comesBefore);
}

bool FolderWatch::jobWaits() {
    while (!waiting_.empty() && !hasNews(QFileInfo(folder_, waiting_.front()))) {
        waiting_.pop_front();
    }
    return !waiting_.empty();
}

void FolderWatch::takePiece(const QString& name) {
    const QFileInfo file(folder_, name);
    Seen& seen = seen_[name];
    if (seen.done || file.size() < seen.taken) {
        if (open_ == name) {  // what was read of it is no longer in the file
            intake_.end();
            open_.clear();
        }
        seen = Seen{};
    }
    if (open_ != name) {
        if (intake_.keeper() != nullptr && intake_.keeper()->knows(sourceOf(name))) {
            QFile::remove(file.filePath());  // kept just before the program ended
            QFile::remove(kindFileOf(file.filePath()));
            return;
        }
        if (file.size() == 0 ||
            !intake_.begin(name, JobIntake::Kind::Printed, kindOfJob(file.filePath()))) {
            return;
        }
        open_ = name;
    }
    seen.written = file.lastModified();
    readOn(name, seen);
}

// One piece a look, so that a long job doesn't hold the window.
void FolderWatch::readOn(const QString& name, Seen& seen) {
    quiet_ = 0;
    QFile file(folder_.filePath(name));
    QByteArray piece;
    if (file.open(QIODevice::ReadOnly) && file.seek(seen.taken)) {
        piece = file.read(JobIntake::readAtOnce);
    }
    seen.taken += piece.size();
    if (piece.isEmpty() || !intake_.take(piece)) {
        if (piece.isEmpty()) {
            endOpen(QStringLiteral("não foi possível ler o arquivo (%1).").arg(file.errorString()));
        }
        open_.clear();
        seen.taken = file.size();
        seen.done = true;
    }
    soon_.start();
}

// A file may still grow while no other waits.
void FolderWatch::rest(bool atOnce) {
    if (!atOnce && ++quiet_ < quietLooks) {
        return;
    }
    quiet_ = 0;
    seen_[open_].done = true;
    endOpen({});
    open_.clear();
}

void FolderWatch::endOpen(const QString& remark) {
    if (intake_.keeper() == nullptr || !remark.isEmpty()) {
        intake_.end(remark);
        return;
    }
    const QString file = folder_.filePath(open_);
    if (intake_.end({}, sourceOf(open_)) && QFile::remove(file)) {
        QFile::remove(kindFileOf(file));
        seen_.remove(open_);
    }
}

}  // namespace tarn::dotmatrix
