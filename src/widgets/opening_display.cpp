#include "widgets/opening_display.h"

#include <QString>
#include <cstdio>
#include <cstdlib>

namespace tarn {
namespace {

const char* said = nullptr;
QtMessageHandler before = nullptr;

// What Qt remarks on its way to the end tells the user nothing more.
void endWithSentence(QtMsgType kind, const QMessageLogContext&, const QString&) {
    if (kind == QtFatalMsg) {
        std::fputs(said, stderr);
        std::_Exit(1);
    }
}

}  // namespace

OpeningDisplay::OpeningDisplay(const char* sentence) {
    said = sentence;
    before = qInstallMessageHandler(endWithSentence);
}

OpeningDisplay::~OpeningDisplay() {
    qInstallMessageHandler(before);
}

}  // namespace tarn
