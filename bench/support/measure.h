// Measuring by comparison: the processor time of two pieces of work done by turns,
// and the limit that their ratio must keep. No number here is a time that a slow
// machine could miss.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <ctime>
#include <string>
#include <vector>

namespace tarn::bench {

// Processor time of this thread: what else the machine does doesn't count.
inline double processorSeconds() {
    std::timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

template <typename Work>
double secondsOf(const Work& work) {
    const double start = processorSeconds();
    work();
    return processorSeconds() - start;
}

inline double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

inline double leastOf(const std::vector<double>& values) {
    return *std::min_element(values.begin(), values.end());
}

// The middle one of the ratios of each round: both halves of a round saw the same
// machine, so that a busy one slows them alike and a pause spoils one round only.
inline double ratioOf(const std::vector<double>& work, const std::vector<double>& peer) {
    std::vector<double> ratios;
    for (std::size_t i = 0; i < work.size(); ++i) {
        ratios.push_back(work[i] / peer[i]);
    }
    return medianOf(std::move(ratios));
}

// The ratios of a run against their limits, one a line.
class Limits {
public:
    void check(const std::string& what, double ratio, double limit) {
        const bool kept = ratio <= limit;
        over_ += kept ? 0 : 1;
        std::printf("%-58s %6.2f  limit %5.2f  %s\n", what.c_str(), ratio, limit,
                    kept ? "ok" : "OVER");
        std::fflush(stdout);
    }
    int exitStatus() const { return over_ > 0 ? 1 : 0; }

private:
    int over_ = 0;
};

}  // namespace tarn::bench
