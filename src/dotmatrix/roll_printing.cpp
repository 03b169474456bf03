#include "dotmatrix/roll_printing.h"

#include <algorithm>

namespace tarn::dotmatrix {

namespace {

constexpr qint64 pieceBytes = 16LL * 1024;

}  // namespace

void feedFor(const JobFeed& feed, EscpInterpreter& printer) {
    if (feed.way == JobFeed::Way::ToTop) {
        printer.feedToTop();
    } else if (feed.way == JobFeed::Way::OtherPaper) {
        printer.changePaper(feed.panel, feed.switchedOn);
    }
}

RollReader::RollReader(const RollBytes& bytes, qint64 from)
    : bytes_(bytes),
      at_(from),
      job_(static_cast<std::size_t>(
          std::ranges::lower_bound(bytes.jobs, from, {}, &RollJob::offset) - bytes.jobs.begin())) {}

std::string_view RollReader::next(const std::function<void(std::size_t)>& startJob) {
    const std::vector<RollJob>& jobs = bytes_.jobs;
    for (; job_ < jobs.size() && jobs[job_].offset <= at_; ++job_) {
        startJob(job_);
    }
    const qint64 end = job_ == jobs.size() ? bytes_.length : jobs[job_].offset;
    if (at_ >= end || !bytes_.device.seek(at_)) {
        return {};
    }
    piece_ = bytes_.device.read(std::min(pieceBytes, end - at_));
    at_ += piece_.size();
    return {piece_.constData(), static_cast<std::size_t>(piece_.size())};
}

RollPrinting::RollPrinting(const RollBytes& bytes, const RollMark& from)
    : firstForm_(from.firstWholeForm()),
      paper_(from.position),
      printer_(paper_, from.panel, from.state),
      jobs_(bytes.jobs),
      reader_(bytes, from.offset) {}

bool RollPrinting::printByte() {
    if (piece_.empty()) {
        piece_ = reader_.next([this](std::size_t job) {
            feedFor(jobs_[job].feed, printer_);
            printer_.startJob();
        });
    }
    if (piece_.empty()) {
        return false;
    }
    printer_.feed(piece_.substr(0, 1));
    piece_.remove_prefix(1);
    return true;
}

// Byte by byte, so that nothing of the next form is printed before this one is taken.
void RollPrinting::printUntilBehind(std::size_t form) {
    std::size_t present = paper_.currentForm();
    while (present <= form && printByte()) {
        if (paper_.currentForm() != present) {
            present = paper_.currentForm();
            paper_.forgetFormsBefore(std::min(form, present));
        }
    }
}

FormPage RollPrinting::page(std::size_t form) {
    printUntilBehind(form);
    firstForm_ = form;
    return pageOf(paper_, form);
}

}  // namespace tarn::dotmatrix
