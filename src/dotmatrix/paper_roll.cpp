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

// Byte by byte: a mark must be right behind the byte that began a form.
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

// The bytes from an offset on, in chunks that end where a job begins; `startJob` is told of
// each job on the way, `print` answers whether more is wanted.
void PaperRoll::replay(qint64 from, const std::function<void(RollJob&)>& startJob,
                       const std::function<bool(std::string_view)>& print) {
    auto next =
        std::lower_bound(jobs_.begin(), jobs_.end(), from,
                         [](const RollJob& job, qint64 wanted) { return job.offset < wanted; });
    for (qint64 at = from;;) {
        for (; next != jobs_.end() && next->offset <= at; ++next) {
            startJob(*next);
        }
        const qint64 end = next == jobs_.end() ? length_ : next->offset;
        if (at == end) {
            return;
        }
        bytes_->seek(at);
        const QByteArray chunk = bytes_->read(std::min(chunkBytes, end - at));
        if (chunk.isEmpty() ||
            !print({chunk.constData(), static_cast<std::size_t>(chunk.size())})) {
            return;
        }
        at += chunk.size();
    }
}

void PaperRoll::setDialect(const Dialect& dialect) {
    dialect_ = dialect;
    begin(topOfPaper(dialect_), switchedOn(dialect_));
    replay(
        0,
        [this](RollJob& job) {
            printer_->startJob();
            job.form = paper_->currentForm();
            job.y = paper_->y();
        },
        [this](std::string_view bytes) {
            printLive(bytes);
            return true;
        });
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
    replay(
        mark.offset, [&](RollJob&) { printer.startJob(); },
        [&](std::string_view bytes) {
            for (const char& byte : bytes) {
                const std::size_t before = paper.currentForm();
                printer.feed({&byte, 1});
                if (paper.currentForm() != before) {
                    paper.forgetFormsBefore(std::min(form, paper.currentForm()));
                }
                if (paper.currentForm() > form) {
                    return false;
                }
            }
            return true;
        });
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
