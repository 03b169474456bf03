#include "hold/hold_folder.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <sstream>

#include "runtime/file_names.h"

namespace tarn::hold {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t digits = 6;
// A name that no job has: what stands there is not kept yet, or on its way out.
constexpr const char* incomingName = ".incoming";
constexpr const char* outgoingName = ".outgoing";

constexpr std::array<std::string_view, 4> stateNames{"held", "handing-over", "passed-on",
                                                     "refused"};

std::string nameOf(int number, State state) {
    std::string text = std::to_string(number);
    text.insert(0, digits - std::min(digits, text.size()), '0');
    return text.append(".").append(stateNames[static_cast<std::size_t>(state)]);
}

struct Named {
    int number = 0;
    State state = State::Held;
};

std::optional<Named> readName(const std::string& name) {
    Named found;
    const char* const end = name.data() + name.size();
    const auto read = std::from_chars(name.data(), end, found.number);
    if (read.ec != std::errc() || found.number < 1 || read.ptr == end || *read.ptr != '.') {
        return std::nullopt;
    }
    const auto* state = std::ranges::find(stateNames, std::string_view(read.ptr + 1, end));
    if (state == stateNames.end()) {
        return std::nullopt;
    }
    found.state = static_cast<State>(state - stateNames.begin());
    return found;
}

std::string oneLine(std::string text) {
    std::ranges::replace_if(
        text, [](unsigned char c) { return c < ' '; }, ' ');
    return text;
}

std::string aboutOf(const Job& job) {
    return "name " + oneLine(job.name) + "\nsource " + oneLine(job.source) + "\nremark " +
           oneLine(job.remark) + "\narrived " + std::to_string(job.arrived) + "\n";
}

template <typename Number>
Number numberIn(std::string_view text) {
    Number value = 0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

void readAbout(std::istream& in, Job& job) {
    for (std::string line; std::getline(in, line);) {
        const std::size_t blank = std::min(line.find(' '), line.size());
        const std::string key = line.substr(0, blank);
        const std::string value = line.substr(std::min(blank + 1, line.size()));
        if (key == "name") {
            job.name = value;
        } else if (key == "source") {
            job.source = value;
        } else if (key == "remark") {
            job.remark = value;
        } else if (key == "arrived") {
            job.arrived = numberIn<std::int64_t>(value);
        }
    }
}

}  // namespace

std::optional<std::string> HoldFolder::open() {
    std::error_code failed;
    fs::create_directories(folder_, failed);
    if (!fs::is_directory(folder_, failed) ||
        !syncFolder(folder_.parent_path().empty() ? fs::path(".") : folder_.parent_path())) {
        return "não foi possível fazer a pasta dos trabalhos retidos, \"" + tarn::nameOf(folder_) +
               "\". Confira o nome e a permissão, ou dê outra com --retidos.";
    }
    if (!lock_.take(folder_)) {
        return "a pasta dos trabalhos retidos, \"" + tarn::nameOf(folder_) +
               "\", está com outra impressora virtual, ou não aceita gravação. Feche a outra, ou "
               "dê outra pasta com --retidos.";
    }
    fs::remove_all(folder_ / incomingName, failed);
    fs::remove_all(folder_ / outgoingName, failed);
    for (const Job& job : jobs()) {
        last_ = std::max(last_, job.number);
    }
    return std::nullopt;
}

std::vector<Job> HoldFolder::jobs() const {
    std::vector<Job> found;
    std::error_code failed;
    for (fs::directory_iterator entry(folder_, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        if (const auto named = readName(tarn::nameOf(entry->path().filename()))) {
            found.push_back(read(named->number, named->state));
        }
    }
    std::ranges::sort(found, {}, &Job::number);
    return found;
}

Job HoldFolder::read(int number, State state) const {
    Job job{.number = number, .state = state};
    std::error_code failed;
    const std::uintmax_t size = fs::file_size(bytesOf(job), failed);
    job.size = failed ? 0 : size;
    job.kind = jobKindBeside(bytesOf(job));
    std::ifstream about(folderOf(job) / "about");
    readAbout(about, job);
    std::ifstream queue(folderOf(job) / "queue-job");
    queue >> job.queueJob >> std::ws;
    std::getline(queue, job.queue);
    return job;
}

fs::path HoldFolder::folderOf(const Job& job) const {
    return folder_ / nameOf(job.number, job.state);
}

fs::path HoldFolder::bytesOf(const Job& job) const {
    return folderOf(job) / "job.prn";
}

bool HoldFolder::begin() {
    drop();
    std::error_code failed;
    fs::create_directory(folder_ / incomingName, failed);
    incoming_.open(folder_ / incomingName / "job.prn", std::ios::binary);
    return incoming_.is_open();
}

bool HoldFolder::add(std::string_view bytes) {
    incoming_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (incoming_.good()) {
        return true;
    }
    drop();
    return false;
}

std::optional<Job> HoldFolder::keep(const Job& as) {
    Job job = as;
    job.number = last_ + 1;
    const fs::path incoming = folder_ / incomingName;
    incoming_.close();
    const bool kept = incoming_.good() && syncFile(incoming / "job.prn") &&
                      (!job.kind.told() ||
                       writeDurably(jobKindFile(incoming / "job.prn"), writeJobKind(job.kind))) &&
                      writeDurably(incoming / "about", aboutOf(job)) &&
                      renameDurably(incoming, folderOf(job));
    incoming_.clear();
    std::error_code failed;
    if (!kept) {
        drop();
        fs::remove_all(folderOf(job), failed);  // where only the last step failed
        return std::nullopt;
    }
    last_ = job.number;
    job.size = fs::file_size(bytesOf(job), failed);
    return job;
}

void HoldFolder::drop() {
    if (incoming_.is_open()) {
        incoming_.close();
    }
    incoming_.clear();
    std::error_code failed;
    fs::remove_all(folder_ / incomingName, failed);
}

bool HoldFolder::move(Job& job, State state) const {
    // What an earlier try was called in the queue says nothing of the next.
    if (state == State::Held && job.queueJob != 0 && !tellQueueJob(job, {}, 0)) {
        return false;
    }
    Job moved = job;
    moved.state = state;
    if (!writeDurably(folderOf(job) / "about", aboutOf(job)) ||
        !renameDurably(folderOf(job), folderOf(moved))) {
        return false;
    }
    job.state = state;
    return true;
}

bool HoldFolder::tellQueueJob(Job& job, const std::string& queue, int queueJob) const {
    if (!writeDurably(folderOf(job) / "queue-job",
                      std::to_string(queueJob) + " " + oneLine(queue) + "\n")) {
        return false;
    }
    job.queue = queue;
    job.queueJob = queueJob;
    return true;
}

// First out of the jobs' names: a crash may leave a part of it, but no part of a job.
bool HoldFolder::remove(const Job& job) const {
    const fs::path outgoing = folder_ / outgoingName;
    std::error_code failed;
    fs::remove_all(outgoing, failed);
    if (!renameDurably(folderOf(job), outgoing)) {
        return false;
    }
    fs::remove_all(outgoing, failed);
    return true;
}

}  // namespace tarn::hold
