#include "printer/paper/paper_files.h"

#include <QDir>
#include <QPrinter>
#include <QProgressDialog>
#include <algorithm>

#include "printer/paper/paper_print.h"

namespace tarn::dotmatrix {

namespace {

constexpr int progressAfter = 400;  // milliseconds

QString savedIn(const QString& file) {
    return QStringLiteral("Gravado em %1").arg(QDir::toNativeSeparators(file));
}

}  // namespace

PaperFiles::PaperFiles(PaperRoll& roll, const PaintOptions& options,
                       const WindowQuestions& questions, QWidget& window)
    : QObject(&window), roll_(roll), options_(options), questions_(questions), window_(window) {}

QString PaperFiles::askName(const QString& title, const QString& ending,
                            const QString& kinds) const {
    return questions_.saveAs(title, proposal_() + ending, kinds);
}

void PaperFiles::writeOut(
    const QString& what, const QString& done,
    const std::function<std::optional<QString>(const WriteProgress&)>& write) {
    QProgressDialog progress(what, QStringLiteral("Interromper"), 0,
                             static_cast<int>(roll_.printedForms()), &window_);
    progress.setObjectName(QStringLiteral("progress"));
    progress.setWindowTitle(window_.windowTitle());
    progress.setWindowModality(Qt::WindowModal);
    progress.setMinimumDuration(progressAfter);
    const auto failure = write([&progress](std::size_t form) {
        progress.setValue(static_cast<int>(form));
        return !progress.wasCanceled();
    });
    const bool stopped = progress.wasCanceled();
    progress.reset();
    if (failure && !stopped) {
        emit failed(QStringLiteral("Não foi possível gravar o papel (%1). Confira a pasta, a "
                                   "permissão e o espaço em disco, e tente de novo.")
                        .arg(*failure));
    } else if (!stopped) {
        emit saved(done);
    }
}

void PaperFiles::savePdf() {
    const QString file = askName(QStringLiteral("Salvar PDF"), QStringLiteral(".pdf"),
                                 QStringLiteral("PDF (*.pdf)"));
    if (!file.isEmpty()) {
        writeOut(QStringLiteral("Gravando o PDF..."), savedIn(file),
                 [&](const WriteProgress& progress) {
                     return writePdf(roll_.pages(), options_, file, progress);
                 });
    }
}

void PaperFiles::savePng() {
    const QString file = askName(QStringLiteral("Salvar figuras"), QStringLiteral(".png"),
                                 QStringLiteral("Figuras (*.png)"));
    if (!file.isEmpty()) {
        writeOut(QStringLiteral("Gravando as figuras..."), savedIn(file),
                 [&](const WriteProgress& progress) {
                     return writePng(roll_.pages(), options_, file, progress);
                 });
    }
}

void PaperFiles::saveText() {
    const QString file = askName(QStringLiteral("Salvar texto"), QStringLiteral(".txt"),
                                 QStringLiteral("Texto (*.txt)"));
    if (!file.isEmpty()) {
        writeOut(QStringLiteral("Gravando o texto..."), savedIn(file),
                 [&](const WriteProgress&) { return writeText(roll_.pages(), file); });
    }
}

void PaperFiles::printOut() {
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(QStringLiteral("Papel da impressora virtual"));
    printer.setFromTo(1, static_cast<int>(roll_.printedForms()));
    if (!questions_.print(printer)) {
        return;
    }
    const int from = std::max(1, printer.fromPage());
    const int to =
        printer.toPage() < from ? static_cast<int>(roll_.printedForms()) : printer.toPage();
    writeOut(QStringLiteral("Imprimindo..."),
             QStringLiteral("Papel enviado a %1.").arg(printer.printerName()),
             [&](const WriteProgress& progress) {
                 return printPaper(printer, roll_.pages(), static_cast<std::size_t>(from - 1),
                                   static_cast<std::size_t>(to - 1), options_, progress);
             });
}

}  // namespace tarn::dotmatrix
