// The least window in which something could be typed. It shows text, so it loads a font as any
// window of a program does.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tarn::bench {

// Its name is the one that EndAtPaint waits for.
inline void showWithText(QWidget& window) {
    window.setObjectName(QStringLiteral("window"));
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel(QStringLiteral("Usuário"), &window));
    layout->addWidget(new QLineEdit(&window));
    window.show();
}

}  // namespace tarn::bench
