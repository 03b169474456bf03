#include "apps/tarnimpressora/files.h"

#include <QFile>
#include <cstdio>
#include <vector>

#include "dotmatrix/paper_export.h"
#include "forms/job_papers.h"
#include "platform/job_kind.h"
#include "printer/intake/job_intake.h"
#include "runtime/file_names.h"
#include "runtime/text.h"

namespace tarn::printer {

namespace {

constexpr std::size_t noticesShown = 50;

bool readJob(const std::string& file, QByteArray& bytes) {
    constexpr qint64 most = dotmatrix::JobIntake::maxJobBytes;
    QFile in(QString::fromStdString(file));
    // A directory opens on some systems and then reads as nothing.
    const bool read = in.open(QIODevice::ReadOnly) &&
                      (bytes = in.read(most + 1), in.error() == QFileDevice::NoError);
    if (!read) {
        complain(QStringLiteral("não foi possível ler o trabalho \"%1\" (%2). "
                                "Confira o nome do arquivo e a permissão de leitura.")
                     .arg(in.fileName(), in.errorString()));
    } else if (bytes.size() > most) {
        complain(
            QStringLiteral("o trabalho \"%1\" passa de %2 bytes. Confira o nome do arquivo, ou "
                           "divida o trabalho.")
                .arg(in.fileName())
                .arg(most));
    }
    return read && bytes.size() <= most;
}

bool written(const std::optional<QString>& failure, const std::string& file) {
    if (failure) {
        complain(QStringLiteral("não foi possível gravar \"%1\" (%2). "
                                "Confira a pasta, a permissão e o espaço em disco.")
                     .arg(QString::fromStdString(file), *failure));
    }
    return !failure;
}

}  // namespace

void complain(const QString& text) {
    std::fputs(forTerminal("tarnimpressora: " + text.toStdString() + "\n").c_str(), stderr);
}

bool printFiles(const Options& options, dotmatrix::PaperRoll& roll) {
    std::vector<QByteArray> jobs(options.jobs.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        if (!readJob(options.jobs[i], jobs[i])) {
            return false;
        }
    }
    dotmatrix::JobPapers papers;
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        const std::string_view job(jobs[i].constData(), static_cast<std::size_t>(jobs[i].size()));
        const JobKind kind = jobKindBeside(pathOf(options.jobs[i]));
        roll.startJob(options.jobs[i], kind.told() ? papers.told(kind) : papers.known(job));
        const auto failure = roll.feed(job);
        if (failure) {
            complain(QStringLiteral("não foi possível guardar o trabalho (%1). Libere espaço na "
                                    "pasta temporária.")
                         .arg(*failure));
            return false;
        }
    }
    return true;
}

std::size_t showNotices(const dotmatrix::NoticeLog& notices, std::size_t from) {
    std::size_t shown = 0;
    for (std::size_t i = from; i < notices.kept().size() && shown < noticesShown; ++i) {
        std::fputs(forTerminal("aviso: " + describe(notices.kept()[i]) + "\n").c_str(), stderr);
        ++shown;
    }
    if (notices.total() > from + shown) {
        std::fputs(
            ("aviso: e mais " + std::to_string(notices.total() - from - shown) + "\n").c_str(),
            stderr);
    }
    return notices.total();
}

bool writeFiles(const Options& options, const dotmatrix::PaintOptions& looks,
                dotmatrix::PaperRoll& roll) {
    const auto name = [](const std::string& file) { return QString::fromStdString(file); };
    const dotmatrix::PaperPages paper = roll.pages();
    return (options.pdf.empty() ||
            written(writePdf(paper, looks, name(options.pdf)), options.pdf)) &&
           (options.png.empty() ||
            written(writePng(paper, looks, name(options.png)), options.png)) &&
           (options.text.empty() || written(writeText(paper, name(options.text)), options.text));
}

}  // namespace tarn::printer
