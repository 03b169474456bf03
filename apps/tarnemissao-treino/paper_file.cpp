#include "apps/tarnemissao-treino/paper_file.h"

#include <QCoreApplication>
#include <QDir>
#include <chrono>

namespace tarn::practice {
namespace {

using namespace std::chrono_literals;

constexpr auto calm = 500ms;  // a document may be several jobs
constexpr int patienceMs = 20000;

}  // namespace

PaperFile::PaperFile(const SessionFolder& folder, QObject* parent)
    : QObject(parent), folder_(folder) {
    calm_.setSingleShot(true);
    calm_.setInterval(calm);
    printer_.setStandardOutputFile(QProcess::nullDevice());
    printer_.setStandardErrorFile(QProcess::nullDevice());
    watcher_.addPath(folder_.path());
    connect(&watcher_, &QFileSystemWatcher::directoryChanged, &calm_, qOverload<>(&QTimer::start));
    connect(&calm_, &QTimer::timeout, this, &PaperFile::write);
}

void PaperFile::write() {
    const QStringList jobs = folder_.rawJobs();
    if (jobs.isEmpty()) {
        return;
    }
    if (printer_.state() != QProcess::NotRunning) {
        calm_.start();
        return;
    }
    printer_.start(
        QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("tarnimpressora")),
        QStringList{QStringLiteral("--pdf"), folder_.file(QStringLiteral("nota.pdf"))} + jobs);
}

void PaperFile::finish() {
    printer_.waitForFinished(patienceMs);
    calm_.stop();
    write();
    printer_.waitForFinished(patienceMs);
}

}  // namespace tarn::practice
