// Job files of the user's choice, printed one after the other, a piece at a time.
#pragma once

#include <QFile>
#include <QObject>
#include <QStringList>
#include <memory>

#include "printer/intake/job_intake.h"

namespace tarn::dotmatrix {

class JobFiles : public QObject {
    Q_OBJECT

public:
    // `intake` must outlive this.
    JobFiles(JobIntake& intake, QObject* parent);

    void add(const QStringList& files);

signals:
    // A whole sentence for the user.
    void failed(const QString& text);

private:
    void take();

    JobIntake& intake_;
    QStringList waiting_;
    std::unique_ptr<QFile> file_;  // being taken
};

}  // namespace tarn::dotmatrix
