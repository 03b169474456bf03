#include "dotmatrix/paper_roll.h"

#include <algorithm>
#include <utility>

namespace tarn::dotmatrix {

namespace {

constexpr std::size_t seenKept = 24;
// A note has some 4,000 bytes, so printing again begins at most a few pages above.
constexpr qint64 betweenMarks = 16LL * 1024;
constexpr qint64 chunkBytes = 16LL * 1024;

PaperPosition topOfPaper(const Dialect& dialect) {
    return {.form = 0,
            .shape = {0, dialect.formHeight},
            .formHeight = dialect.formHeight,
            .y = 0,
            .row = 0,
            .job = 0,
            .jobLine = 1};
}

PrinterState switchedOn(const Dialect& dialect) {
    ContinuousPaper paper(dialect.formHeight);
    return EscpInterpreter(paper, dialect).state();
}

}  // namespace

PaperRoll::PaperRoll(const Dialect& dialect)
    : dialect_(dialect), bytes_(std::make_unique<QTemporaryFile>()) {
    begin(topOfPaper(dialect_), switchedOn(dialect_));
}

void PaperRoll::begin(const PaperPosition& position, PrinterState state) {
    paper_ = std::make_unique<ContinuousPaper>(position);
    printer_ = std::make_unique<EscpInterpreter>(*paper_, dialect_, std::move(state));
    marks_.clear();
    seen_.clear();
    printed_ = 0;
    markHere();
    ++version_;
}

void PaperRoll::markHere() {
    marks_.push_back({printed_, paper_->currentForm(), paper_->position(), printer_->state()});
}

void PaperRoll::startJob(std::string name) {
    printer_->startJob();
    jobs_.push_back({std::move(name), paper_->currentForm(), paper_->y(), length_});
    ++version_;
}

std::optional<QString> PaperRoll::feed(std::string_view bytes) {
    if (bytes.empty()) {
        return std::nullopt;
    }
    if (jobs_.empty()) {
        startJob({});
    }
    const auto count = static_cast<qint64>(bytes.size());
    const bool kept = (bytes_->isOpen() || bytes_->open()) && bytes_->seek(length_) &&
                      bytes_->write(bytes.data(), count) == count && bytes_->flush();
    if (!kept) {
        return bytes_->errorString();
    }
    length_ += count;
    printLive(bytes);
    return std::nullopt;
}

// Byte by byte: a mark must stand right behind the byte that began a form.
void PaperRoll::printLive(std::string_view bytes) {
    const std::size_t first = paper_->currentForm();
    std::size_t form = first;
    for (const char& byte : bytes) {
        printer_->feed({&byte, 1});
        ++printed_;
        if (paper_->currentForm() == form) {
            continue;
        }
        form = paper_->currentForm();
        paper_->forgetFormsBefore(form);
        if (printed_ - marks_.back().offset >= betweenMarks && paper_->lines().empty()) {
            markHere();
        }
    }
    // The form in the printer may have been looked at before it was full.
    seen_.remove_if([first](const auto& page) { return page->form >= first; });
    ++version_;
}

void PaperRoll::setDialect(const Dialect& dialect) {
    dialect_ = dialect;
    begin(topOfPaper(dialect_), switchedOn(dialect_));
    std::size_t next = 0;
    const auto startJobsAt = [&](qint64 offset) {
        for (; next < jobs_.size() && jobs_[next].offset <= offset; ++next) {
            printer_->startJob();
            jobs_[next].form = paper_->currentForm();
            jobs_[next].y = paper_->y();
        }
    };
    startJobsAt(0);
    while (printed_ < length_) {
        const qint64 jobEnd = next < jobs_.size() ? jobs_[next].offset : length_;
        bytes_->seek(printed_);
        const QByteArray chunk = bytes_->read(std::min(chunkBytes, jobEnd - printed_));
        if (chunk.isEmpty()) {
            break;
        }
        printLive({chunk.constData(), static_cast<std::size_t>(chunk.size())});
        startJobsAt(printed_);
    }
}

void PaperRoll::tearOff(bool jobGoesOn) {
    const PaperPosition position = paper_->position();
    const bool fresh = paper_->lines().empty() && position.y == position.shape.top;
    PrinterState state = printer_->state();
    if (!fresh) {
        state.x = 0;
        state.column = 1;
        state.columnsBefore = 0;
    }
    std::string name = jobGoesOn && !jobs_.empty() ? jobs_.back().name : std::string();
    jobs_.clear();
    bytes_ = std::make_unique<QTemporaryFile>();
    length_ = 0;
    begin({.form = 0,
           .shape = {0, position.formHeight},
           .formHeight = position.formHeight,
           .y = 0,
           .row = 0,
           .job = 0,
           .jobLine = 1},
          std::move(state));
    if (jobGoesOn) {
        startJob(std::move(name));
    }
}

std::shared_ptr<const FormPage> PaperRoll::page(std::size_t form) {
    const auto known = std::find_if(seen_.begin(), seen_.end(),
                                    [form](const auto& page) { return page->form == form; });
    if (known != seen_.end()) {
        seen_.splice(seen_.begin(), seen_, known);
        return seen_.front();
    }
    seen_.push_front(std::make_shared<const FormPage>(
        form >= paper_->currentForm() ? pageOf(*paper_, form) : printAgain(form)));
    if (seen_.size() > seenKept) {
        seen_.pop_back();
    }
    return seen_.front();
}

FormPage PaperRoll::printAgain(std::size_t form) {
    const auto after =
        std::upper_bound(marks_.begin(), marks_.end(), form,
                         [](std::size_t wanted, const Mark& mark) { return wanted < mark.form; });
    const Mark& mark = after == marks_.begin() ? *after : *(after - 1);
    ContinuousPaper paper(mark.position);
    EscpInterpreter printer(paper, dialect_, mark.state);
    auto next =
        std::lower_bound(jobs_.begin(), jobs_.end(), mark.offset,
                         [](const RollJob& job, qint64 wanted) { return job.offset < wanted; });
    qint64 at = mark.offset;
    while (at < length_ && paper.currentForm() <= form) {
        for (; next != jobs_.end() && next->offset <= at; ++next) {
            printer.startJob();
        }
        const qint64 end = next == jobs_.end() ? length_ : next->offset;
        bytes_->seek(at);
        const QByteArray chunk = bytes_->read(std::min(chunkBytes, end - at));
        if (chunk.isEmpty()) {
            break;
        }
        for (const char& byte : chunk) {
            const std::size_t before = paper.currentForm();
            printer.feed({&byte, 1});
            if (paper.currentForm() != before) {
                paper.forgetFormsBefore(std::min(form, paper.currentForm()));
                if (paper.currentForm() > form) {
                    break;
                }
            }
        }
        at += chunk.size();
    }
    FormPage page = pageOf(paper, form);
    page.shape = forms().at(form);
    return page;
}

PaperPages PaperRoll::pages() {
    return {.count = printedForms(),
            .contentWidth = contentWidth(),
            .page = [this](std::size_t form) { return page(form); }};
}

}  // namespace tarn::dotmatrix
