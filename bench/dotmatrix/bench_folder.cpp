// Jobs that wait in a folder when the virtual printer opens it: what one costs among many
// against one among few.
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cstdlib>

#include "bench/support/measure.h"
#include "printer/intake/folder_watch.h"

namespace {

using tarn::bench::ratioOf;
using tarn::bench::secondsOf;

constexpr int fewJobs = 200;
constexpr int manyJobs = 4'000;
constexpr int rounds = 5;

QString folderOf(const QTemporaryDir& folder, int jobs) {
    QDir().mkpath(folder.filePath(QString::number(jobs)));
    const QDir inside(folder.filePath(QString::number(jobs)));
    for (int job = 1; job <= jobs; ++job) {
        QFile file(inside.filePath(QStringLiteral("job-%1.prn").arg(job, 3, 10, QChar(u'0'))));
        if (!file.open(QIODevice::WriteOnly) || file.write("um\r\ndois\r\n\f") < 0) {
            std::fprintf(stderr, "the temporary directory takes no more\n");
            std::exit(2);
        }
    }
    return inside.path();
}

// Of one job, from an open folder to the last of them on the paper.
double secondsOfAJob(const QString& folder, int jobs) {
    tarn::dotmatrix::PaperRoll roll({});
    tarn::dotmatrix::JobIntake intake(roll);
    tarn::dotmatrix::FolderWatch watch(intake, folder);
    return secondsOf([&] {
               while (intake.ended() < static_cast<std::size_t>(jobs)) {
                   QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
               }
           }) /
           jobs;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString few = folderOf(folder, fewJobs);
    const QString many = folderOf(folder, manyJobs);
    std::vector<double> ofFew;
    std::vector<double> ofMany;
    for (int round = 0; round < rounds; ++round) {
        ofFew.push_back(secondsOfAJob(few, fewJobs));
        ofMany.push_back(secondsOfAJob(many, manyJobs));
    }
    tarn::bench::Limits limits;
    limits.check("a job of 4,000 that wait in a folder over one of 200", ratioOf(ofMany, ofFew),
                 1.30);
    return limits.exitStatus();
}
