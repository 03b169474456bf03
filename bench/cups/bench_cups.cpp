// A thousand raw jobs into a scheduler of the bench's own, on a queue that is held, so that
// nothing prints: the raw channel as a note uses it, against `lp -o raw` of the same bytes.
// Wall time, as half of each is the scheduler's.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "bench/support/child.h"
#include "bench/support/measure.h"
#include "common/raw_channel.h"
#include "platform/cups/cups_spooler.h"
#include "tests/support/private_cupsd.h"

namespace {

using tarn::bench::processorSecondsOf;

constexpr int rounds = 20;
constexpr int jobs = 50;  // a round; the scheduler takes 500 that wait
constexpr int lines = 66;

std::string line(int number) {
    return std::to_string(number) +
           "  PARAFUSO SEXTAVADO AÇO INOX    CX   12,500    1,06     13,25   18,00  5,00";
}

template <typename Work>
double wallSecondsOf(const Work& work) {
    const auto before = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count();
}

void need(bool held, const char* what) {
    if (!held) {
        std::fprintf(stderr, "bench_cups: %s failed\n", what);
        std::exit(2);
    }
}

// As a note is printed: one write a line.
void printJobs(tarn::CupsSpooler& spooler) {
    for (int i = 0; i < jobs; ++i) {
        tarn::RawChannel channel(spooler, tarn::CodePage::Page1252);
        tarn::JobDescription job;
        job.docName = "nota";
        channel.open(job);
        for (int number = 1; number <= lines; ++number) {
            std::string text = line(number);
            channel.ImprimeRaw(0, text, 1);
        }
        channel.close();
    }
}

void writeFile(const std::string& file) {
    std::ofstream out(file, std::ios::binary);
    for (int number = 1; number <= lines; ++number) {
        out << "\r\n" << line(number);
    }
}

std::size_t spooled(const std::filesystem::path& directory) {
    std::size_t count = 0;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
        count += entry.path().filename().string().front() == 'd' ? 1U : 0U;
    }
    return count;
}

}  // namespace

int main() {
    if (const std::string missing = tarn::test::PrivateCupsd::whyMissing(); !missing.empty()) {
        std::printf("not measured: %s\n", missing.c_str());
        return 0;
    }
    tarn::test::PrivateCupsd scheduler;
    const std::string failed = scheduler.start();
    need(failed.empty(), failed.c_str());
    need(scheduler.pauseQueue(tarn::test::PrivateCupsd::queueName), "holding the queue");
    const auto folder = std::filesystem::path(scheduler.serverSocket()).parent_path();
    const std::string file = (folder / "nota.prn").string();
    writeFile(file);

    tarn::CupsSpooler spooler;
    std::vector<double> ours;
    std::vector<double> theirs;
    for (int round = 0; round < rounds; ++round) {
        ours.push_back(wallSecondsOf([&] { printJobs(spooler); }));
        need(spooled(folder / "spool") == jobs, "printing");
        theirs.push_back(wallSecondsOf([&] {
            for (int i = 0; i < jobs; ++i) {
                processorSecondsOf({"lp", "-s", "-o", "raw", "-t", "nota", file});
            }
        }));
        need(spooled(folder / "spool") == 2 * jobs, "lp");
        processorSecondsOf({"cancel", "-a", "-x"});
    }
    using tarn::bench::medianOf;
    std::printf("%d jobs: %.2f s, by lp -o raw %.2f s (wall)\n", rounds * jobs,
                medianOf(ours) * rounds, medianOf(theirs) * rounds);
    tarn::bench::Limits limits;
    limits.check("1,000 raw jobs through CUPS over lp -o raw", tarn::bench::ratioOf(ours, theirs),
                 1.0);
    return limits.exitStatus();
}
