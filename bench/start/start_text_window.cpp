// The peer: a window with text, and nothing else.

#include "bench/start/end_at_paint.h"
#include "bench/start/text_window.h"

int main(int argc, char** argv) {
    const QApplication program(argc, argv);
    const tarn::bench::EndAtPaint end(QStringLiteral("window"));
    QWidget window;
    tarn::bench::showWithText(window);
    return QApplication::exec() + 1;
}
