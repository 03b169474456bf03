#include "apps/tarnimprime/windowless_pages.h"

#include <QGuiApplication>
#include <cstdio>

namespace tarn::print {
namespace {

// What Qt remarks about the machine (no session directory, no theme) is nothing
// that the user could act on; what goes wrong with a page is reported with the page.
void fatalOnly(QtMsgType kind, const QMessageLogContext&, const QString& text) {
    if (kind == QtFatalMsg) {
        std::fprintf(stderr, "tarnimprime: %s\n", qPrintable(text));
    }
}

// The platform that a shell may have set needs a display; this one doesn't.
std::unique_ptr<QGuiApplication> noScreen() {
#ifndef _WIN32
    qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
    qInstallMessageHandler(fatalOnly);
    static char name[] = "tarnimprime";
    static char* words[] = {name, nullptr};
    static int count = 1;
    return std::make_unique<QGuiApplication>(count, words);
}

}  // namespace

WindowlessPages::WindowlessPages(const std::shared_ptr<JobFiles>& files)
    : printer_(files ? std::make_unique<QtPrinter>(files) : std::make_unique<QtPrinter>()) {}

WindowlessPages::~WindowlessPages() = default;

std::optional<PrinterFailure> WindowlessPages::perform(const PrintOperation& operation) {
    if (!application_ && draws(operation)) {
        application_ = noScreen();
    }
    return printer_->perform(operation);
}

}  // namespace tarn::print
