#include "apps/tarnroteiro/printer_picture.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <cstdio>

#include "forms/form_loader.h"
#include "printer/printer_window.h"

namespace tarn {
namespace {

constexpr int largura = 1280;
constexpr int altura = 820;

bool imprime(dotmatrix::PaperRoll& rolo, const QString& arquivo) {
    QFile trabalho(arquivo);
    if (!trabalho.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "tarnroteiro: não há %s; ande primeiro o roteiro do dia.\n",
                     qPrintable(arquivo));
        return false;
    }
    rolo.startJob(QFileInfo(arquivo).fileName().toStdString());
    return !rolo.feed(trabalho.readAll().toStdString());
}

}  // namespace

bool retrataImpressora(const std::string& pasta) {
    const QDir folhas(QString::fromStdString(pasta));
    dotmatrix::PaperRoll rolo{dotmatrix::Dialect{}};
    if (!imprime(rolo, folhas.filePath("job-002.prn")) ||
        !imprime(rolo, folhas.filePath("job-003.prn"))) {
        return false;
    }
    const auto formulario = dotmatrix::loadForm("ImprimeNF_1361");
    if (const auto* erro = std::get_if<QString>(&formulario)) {
        std::fprintf(stderr, "tarnroteiro: %s\n", qPrintable(*erro));
        return false;
    }
    dotmatrix::PaintOptions aparencia;
    aparencia.bands = true;
    dotmatrix::lay(std::get<dotmatrix::LoadedForm>(formulario), aparencia);
    dotmatrix::JobIntake entrada(rolo);
    dotmatrix::PrinterWindow janela(rolo, entrada, aparencia);
    janela.setWaitingText(QStringLiteral("Esperando trabalhos em 127.0.0.1:9100"));
    janela.resize(largura, altura);
    janela.show();
    if (!QTest::qWaitForWindowExposed(&janela)) {
        std::fputs("tarnroteiro: a janela da impressora não abriu.\n", stderr);
        return false;
    }
    return janela.grab().save(folhas.filePath("impressora-virtual.png"));
}

}  // namespace tarn
