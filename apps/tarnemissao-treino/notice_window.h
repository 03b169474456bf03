// What someone who begins a practice session must know, beside the desk.
#pragma once

#include <QWidget>

namespace tarn::practice {

class SessionFolder;

class NoticeWindow : public QWidget {
    Q_OBJECT

public:
    explicit NoticeWindow(const SessionFolder& folder);

signals:
    void endWanted();
};

// The same as lines for a terminal.
QString noticeText(const SessionFolder& folder);

}  // namespace tarn::practice
