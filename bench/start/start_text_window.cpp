// The peer: the least window in which something could be typed. It shows text, so it
// loads a font as any window of a program does.
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "bench/start/end_at_paint.h"

int main(int argc, char** argv) {
    const QApplication program(argc, argv);
    const tarn::bench::EndAtPaint end(QStringLiteral("window"));
    QWidget window;
    window.setObjectName(QStringLiteral("window"));
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel(QStringLiteral("Usuário"), &window));
    layout->addWidget(new QLineEdit(&window));
    window.show();
    return QApplication::exec() + 1;
}
