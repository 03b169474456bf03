#include "dotmatrix/intake/folder_watch.h"

#include <QDateTime>
#include <QFile>
#include <algorithm>
#include <chrono>

namespace tarn::dotmatrix {

namespace {

constexpr std::chrono::milliseconds kBetweenLooks(250);
constexpr int kQuietLooks = 2;
constexpr qint64 kReadAtOnce = 256 * 1024;

QStringList jobsIn(QDir folder) {
    folder.refresh();
    QStringList names = folder.entryList({QStringLiteral("*.prn")}, QDir::Files);
    std::sort(names.begin(), names.end(), [](const QString& a, const QString& b) {
        // job-999 before job-1000
        return a.size() != b.size() && a.startsWith(u"job-") && b.startsWith(u"job-")
                   ? a.size() < b.size()
                   : a < b;
    });
    return names;
}

}  // namespace

FolderWatch::FolderWatch(JobIntake& intake, const QString& folder)
    : intake_(intake), folder_(folder) {
    watcher_.addPath(folder);
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, this, &FolderWatch::look);
    connect(&timer_, &QTimer::timeout, this, &FolderWatch::look);
    timer_.start(kBetweenLooks);
    QTimer::singleShot(0, this, &FolderWatch::look);
}

void FolderWatch::look() {
    const QStringList names = jobsIn(folder_);
    for (const QString& name : names) {
        if (!takeFile(name, name == names.back())) {
            return;
        }
    }
}

bool FolderWatch::takeFile(const QString& name, bool last) {
    const QFileInfo file(folder_, name);
    Seen& seen = seen_[name];
    const bool changed = file.size() != seen.taken || file.lastModified() != seen.written;
    if (seen.done && changed) {
        seen = Seen{};
    }
    if (file.size() < seen.taken) {
        if (open_ == name) {
            rest(seen, false);
        }
        seen = Seen{};
    }
    if (file.size() > seen.taken) {
        if (open_ != name) {
            if (!intake_.begin(name)) {
                return false;
            }
            open_ = name;
        }
        seen.written = file.lastModified();
        return readOn(name, seen);
    }
    if (open_ == name) {
        rest(seen, last);
    }
    return open_.isEmpty() || last;
}

// One piece a look, so that a long job doesn't hold the window.
bool FolderWatch::readOn(const QString& name, Seen& seen) {
    quiet_ = 0;
    QFile file(folder_.filePath(name));
    QByteArray piece;
    if (file.open(QIODevice::ReadOnly) && file.seek(seen.taken)) {
        piece = file.read(kReadAtOnce);
    }
    seen.taken += piece.size();
    if (piece.isEmpty() || !intake_.take(piece)) {
        if (piece.isEmpty()) {
            intake_.end(QStringLiteral("não foi possível ler o arquivo (%1).").arg(file.errorString()));
        }
        open_.clear();
        seen.taken = file.size();
        seen.done = true;
        return true;
    }
    QMetaObject::invokeMethod(this, &FolderWatch::look, Qt::QueuedConnection);
    return false;
}

// The last file may still grow; one with another behind it is whole.
void FolderWatch::rest(Seen& seen, bool last) {
    if (last && ++quiet_ < kQuietLooks) {
        return;
    }
    quiet_ = 0;
    open_.clear();
    seen.done = true;
    intake_.end();
}

}  // namespace tarn::dotmatrix
