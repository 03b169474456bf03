#include "apps/tarnemissao-treino/session_folder.h"

#include <QDir>
#include <QStandardPaths>

namespace tarn::practice {
namespace {

QString usualFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/tarnemissao/treino");
}

// What a session leaves in its folder, which may hold files of the user.
QStringList ownFiles() {
    return {QStringLiteral("job-*.prn"),      QStringLiteral("job-*.kind"),
            QStringLiteral("job-*.pdf"),      QStringLiteral("nota.pdf"),
            QStringLiteral("treino.db*"),     QStringLiteral("servidor.txt"),
            QStringLiteral("impressora.txt"), QStringLiteral("mesa.txt")};
}

}  // namespace

SessionFolder::SessionFolder(const QString& path)
    : path_(QDir(path.isEmpty() ? usualFolder() : path).absolutePath()) {}

QString SessionFolder::open() {
    QDir folder(path_);
    const bool made = folder.mkpath(QStringLiteral("."));
    lock_ = std::make_unique<QLockFile>(file(QStringLiteral("treino.lock")));
    lock_->setStaleLockTime(0);  // a session may take days; one that died is seen by its process
    if (made && lock_->tryLock(0)) {
        for (const QString& name : folder.entryList(ownFiles(), QDir::Files)) {
            folder.remove(name);
        }
        return {};
    }
    if (made && lock_->error() == QLockFile::LockFailedError) {
        return QStringLiteral(
                   "Já há um treino aberto, na pasta %1. Use a mesa dele, ou feche-a e "
                   "comece de novo.")
            .arg(path_);
    }
    return QStringLiteral(
               "Não foi possível gravar na pasta do treino, %1. Confira a permissão e o "
               "espaço em disco, ou dê outra pasta com --pasta.")
        .arg(path_);
}

QString SessionFolder::file(const QString& name) const {
    return QDir(path_).filePath(name);
}

QStringList SessionFolder::rawJobs() const {
    QStringList jobs;
    for (const QString& name :
         QDir(path_).entryList({QStringLiteral("job-*.prn")}, QDir::Files, QDir::Name)) {
        jobs += file(name);
    }
    return jobs;
}

}  // namespace tarn::practice
