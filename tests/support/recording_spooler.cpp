#include "tests/support/recording_spooler.h"

namespace tarn::test {

RecordingSpooler::RecordingSpooler() = default;
RecordingSpooler::~RecordingSpooler() = default;

std::string RecordingSpooler::defaultPrinter() {
    return silent ? "" : printer;
}

bool RecordingSpooler::answers() const {
    return !silent;
}

bool RecordingSpooler::openPrinter(const std::string& name) {
    const bool refused = refusing(Call::Open);
    opened.push_back(name);
    open_ = opened.size() - 1 != failOpen && !refused &&
            !silent;  // either way the job before is let go
    started_ = false;
    return open_;
}

bool RecordingSpooler::startDocument(const JobDescription& job) {
    if (refusing(Call::StartDocument) || !open_) {
        return false;
    }
    jobs.push_back({.description = job, .writes = {}});
    started_ = true;
    return true;
}

bool RecordingSpooler::startPage() {
    return !refusing(Call::StartPage) && started_;
}

std::size_t RecordingSpooler::write(std::string_view bytes) {
    const bool refused = refusing(Call::Write);
    const bool fails = writes++ == failWrite;
    if (fails || refused || !started_) {
        return 0;
    }
    jobs.back().writes.emplace_back(bytes);
    return bytes.size();
}

bool RecordingSpooler::endPage() {
    const bool done = !refusing(Call::EndPage) && started_;
    if (done) {
        jobs.back().pageEnded = true;
    }
    return done;
}

bool RecordingSpooler::endDocument() {
    const bool done = !refusing(Call::EndDocument) && started_;
    if (done) {
        jobs.back().ended = true;
    }
    return done;
}

bool RecordingSpooler::closePrinter() {
    const bool done = !refusing(Call::Close) && open_;
    if (started_) {
        jobs.back().closed = true;
    }
    open_ = false;
    started_ = false;
    return done;
}

bool RecordingSpooler::refusing(Call call) {
    if (calls.empty()) {
        made_ = {};  // a test has begun to record anew
    }
    const std::size_t before = made_.at(static_cast<std::size_t>(call))++;
    calls.push_back(call);
    return refuses && refuses(call, before);
}

int RecordingSpooler::documentNumber() const {
    return numbersJobs && started_ ? static_cast<int>(jobs.size()) : 0;
}

JobFate RecordingSpooler::fateOf(int documentNumber) {
    if (fate) {
        return fate(documentNumber);
    }
    const auto index = static_cast<std::size_t>(documentNumber) - 1;
    return index < jobs.size() && jobs[index].ended ? JobFate::Arrived : JobFate::NeverArrived;
}

}  // namespace tarn::test
