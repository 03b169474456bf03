// A spooler that prints nothing: it records every call in order and the bytes of
// each job, and fails where it is told to.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "platform/spooler.h"

namespace tarn::test {

class RecordingSpooler : public Spooler {
public:
    enum class Call { Open, StartDocument, StartPage, Write, EndPage, EndDocument, Close };

    struct Job {
        JobDescription description;
        std::vector<std::string> writes;  // the bytes of each write taken, in order
        bool pageEnded = false;
        bool ended = false;   // endDocument came
        bool closed = false;  // closePrinter came after it was started

        std::string bytes() const {
            std::string all;
            for (const std::string& piece : writes) {
                all += piece;
            }
            return all;
        }
    };

    static constexpr std::size_t never = std::numeric_limits<std::size_t>::max();

    // What to answer and where to fail.
    std::string printer = "Impressora de teste";
    std::size_t failOpen = never;   // index of the openPrinter that fails, from 0
    std::size_t failWrite = never;  // index of the write that fails, from 0, over all jobs
    bool numbersJobs = true;
    std::function<JobFate(int)> fate;  // of a document by its number; unset: as recorded
    bool silent = false;               // answers nothing, like a service that hangs
    // Further failures, if set: the call and its index among those of its kind, from 0.
    std::function<bool(Call, std::size_t)> refuses;

    // What happened.
    std::vector<Call> calls;
    std::vector<std::string> opened;  // the names asked for
    std::vector<Job> jobs;            // in the order of startDocument
    std::size_t writes = 0;           // asked for, failed ones included

    RecordingSpooler();
    ~RecordingSpooler() override;

    std::string bytes(std::size_t job = 0) const { return jobs.at(job).bytes(); }

    std::string defaultPrinter() override;
    bool answers() const override;
    bool openPrinter(const std::string& name) override;
    bool startDocument(const JobDescription& job) override;
    bool startPage() override;
    std::size_t write(std::string_view bytes) override;
    bool endPage() override;
    bool endDocument() override;
    bool closePrinter() override;
    int documentNumber() const override;
    JobFate fateOf(int documentNumber) override;

private:
    bool refusing(Call call);

    std::array<std::size_t, 7> made_{};  // calls of each kind
    bool open_ = false;
    bool started_ = false;
};

}  // namespace tarn::test
