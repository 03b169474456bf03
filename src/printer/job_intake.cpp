#include "printer/job_intake.h"

namespace tarn::dotmatrix {

namespace {

QString notKept() {
    return QStringLiteral(
        "não foi possível guardar o trabalho na pasta dos retidos; ele não foi aceito. Libere "
        "espaço em disco e imprima de novo.");
}

}  // namespace

JobIntake::JobIntake(PaperRoll& roll, qint64 mostJobBytes)
    : roll_(roll), mostJobBytes_(mostJobBytes) {}

bool JobIntake::begin(const QString& name, Kind kind, const JobKind& told) {
    if (busy_) {
        return false;
    }
    busy_ = true;
    name_ = name;
    kind_ = told;
    taken_ = 0;
    keeping_ = keeper_ != nullptr && kind == Kind::Printed;
    lost_ = keeping_ && !keeper_->begin();
    roll_.startJob(name.toStdString(), {.form = forms_.formOf(told), .told = true});
    emit changed();
    return true;
}

bool JobIntake::take(const QByteArray& bytes) {
    const qint64 room = mostJobBytes_ - taken_;
    const auto count = static_cast<std::size_t>(std::min<qint64>(bytes.size(), room));
    const std::string_view piece(bytes.constData(), count);
    lost_ = lost_ || (keeping_ && !keeper_->add(piece));
    if (lost_) {
        finish(notKept());
        return false;
    }
    const auto failure = roll_.feed(piece);
    taken_ += static_cast<qint64>(count);
    emit changed();
    if (!failure && bytes.size() <= room) {
        return true;
    }
    if (keeping_) {
        keeper_->drop();
    }
    finish(failure
               ? QStringLiteral("não foi possível guardar o trabalho (%1); o resto foi desprezado. "
                                "Libere espaço em disco e imprima de novo.")
                     .arg(*failure)
               : QStringLiteral("o trabalho passa de %1 bytes; o resto foi desprezado.")
                     .arg(mostJobBytes_));
    return false;
}

bool JobIntake::end(const QString& remark, const QString& source) {
    const bool given = give(remark, source);
    finish(given ? remark : notKept());
    return given;
}

bool JobIntake::give(const QString& remark, const QString& source) {
    if (!keeping_) {
        return true;
    }
    if (!lost_ && taken_ == 0) {
        keeper_->drop();
        return true;
    }
    return !lost_ && keeper_->keep({name_, source, remark, kind_});
}

void JobIntake::finish(const QString& remark) {
    busy_ = false;
    ++ended_;
    emit jobEnded(name_, remark);
    emit idle();
}

}  // namespace tarn::dotmatrix
