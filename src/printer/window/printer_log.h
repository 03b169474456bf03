// The log of the printer: how jobs ended, and what of them was not printed.
#pragma once

#include <QDockWidget>

#include "dotmatrix/print_notice.h"

class QMainWindow;
class QPlainTextEdit;

namespace tarn::dotmatrix {

class PrinterLog : public QDockWidget {
    Q_OBJECT

public:
    explicit PrinterLog(QMainWindow& window);

    void add(const QString& line);
    // Those that came since the last call.
    void addNotices(const NoticeLog& notices);
    // The paper was printed again: its notices have been told.
    void skipNotices(const NoticeLog& notices) { told_ = notices.total(); }

private:
    QPlainTextEdit* text_;
    std::size_t told_ = 0;
};

}  // namespace tarn::dotmatrix
