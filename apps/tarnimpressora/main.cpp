// A virtual dot-matrix printer: raw jobs in, continuous paper out.
#include <QFile>
#include <QGuiApplication>
#include <cstdio>
#include <string>
#include <utility>
#include <variant>

#include "dotmatrix/escp_interpreter.h"
#include "dotmatrix/paper_export.h"
#include "options.h"

namespace {

using tarn::impressora::Ending;
using tarn::impressora::Options;

constexpr std::size_t kNoticesShown = 50;

void complain(const QString& text) {
    std::fputs(("tarnimpressora: " + text + "\n").toUtf8().constData(), stderr);
}

bool readJob(const std::string& file, QByteArray& bytes) {
    QFile in(QFile::decodeName(file.c_str()));
    // A directory opens on some systems and then reads as nothing.
    if (in.open(QIODevice::ReadOnly)) {
        bytes = in.readAll();
        if (in.error() == QFileDevice::NoError) {
            return true;
        }
    }
    complain(QStringLiteral("não foi possível ler o trabalho \"%1\" (%2). "
                            "Confira o nome do arquivo e a permissão de leitura.")
                 .arg(in.fileName(), in.errorString()));
    return false;
}

bool print(const Options& options, tarn::dotmatrix::EscpInterpreter& printer) {
    std::vector<QByteArray> jobs(options.jobs.size());
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        if (!readJob(options.jobs[i], jobs[i])) {
            return false;
        }
    }
    for (std::size_t i = 0; i < jobs.size(); ++i) {
        printer.startJob(options.jobs[i]);
        printer.feed({jobs[i].constData(), static_cast<std::size_t>(jobs[i].size())});
    }
    return true;
}

void showNotices(const tarn::dotmatrix::NoticeLog& notices) {
    std::size_t shown = 0;
    for (const auto& notice : notices.kept()) {
        if (shown == kNoticesShown) {
            break;
        }
        std::fputs(("aviso: " + describe(notice) + "\n").c_str(), stderr);
        ++shown;
    }
    if (notices.total() > shown) {
        std::fputs(("aviso: e mais " + std::to_string(notices.total() - shown) + "\n").c_str(),
                   stderr);
    }
}

bool written(const std::optional<QString>& failure, const std::string& file) {
    if (failure) {
        complain(QStringLiteral("não foi possível gravar \"%1\" (%2). "
                                "Confira a pasta, a permissão e o espaço em disco.")
                     .arg(QFile::decodeName(file.c_str()), *failure));
    }
    return !failure;
}

bool writeAll(const Options& options, const tarn::dotmatrix::ContinuousPaper& paper) {
    const tarn::dotmatrix::PaintOptions looks{options.bands, QString::fromStdString(options.title)};
    const auto name = [](const std::string& file) { return QFile::decodeName(file.c_str()); };
    return (options.pdf.empty() ||
            written(writePdf(paper, looks, name(options.pdf)), options.pdf)) &&
           (options.png.empty() ||
            written(writePng(paper, looks, name(options.png)), options.png)) &&
           (options.text.empty() || written(writeText(paper, name(options.text)), options.text));
}

int run(int argc, char** argv) {
    const auto read = tarn::impressora::readCommandLine(argc, argv);
    if (const auto* ending = std::get_if<Ending>(&read)) {
        std::fputs(ending->text.c_str(), ending->status == 0 ? stdout : stderr);
        return ending->status;
    }
    const auto& options = std::get<Options>(read);

    // Files need fonts, not a display, and what the toolkit misses of one is no matter.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    const QGuiApplication application(argc, argv);
    tarn::dotmatrix::ContinuousPaper paper(options.dialect.formHeight);
    tarn::dotmatrix::EscpInterpreter printer(paper, options.dialect);
    if (!print(options, printer)) {
        return 1;
    }
    showNotices(printer.notices());
    return writeAll(options, paper) ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    return run(argc, argv);
}
