#include "apps/tarnimprime/windowless_pages.h"

#include <QGuiApplication>
#include <cstdio>

namespace tarn::imprime {
namespace {

// What Qt remarks about the machine (no session directory, no theme) is nothing
// that the user could act on; what goes wrong with a page is told by the page.
void soOFatal(QtMsgType tipo, const QMessageLogContext&, const QString& texto) {
    if (tipo == QtFatalMsg) {
        std::fprintf(stderr, "tarnimprime: %s\n", qPrintable(texto));
    }
}

// The platform that a shell may have set needs a display; this one doesn't.
std::unique_ptr<QGuiApplication> semTela() {
#ifndef _WIN32
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    qInstallMessageHandler(soOFatal);
    static char nome[] = "tarnimprime";
    static char* palavras[] = {nome, nullptr};
    static int quantas = 1;
    return std::make_unique<QGuiApplication>(quantas, palavras);
}

}  // namespace

PaginasSemJanela::PaginasSemJanela(const std::shared_ptr<JobFiles>& files)
    : impressora_(files ? std::make_unique<QtPrinter>(files) : std::make_unique<QtPrinter>()) {}

PaginasSemJanela::~PaginasSemJanela() = default;

std::optional<PrinterFailure> PaginasSemJanela::perform(const PrintOperation& operation) {
    if (!aplicacao_ && draws(operation)) {
        aplicacao_ = semTela();
    }
    return impressora_->perform(operation);
}

}  // namespace tarn::imprime
