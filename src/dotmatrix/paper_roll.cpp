#include "dotmatrix/paper_roll.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "dotmatrix/set_up.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::size_t seenKept = 24;
// A note has some 4,000 bytes, so printing again begins at most a few pages above.
constexpr qint64 betweenMarks = 16LL * 1024;

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
    : dialect_(dialect), panel_(dialect), bytes_(std::make_unique<QTemporaryFile>()) {
    begin(topOfPaper(dialect_), switchedOn(dialect_));
}

void PaperRoll::begin(const PaperPosition& position, PrinterState state) {
    paper_ = std::make_unique<ContinuousPaper>(position);
    printer_ = std::make_unique<EscpInterpreter>(*paper_, panel_, std::move(state));
    laid_.assign(1, {});
    widest_ = 0;
    marks_.clear();
    seen_.clear();
    again_.reset();
    printed_ = 0;
    markHere();
    ++version_;
}

void PaperRoll::markHere() {
    marks_.push_back({.offset = printed_,
                      .position = paper_->position(),
                      .panel = panel_,
                      .atEmptyForm = paper_->lines().empty(),
                      .state = printer_->state()});
}

// What is in a row may yet move to the next form with it, so a mark is where the row is empty.
bool PaperRoll::canMarkHere() const {
    return paper_->lines().empty() || paper_->lines().back().y != paper_->y();
}

void PaperRoll::startJob(std::string name, JobPaper paper) {
    jobs_.push_back({.name = std::move(name), .offset = length_, .paper = std::move(paper)});
    feedForJob(jobs_.back());
    ++version_;
}

// As a clerk does who has the right paper at hand: another one only where it is another.
void PaperRoll::feedForJob(RollJob& job) {
    using Way = JobFeed::Way;
    const auto& form = job.paper.form;
    const std::size_t before = paper_->currentForm();
    job.feed = {};
    if (follows_ && form && form != present_) {
        job.feed = {.way = Way::OtherPaper,
                    .panel = panelFor(*form, dialect_),
                    .switchedOn = job.paper.told};
    } else if (follows_ && form && form->everyDocumentAtTop) {
        job.feed.way = Way::ToTop;
    }
    feedFor(job.feed, *printer_);
    if (job.feed.way == Way::OtherPaper) {
        panel_ = job.feed.panel;
        lay(form);
    }
    if (paper_->currentForm() != before) {
        paper_->forgetFormsBefore(paper_->currentForm());
    }
    seen_.remove_if([before](const auto& page) { return page->form >= before; });
    printer_->startJob();
    job.form = paper_->currentForm();
    job.y = paper_->y();
}

void PaperRoll::lay(std::shared_ptr<const FormDesign> design) {
    const std::size_t form = paper_->currentForm();
    laid_.back().width = std::max(laid_.back().width, paper_->contentWidth());
    widest_ = std::max(widest_, laid_.back().width);
    paper_->changePaper();
    while (!laid_.empty() && laid_.back().form >= form) {
        laid_.pop_back();
    }
    PaperUnits width = 0;
    for (const FormBox& box : design->boxes) {
        width = std::max(width, box.x + box.width);
    }
    widest_ = std::max(widest_, width);
    present_ = design;
    laid_.push_back({form, std::move(design), width});
}

const PaperRoll::Laid& PaperRoll::laidUnder(std::size_t form) const {
    return *(std::ranges::upper_bound(laid_, form, {}, &Laid::form) - 1);
}

std::shared_ptr<const FormDesign> PaperRoll::designOf(std::size_t form) const {
    return laidUnder(form).design;
}

PaperUnits PaperRoll::contentWidth(std::size_t form) const {
    const Laid& laid = laidUnder(form);
    return &laid == &laid_.back() ? std::max(laid.width, paper_->contentWidth()) : laid.width;
}

std::optional<QString> PaperRoll::feed(std::string_view bytes) {
    if (bytes.empty()) {
        return std::nullopt;
    }
    if (jobs_.empty()) {
        startJob({});
    }
    if (auto failure = keep(bytes)) {
        return failure;
    }
    length_ += static_cast<qint64>(bytes.size());
    printLive(bytes);
    RollJob& job = jobs_.back();
    job.shows = job.shows || paper_->y() != job.y ||
                length_ - job.offset > static_cast<qint64>(longestSetUp);
    return std::nullopt;
}

std::size_t PaperRoll::shownJobs() const {
    return static_cast<std::size_t>(std::ranges::count_if(jobs_, &RollJob::shows));
}

