// Raw documents that aren't notes, as bytes.
#pragma once

#include <string>
#include <vector>

#include "tests/support/files.h"
#include "tests/support/test_environment.h"

namespace tarn::test {

inline constexpr char slipSetUp[] = " \x0F\x1BM";

inline std::string slipFile(const std::string& name) {
    return contentOf(std::string(TARN_SLIP_DATA) + "/" + name);
}

// The bytes of each job that was printed there.
inline std::vector<std::string> jobsOf(const TestEnvironment& seams) {
    std::vector<std::string> jobs;
    for (const RecordingSpooler::Job& job : seams.spooler.jobs) {
        jobs.push_back(job.bytes());
    }
    return jobs;
}

}  // namespace tarn::test
