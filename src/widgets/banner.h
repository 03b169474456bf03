// The decorative band over the working area.
#pragma once

#include <QWidget>

namespace tarn {

class Banner : public QWidget {
    Q_OBJECT

public:
    explicit Banner(QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace tarn
