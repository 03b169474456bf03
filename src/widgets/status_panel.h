// A panel of the status bar: one line of plain text. What it has no room for ends in three
// dots, and its tool tip then shows the whole.
#pragma once

#include <QLabel>

namespace tarn {

class StatusPanel : public QLabel {
    Q_OBJECT

public:
    // `what` says to a screen reader what the value is.
    StatusPanel(const char* name, const QString& what, QWidget* parent);

    bool isCut() const;

    // Its text asks for no width.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QRect textRect() const;
};

}  // namespace tarn
