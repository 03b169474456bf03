#include "printer/intake/job_intake.h"

#include <chrono>

namespace tarn::dotmatrix {

namespace {

// A sender that is slower is watched as it prints.
constexpr std::chrono::milliseconds longestWait(1500);

QString notKept() {
    return QStringLiteral(
        "não foi possível guardar o trabalho na pasta dos retidos; ele não foi aceito. Libere "
        "espaço em disco e imprima de novo.");
}

}  // namespace

JobIntake::JobIntake(PaperRoll& roll, qint64 mostJobBytes)
    : roll_(roll), mostJobBytes_(mostJobBytes) {
    patience_.setSingleShot(true);
    patience_.setInterval(longestWait);
    connect(&patience_, &QTimer::timeout, this, [this] { putOnPaper(papers_.unknown()); });
}

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
    onPaper_ = false;
    heldBack_.clear();
    failure_.reset();
    if (told.told()) {
        putOnPaper(papers_.told(told));
    } else {
        patience_.start();
    }
    return true;
}

void JobIntake::putOnPaper(JobPaper paper) {
    patience_.stop();
    onPaper_ = true;
    roll_.startJob(name_.toStdString(), std::move(paper));
    failure_ = roll_.feed(heldBack_);
    heldBack_.clear();
    emit changed();
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
    taken_ += static_cast<qint64>(count);
    if (onPaper_) {
        failure_ = failure_ ? failure_ : roll_.feed(piece);
        emit changed();
    } else {
        heldBack_ += piece;
        if (heldBack_.size() > JobRecogniser::mostBytes || bytes.size() > room) {
            putOnPaper(papers_.unknown());
        }
    }
    if (!failure_ && bytes.size() <= room) {
        return true;
    }
    giveUp();
    return false;
}

// Nothing of the job goes any further.
void JobIntake::giveUp() {
    if (keeping_) {
        keeper_->drop();
    }
    finish(failure_
               ? QStringLiteral("não foi possível guardar o trabalho (%1); o resto foi desprezado. "
                                "Libere espaço em disco e imprima de novo.")
                     .arg(*failure_)
               : QStringLiteral("o trabalho passa de %1 bytes; o resto foi desprezado.")
                     .arg(mostJobBytes_));
}

bool JobIntake::end(const QString& remark, const QString& source) {
    if (!onPaper_) {
        putOnPaper(papers_.known(heldBack_));
    }
    if (failure_) {
        const bool given = !keeping_;
        giveUp();
        return given;
    }
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
    patience_.stop();
    busy_ = false;
    ++ended_;
    emit jobEnded(name_, remark);
    emit idle();
}

}  // namespace tarn::dotmatrix
