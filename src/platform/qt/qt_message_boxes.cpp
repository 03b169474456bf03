#include "platform/qt/qt_message_boxes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>

#include "platform/qt/input_gate.h"

namespace tarn {
namespace {

QMessageBox::Icon iconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Information:
            return QMessageBox::Information;
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
        case BoxIcon::Question:
            return QMessageBox::Question;
        case BoxIcon::Critical:
            return QMessageBox::Critical;
        case BoxIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

void addButtons(QMessageBox& box, BoxButtons buttons) {
    if (buttons == BoxButtons::Ok) {
        box.setStandardButtons(QMessageBox::Ok);
        box.button(QMessageBox::Ok)->setText(QStringLiteral("OK"));
        return;
    }
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.button(QMessageBox::Yes)->setText(QStringLiteral("&Sim"));
    box.button(QMessageBox::No)->setText(QStringLiteral("&Não"));
    box.setDefaultButton(QMessageBox::Yes);
    box.setEscapeButton(QMessageBox::No);
}

QWidget* windowInFront() {
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    return QApplication::activeWindow();
}

// An arrow over the box, also when a routine that shows the hourglass asks.
class ArrowCursor {
public:
    ArrowCursor() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowCursor() { QGuiApplication::restoreOverrideCursor(); }
    ArrowCursor(const ArrowCursor&) = delete;
    ArrowCursor& operator=(const ArrowCursor&) = delete;
};

}  // namespace

QString linesOnScreen(const std::string& text) {
    QString shown = QString::fromStdString(text);
    shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    shown.replace(u'\r', u'\n');
    return shown;
}

BoxAnswer QtMessageBoxes::show(const Box& box) {
    const TicksWait noTicks(InputGate::ofApplication());
    const ArrowCursor arrow;
    QMessageBox window(windowInFront());
    window.setObjectName(QStringLiteral("MessageBox"));
    window.setWindowModality(Qt::ApplicationModal);
    window.setTextFormat(Qt::PlainText);
    window.setWindowTitle(QString::fromStdString(box.title));
    window.setText(linesOnScreen(box.text));
    window.setIcon(iconOf(box.icon));
    addButtons(window, box.buttons);
    const int answer = window.exec();
    if (box.buttons == BoxButtons::Ok) {
        return BoxAnswer::Ok;
    }
    return answer == QMessageBox::Yes ? BoxAnswer::Yes : BoxAnswer::No;
}

}  // namespace tarn
