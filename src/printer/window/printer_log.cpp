#include "printer/window/printer_log.h"

#include <QMainWindow>
#include <QPlainTextEdit>

namespace tarn::dotmatrix {

namespace {

constexpr int mostLines = 2000;

}  // namespace

PrinterLog::PrinterLog(QMainWindow& window)
    : QDockWidget(QStringLiteral("Registro"), &window), text_(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("logPanel"));
    text_->setObjectName(QStringLiteral("log"));
    text_->setAccessibleName(QStringLiteral("Registro da impressora"));
    text_->setReadOnly(true);
    text_->setMaximumBlockCount(mostLines);
    setWidget(text_);
    window.addDockWidget(Qt::BottomDockWidgetArea, this);
    hide();
}

void PrinterLog::add(const QString& line) {
    text_->appendPlainText(line);
}

void PrinterLog::addNotices(const NoticeLog& notices) {
    for (; told_ < notices.total(); ++told_) {
        if (told_ >= notices.kept().size()) {
            add(QStringLiteral("e mais %1 avisos.").arg(notices.total() - told_));
            told_ = notices.total();
            return;
        }
        add(QString::fromStdString(describe(notices.kept()[told_])));
    }
}

}  // namespace tarn::dotmatrix
