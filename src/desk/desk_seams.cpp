#include "desk/desk_seams.h"

#include "platform/act_log.h"
#include "widgets/program_end.h"

namespace tarn {
namespace {

constexpr char server[] = "o servidor";
constexpr char printer[] = "a impressora";
constexpr char noPrinter[] = "esta máquina não tem impressora padrão";

void meet(PaperOutcome& paper, const std::string& obstacle) {
    if (paper.obstacle.empty()) {
        paper.obstacle = obstacle;
    }
}

// What happened, without what to do about it.
std::string firstSentence(const std::string& description) {
    const std::size_t end = description.find(". ");
    std::string sentence = description.substr(0, end);
    if (end == std::string::npos && sentence.ends_with('.')) {
        sentence.pop_back();
    }
    return sentence;
}

}  // namespace

template <typename Work>
auto DeskLoader::waited(const Work& work) {
    end_.leaveIfEnded();
    auto result = [&] {
        const Waiting waiting(teller_, server);
        return work();
    }();
    end_.leaveIfEnded();
    return result;
}

HttpAnswer DeskLoader::get(const std::string& address) {
    return waited([&] { return real_.get(address); });
}

bool DeskLoader::load(const std::string& address, const BodyReader& read) {
    return waited([&] { return real_.load(address, read); });
}

template <typename Call>
auto DeskSpooler::waitFor(Call call) const {
    const Waiting waiting(teller_, printer);
    return call();
}

std::string DeskSpooler::defaultPrinter() {
    end_.leaveIfEnded();
    return waitFor([this] { return real_.defaultPrinter(); });
}

std::string DeskSpooler::obstacle() const {
    if (!real_.answers()) {
        return std::string(spoolerIsSilent);
    }
    return paper_.printer.empty() ? noPrinter
                                  : "a impressora " + paper_.printer + " recusou o trabalho";
}

bool DeskSpooler::noted(bool taken) {
    if (!taken && open_) {
        meet(paper_, obstacle());
    }
    return taken;
}

bool DeskSpooler::openPrinter(const std::string& name) {
    end_.leaveIfEnded();
    open_ = true;
    paper_.asked = true;
    paper_.printer = name;
    if (name.empty()) {
        meet(paper_, obstacle());
    }
    return noted(waitFor([&] { return real_.openPrinter(name); }));
}

bool DeskSpooler::startDocument(const JobDescription& job) {
    return noted(waitFor([&] { return real_.startDocument(job); }));
}

bool DeskSpooler::startPage() {
    return noted(real_.startPage());
}

std::size_t DeskSpooler::write(std::string_view bytes) {
    end_.leaveIfEnded();
    const std::size_t taken = waitFor([&] { return real_.write(bytes); });
    noted(taken == bytes.size());
    return taken;
}

bool DeskSpooler::endPage() {
    return noted(real_.endPage());
}

bool DeskSpooler::endDocument() {
    return noted(waitFor([this] { return real_.endDocument(); }));
}

// The job was handed over before that.
bool DeskSpooler::closePrinter() {
    open_ = false;
    return waitFor([this] { return real_.closePrinter(); });
}

// The real printer counts its pages only while it puts them on paper.
std::optional<PrinterFailure> DeskPrinter::passOn(const PrintOperation& operation) {
    const Waiting waiting(teller_, printer);
    if (!std::holds_alternative<DocumentEnd>(operation)) {
        return real_.perform(operation);
    }
    real_.progress = progress;
    std::optional<PrinterFailure> failure = real_.perform(operation);
    real_.progress = nullptr;
    return failure;
}

std::optional<PrinterFailure> DeskPrinter::perform(const PrintOperation& operation) {
    end_.leaveIfEnded();
    std::optional<PrinterFailure> failure = passOn(operation);
    if (draws(operation)) {
        paper_.asked = true;
    }
    if (failure) {
        meet(paper_, firstSentence(failure->description));
    } else if (std::holds_alternative<DocumentEnd>(operation) && paper_.printer.empty()) {
        paper_.printer = real_.name();
    }
    return failure;
}

BoxAnswer DeskBoxes::show(const Box& box) {
    end_.leaveIfEnded();
    const BoxAnswer answer = real_.show(box);
    end_.leaveIfEnded();
    return answer;
}

}  // namespace tarn
