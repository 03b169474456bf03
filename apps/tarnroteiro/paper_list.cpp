#include "apps/tarnroteiro/paper_list.h"

#include <QDir>
#include <QFile>

namespace tarn {
namespace {

struct Entry {
    QString document;
    QString job;
};

QString listIn(const QString& folder) {
    return QDir(folder).filePath(QStringLiteral("papel.txt"));
}

QList<Entry> entriesIn(const QString& folder) {
    QList<Entry> entries;
    QFile list(listIn(folder));
    if (list.open(QIODevice::ReadOnly)) {
        while (!list.atEnd()) {
            const QString line = QString::fromUtf8(list.readLine()).trimmed();
            entries.append(
                {line.section(QLatin1Char(' '), 0, 0), line.section(QLatin1Char(' '), 1)});
        }
    }
    return entries;
}

}  // namespace

void listJobs(const QString& folder, const QString& document) {
    QStringList jobs = QDir(folder).entryList(
        {QStringLiteral("job-*.prn"), QStringLiteral("job-*.pdf")}, QDir::Files, QDir::Name);
    for (const Entry& entry : entriesIn(folder)) {
        jobs.removeAll(entry.job);
    }
    QFile list(listIn(folder));
    if (!list.open(QIODevice::Append)) {
        qFatal("não foi possível gravar %s", qPrintable(list.fileName()));
    }
    for (const QString& job : jobs) {
        list.write((document + QLatin1Char(' ') + job + QLatin1Char('\n')).toUtf8());
    }
}

QStringList jobsOf(const QString& folder, const QString& document) {
    QStringList jobs;
    for (const Entry& entry : entriesIn(folder)) {
        if (entry.document == document) {
            jobs.append(QDir(folder).filePath(entry.job));
        }
    }
    return jobs;
}

}  // namespace tarn