// The toolkit's file forgets why a write failed.
std::optional<QString> PaperRoll::keep(std::string_view bytes) {
    const auto count = static_cast<qint64>(bytes.size());
    errno = 0;
    const bool kept = (bytes_->isOpen() || bytes_->open()) && bytes_->seek(length_) &&
                      bytes_->write(bytes.data(), count) == count && bytes_->flush();
    if (kept) {
        return std::nullopt;
    }
    return errno == 0 ? bytes_->errorString()
                      : QString::fromStdString(std::generic_category().message(errno));
}

// Byte by byte: a mark must be right behind the byte that began a row.
void PaperRoll::printLive(std::string_view bytes) {
    const std::size_t first = paper_->currentForm();
    const PaperUnits width = contentWidth(first);
    std::size_t form = first;
    for (const char& byte : bytes) {
        printer_->feed({&byte, 1});
        ++printed_;
        if (paper_->currentForm() != form) {
            form = paper_->currentForm();
            paper_->forgetFormsBefore(form);
        }
        if (printed_ - marks_.back().offset >= betweenMarks && canMarkHere()) {
            markHere();
        }
    }
    // The form in the printer may have been looked at before it was full.
    const std::size_t changed = contentWidth(first) == width ? first : laid_.back().form;
    seen_.remove_if([changed](const auto& page) { return page->form >= changed; });
    ++version_;
}

void PaperRoll::setDialect(const Dialect& dialect) {
    follows_ = false;
    printAllAgain(dialect);
}

void PaperRoll::followJobs(const Dialect& dialect) {
    follows_ = true;
    printAllAgain(dialect);
}

void PaperRoll::printAllAgain(const Dialect& dialect) {
    dialect_ = dialect;
    const bool onFirst = follows_ && first_;
    panel_ = onFirst ? panelFor(*first_, dialect_) : dialect_;
    present_ = nullptr;
    begin(topOfPaper(panel_), switchedOn(panel_));
    if (onFirst) {
        lay(first_);
    }
    RollReader reader(kept(), 0);
    const auto startJob = [this](std::size_t index) { feedForJob(jobs_[index]); };
    for (std::string_view piece = reader.next(startJob); !piece.empty();
         piece = reader.next(startJob)) {
        printLive(piece);
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
    RollJob unfinished = jobGoesOn && !jobs_.empty() ? std::move(jobs_.back()) : RollJob();
    jobs_.clear();
    bytes_ = std::make_unique<QTemporaryFile>();
    length_ = 0;
    first_ = present_;
    begin({.form = 0,
           .shape = {0, position.formHeight},
           .formHeight = position.formHeight,
           .y = 0,
           .row = 0,
           .job = 0,
           .jobLine = 1},
          std::move(state));
    if (first_) {
        lay(first_);
    }
    if (jobGoesOn) {
        startJob(std::move(unfinished.name), std::move(unfinished.paper));
    }
}

std::shared_ptr<const FormPage> PaperRoll::page(std::size_t form) {
    const auto known = std::find_if(seen_.begin(), seen_.end(),
                                    [form](const auto& page) { return page->form == form; });
    if (known != seen_.end()) {
        seen_.splice(seen_.begin(), seen_, known);
        return seen_.front();
    }
    FormPage page = form >= paper_->currentForm() ? pageOf(*paper_, form) : printAgain(form);
    page.design = designOf(form);
    page.contentWidth = contentWidth(form);
    seen_.push_front(std::make_shared<const FormPage>(std::move(page)));
    if (seen_.size() > seenKept) {
        seen_.pop_back();
    }
    return seen_.front();
}

const RollMark& PaperRoll::markBefore(std::size_t form) const {
    const auto after = std::ranges::upper_bound(marks_, form, {}, &RollMark::firstWholeForm);
    return after == marks_.begin() ? *after : *(after - 1);
}

// Goes on where the last form was printed again, unless a mark lies nearer.
FormPage PaperRoll::printAgain(std::size_t form) {
    const RollMark& mark = markBefore(form);
    if (!again_ || again_->firstForm() > form || again_->offset() < mark.offset) {
        again_.emplace(kept(), mark);
    }
    FormPage page = again_->page(form);
    page.shape = forms().at(form);
    return page;
}

PaperPages PaperRoll::pages() {
    return {.count = printedForms(), .page = [this](std::size_t form) { return page(form); }};
}

}  // namespace tarn::dotmatrix
