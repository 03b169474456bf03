// Jobs from a directory: each *.prn file is one, in the order of the numbers in their
// names. A file that still grows is printed as it grows, and a file that is written anew
// is a new job. Where the intake keeps jobs, a file is one when it has stopped growing, and
// goes out of the folder when the job is kept.
#pragma once

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QMap>
#include <QTimer>
#include <chrono>
#include <deque>

#include "printer/intake/job_intake.h"

namespace tarn::dotmatrix {

class FolderWatch : public QObject {
    Q_OBJECT

public:
    // `intake` must outlive this. Begins with the files that are there already, once the
    // event loop turns; a folder that isn't there yet is waited for.
    FolderWatch(JobIntake& intake, const QString& folder);

    // Looks now; a timer does so anyway several times a second.
    void look();
    // How long a file that is to be kept must not have grown.
    void setSettling(std::chrono::milliseconds settling) { settling_ = settling; }

private:
    struct Seen {
        qint64 taken = 0;  // bytes
        QDateTime written;
        bool done = false;  // a later change is a new job
    };
    bool hasNews(const QFileInfo& file) const;
    bool isSettled(const QFileInfo& file) const;
    void list();
    bool jobWaits();
    QString sourceOf(const QString& name) const;
    void endOpen(const QString& remark);
    void takePiece(const QString& name);
    void readOn(const QString& name, Seen& seen);
    void rest(bool atOnce);

    JobIntake& intake_;
    QDir folder_;
    QFileSystemWatcher watcher_;
    QTimer timer_;
    QTimer soon_;  // there is more to read
    QMap<QString, Seen> seen_;
    std::deque<QString> waiting_;  // those with news that were listed and not taken yet
    QString open_;                 // the file whose job is being taken; empty for none
    int quiet_ = 0;                // looks since it last grew
    std::chrono::milliseconds settling_{1000};
};

}  // namespace tarn::dotmatrix
