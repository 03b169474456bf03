// A walk through the real screens by clicks and keys: one step after the other,
// each as soon as its window is there.
#pragma once

#include <QObject>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

namespace tarn {

class Walk : public QObject {
    Q_OBJECT

public:
    // Pictures go to `folder` as `passo-01-NAME.png`.
    explicit Walk(QString folder);

    using Step = std::function<void(QWidget& window)>;
    // Waits until the window in front (modal, else a visible one) has this object name,
    // takes its picture under `name` unless that is empty, and acts. A message box that
    // isn't awaited ends the walk.
    Walk& when(const QString& window, const QString& name, Step step);

    // From now on the steps run in the event loop. A window that doesn't come within the
    // time limit ends the walk.
    void start();
    bool complete() const { return steps_.empty(); }

    void photograph(QWidget& window, const QString& name);
    // What came out of the printer since the last time is of this document (paper_list.h).
    void printed(const QString& document);

signals:
    // `reason` is empty when every step was taken.
    void finished(const QString& reason);

private:
    struct Wait {
        QString window;
        QString name;
        Step step;
    };
    void look();
    void finish(const QString& reason);
    QWidget* frontWindow(const QString& name) const;

    QString folder_;
    std::deque<Wait> steps_;
    QTimer clock_;
    int looks_ = 0;
    int photos_ = 0;
};

}  // namespace tarn
