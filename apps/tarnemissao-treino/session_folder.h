// The folder of a practice session: its paper, its database, what its programs told.
#pragma once

#include <QLockFile>
#include <QString>
#include <QStringList>
#include <memory>

namespace tarn::practice {

class SessionFolder {
public:
    // Empty: the user's own one.
    explicit SessionFolder(const QString& path);

    // Makes the folder and removes what the session before left in it. What is in the way, as
    // a text for the user; empty: nothing.
    QString open();

    QString path() const { return path_; }
    QString file(const QString& name) const;
    // The raw jobs that have been printed, in their order.
    QStringList rawJobs() const;

private:
    QString path_;
    std::unique_ptr<QLockFile> lock_;
};

}  // namespace tarn::practice
