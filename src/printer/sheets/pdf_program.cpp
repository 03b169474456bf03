#include "printer/sheets/pdf_program.h"

#include <chrono>

namespace tarn::dotmatrix {

namespace {

constexpr std::chrono::seconds longestRun(30);
constexpr qsizetype mostOutput = 128LL * 1024 * 1024;  // bytes

}  // namespace

PdfProgram::PdfProgram() {
    patience_.setSingleShot(true);
    patience_.setInterval(longestRun);
    connect(&patience_, &QTimer::timeout, this, [this] { finish(End::Failed); });
}

PdfProgram::~PdfProgram() {
    if (process_ != nullptr) {
        process_->disconnect(this);
        process_->kill();
        process_->waitForFinished();
    }
}

void PdfProgram::run(const QString& program, const QStringList& arguments, Done done) {
    done_ = std::move(done);
    output_.clear();
    process_ = std::make_unique<QProcess>();
    process_->setStandardErrorFile(QProcess::nullDevice());
    process_->setStandardInputFile(QProcess::nullDevice());
    connect(process_.get(), &QProcess::readyReadStandardOutput, this, &PdfProgram::take);
    connect(process_.get(), &QProcess::finished, this, [this](int code, QProcess::ExitStatus how) {
        take();
        if (process_ != nullptr) {
            finish(how == QProcess::NormalExit && code == 0 ? End::Good : End::Failed);
        }
    });
    // It is told before `start` returns where there is no such program.
    connect(
        process_.get(), &QProcess::errorOccurred, this,
        [this](QProcess::ProcessError error) {
            if (error == QProcess::FailedToStart && process_ != nullptr) {
                finish(End::NotInstalled);
            }
        },
        Qt::QueuedConnection);
    patience_.start();
    process_->start(program, arguments, QIODevice::ReadOnly);
}

void PdfProgram::take() {
    if (process_ == nullptr) {
        return;
    }
    output_ += process_->readAllStandardOutput();
    if (output_.size() > mostOutput) {
        finish(End::Failed);
    }
}

void PdfProgram::finish(End end) {
    patience_.stop();
    process_->disconnect(this);
    process_->kill();
    process_.release()->deleteLater();  // it may be what called
    const Done done = std::move(done_);
    const QByteArray output = std::move(output_);
    output_ = {};
    done(end, output);
}

}  // namespace tarn::dotmatrix
