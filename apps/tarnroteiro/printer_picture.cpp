#include "apps/tarnroteiro/printer_picture.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QStatusBar>
#include <QTest>
#include <algorithm>
#include <cstdio>

#include "apps/tarnroteiro/gestures.h"
#include "apps/tarnroteiro/paper_list.h"
#include "apps/tarnroteiro/photo.h"
#include "forms/form_loader.h"
#include "platform/job_kind.h"
#include "printer/window/printer_window.h"
#include "runtime/file_names.h"

namespace tarn {
namespace {

constexpr int width = 1000;
constexpr int height = 690;

bool print(dotmatrix::JobIntake& input, const QString& file) {
    QFile job(file);
    if (!job.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tarnroteiro: não há %s.\n", qPrintable(file));
        return false;
    }
    return input.begin(QFileInfo(file).fileName(), dotmatrix::JobIntake::Kind::Printed,
                       jobKindBeside(pathOf(file.toStdString()))) &&
           input.take(job.readAll()) && input.end();
}

bool printNote(dotmatrix::JobIntake& input, const QString& folder) {
    const QStringList jobs = jobsOf(folder, QStringLiteral("nota"));
    if (jobs.isEmpty()) {
        std::fprintf(stderr, "tarnroteiro: não há nota em %s; ande primeiro o roteiro do dia.\n",
                     qPrintable(folder));
    }
    return !jobs.isEmpty() &&
           std::ranges::all_of(jobs, [&](const QString& job) { return print(input, job); });
}

// With the list of what the paper shows cut.
QPixmap checked(dotmatrix::PrinterWindow& window) {
    constexpr int limit = 10'000;  // milliseconds
    child<QAction>(window, "checkPaper").trigger();
    const auto& result = child<QLabel>(window, "checkResult");
    if (!QTest::qWaitFor([&result] { return result.text().contains(u"lugar"); }, limit)) {
        std::fputs("tarnroteiro: a conferência não achou nada no papel.\n", stderr);
        return {};
    }
    window.view().showTop(0);
    return photoOf(window);
}

}  // namespace

bool pictureOfPrinter(const std::string& folder) {
    const QDir sheets(QString::fromStdString(folder));
    dotmatrix::PaperRoll roll{dotmatrix::Dialect{}};
    dotmatrix::JobIntake input(roll);
    if (!printNote(input, sheets.path())) {
        return false;
    }
    const auto form = dotmatrix::loadForm("ImprimeNF_1361");
    if (const auto* error = std::get_if<QString>(&form)) {
        std::fprintf(stderr, "tarnroteiro: %s\n", qPrintable(*error));
        return false;
    }
    dotmatrix::PaintOptions look;
    look.bands = true;
    dotmatrix::lay(std::get<dotmatrix::LoadedForm>(form), look);
    dotmatrix::HoldDesk held({});
    dotmatrix::PrinterWindow window(roll, input, held, look);
    window.setWaitingText(QStringLiteral("Imprimindo da pasta %1").arg(sheets.path()));
    window.resize(width, height);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        std::fputs("tarnroteiro: a janela da impressora não abriu.\n", stderr);
        return false;
    }
    // The paper stands at its end: back to where the note begins.
    child<QAction>(window, "previousJob").trigger();
    window.statusBar()->clearMessage();
    return photoOf(window).save(sheets.filePath("impressora-virtual.png")) &&
           checked(window).save(sheets.filePath("impressora-conferencia.png"));
}

}  // namespace tarn
