#include "apps/tarnroteiro/printer_picture.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <cstdio>

#include "forms/form_loader.h"
#include "printer/printer_window.h"

namespace tarn {
namespace {

constexpr int width = 1280;
constexpr int height = 820;

bool print(dotmatrix::PaperRoll& roll, const QString& file) {
    QFile job(file);
    if (!job.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tarnroteiro: não há %s; ande primeiro o roteiro do dia.\n",
                     qPrintable(file));
        return false;
    }
    roll.startJob(QFileInfo(file).fileName().toStdString());
    return !roll.feed(job.readAll().toStdString());
}

}  // namespace

bool pictureOfPrinter(const std::string& folder) {
    const QDir sheets(QString::fromStdString(folder));
    dotmatrix::PaperRoll roll{dotmatrix::Dialect{}};
    if (!print(roll, sheets.filePath("job-002.prn")) ||
        !print(roll, sheets.filePath("job-003.prn"))) {
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
    dotmatrix::JobIntake input(roll);
    dotmatrix::PrinterWindow window(roll, input, look);
    window.setWaitingText(QStringLiteral("Esperando trabalhos em 127.0.0.1:9100"));
    window.resize(width, height);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        std::fputs("tarnroteiro: a janela da impressora não abriu.\n", stderr);
        return false;
    }
    return window.grab().save(sheets.filePath("impressora-virtual.png"));
}

}  // namespace tarn
