// Jobs from a directory: each *.prn file is one, in the order of the numbers in their
// names. A file that still grows is printed as it grows, and a file that is written anew
// is a new job.
#pragma once

#include <QDateTime>
#include <QDir>
#include <QFileSystemWatcher>
#include <QMap>
#include <QTimer>

#include "printer/job_intake.h"

namespace tarn::dotmatrix {

class FolderWatch : public QObject {
    Q_OBJECT

public:
    // `intake` must outlive this. Begins with the files that are there already, once the
    // event loop turns.
    FolderWatch(JobIntake& intake, const QString& folder);

    // Looks now; a timer does so anyway several times a second.
    void look();

private:
    struct Seen {
        qint64 taken = 0;  // bytes
        QDateTime written;
        bool done = false;  // a later change is a new job
    };
    bool hasNews(const QString& name) const;
    void takePiece(const QString& name);
    void readOn(const QString& name, Seen& seen);
    void rest(bool atOnce);

    JobIntake& intake_;
    QDir folder_;
    QFileSystemWatcher watcher_;
    QTimer timer_;
    QTimer soon_;  // there is more to read
    QMap<QString, Seen> seen_;
    QString open_;   // the file whose job is being taken; empty for none
    int quiet_ = 0;  // looks since it last grew
};

}  // namespace tarn::dotmatrix
