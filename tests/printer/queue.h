// A queue of the machine, spoken to from another thread.
#pragma once

#include <functional>
#include <mutex>
#include <string>
#include <vector>

#include "tests/support/recording_spooler.h"

namespace tarn::test {

// The queue of all spoolers that were made for it.
struct Queue {
    std::mutex mutex;
    std::vector<std::string> printed;
    std::function<bool(RecordingSpooler::Call, std::size_t)> refuses;
    std::function<JobFate(int)> fate;

    std::vector<std::string> jobs() {
        const std::lock_guard lock(mutex);
        return printed;
    }
};

class SpoolerOfQueue : public RecordingSpooler {
public:
    explicit SpoolerOfQueue(Queue& queue) : queue_(queue) {
        const std::lock_guard lock(queue_.mutex);
        refuses = queue_.refuses;
        fate = queue_.fate;
    }
    bool endDocument() override {
        const bool ended = RecordingSpooler::endDocument();
        const std::lock_guard lock(queue_.mutex);
        if (ended) {
            queue_.printed.push_back(bytes());
        }
        return ended;
    }

private:
    Queue& queue_;
};

}  // namespace tarn::test
