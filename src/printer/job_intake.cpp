#include "printer/job_intake.h"

namespace tarn::dotmatrix {

JobIntake::JobIntake(PaperRoll& roll, qint64 mostJobBytes)
    : roll_(roll), mostJobBytes_(mostJobBytes) {}

bool JobIntake::begin(const QString& name) {
    if (busy_) {
        return false;
    }
    busy_ = true;
    name_ = name;
    taken_ = 0;
    roll_.startJob(name.toStdString());
    emit changed();
    return true;
}

bool JobIntake::take(const QByteArray& bytes) {
    const qint64 room = mostJobBytes_ - taken_;
    const auto count = static_cast<std::size_t>(std::min<qint64>(bytes.size(), room));
    const auto failure = roll_.feed({bytes.constData(), count});
    taken_ += static_cast<qint64>(count);
    emit changed();
    if (failure) {
        end(QStringLiteral("não foi possível guardar o trabalho (%1); o resto foi desprezado. "
                           "Libere espaço em disco e imprima de novo.")
                .arg(*failure));
        return false;
    }
    if (bytes.size() > room) {
        end(QStringLiteral("o trabalho passa de %1 bytes; o resto foi desprezado.")
                .arg(mostJobBytes_));
        return false;
    }
    return true;
}

void JobIntake::end(const QString& remark) {
    busy_ = false;
    ++ended_;
    emit jobEnded(name_, remark);
    emit idle();
}

}  // namespace tarn::dotmatrix
