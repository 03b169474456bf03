// The least that Qt can show: a window with nothing in it.
#include "bench/start/end_at_paint.h"

int main(int argc, char** argv) {
    const QApplication program(argc, argv);
    const tarn::bench::EndAtPaint end(QStringLiteral("window"));
    QWidget window;
    window.setObjectName(QStringLiteral("window"));
    window.show();
    return QApplication::exec() + 1;
}
