// What no such client can do without, and no more: a window as large as the desk's, one with text,
// and one request over the desk's line, begun before the windows and waited for.
#include <QMainWindow>
#include <QScreen>
#include <future>

#include "bench/start/end_at_paint.h"
#include "bench/start/text_window.h"
#include "platform/parts/network_part.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        return 1;
    }
    const QApplication program(argc, argv);
    const tarn::bench::EndAtPaint end(QStringLiteral("window"));
    const auto line = tarn::newNetworkLoader(nullptr);
    auto answer = std::async(std::launch::async, [&] { return line->get(argv[1]); });
    QMainWindow desk;
    desk.resize(desk.screen()->availableSize() - QSize(8, 38));
    desk.show();
    QApplication::processEvents();
    if (!answer.get().loaded) {
        return 1;
    }
    QWidget window;
    tarn::bench::showWithText(window);
    return QApplication::exec() + 1;
}
