// A desk that prints into a folder is killed while it prints: a job that it was done with
// stays as it is, one that was on its way ends where the desk ended, and the next desk
// takes no number a second time.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <filesystem>
#include <iostream>
#include <map>
#include <set>

#include "platform/directory/directory_spooler.h"
#include "tests/kills/kills.h"
#include "tests/support/files.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

constexpr int desks = 3;  // at one time, in one folder
constexpr int linesOfJob = 40;
constexpr std::chrono::milliseconds longestSpooling(30);

std::string jobOf(int desk, int number) {
    const std::string name = std::to_string(desk) + "-" + std::to_string(number);
    std::string job = "inicio " + name + "\r\n";
    for (int line = 0; line < linesOfJob; ++line) {
        job += "linha " + std::to_string(line) + " de " + name + "\r\n";
    }
    return job + "fim " + name + "\r\n\f";
}

// A line at a time, as a note is printed.
bool print(DirectorySpooler& spooler, std::string_view job) {
    bool taken = spooler.openPrinter(spooler.defaultPrinter()) && spooler.startDocument({}) &&
                 spooler.startPage();
    while (taken && !job.empty()) {
        const std::string_view line = job.substr(0, job.find('\n') + 1);
        taken =
            !line.empty() ? spooler.write(line) == line.size() : spooler.write(job) == job.size();
        job.remove_prefix(line.empty() ? job.size() : line.size());
    }
    const bool ended = spooler.endPage() && spooler.endDocument();
    return spooler.closePrinter() && ended && taken;
}

// Prints until it is killed and tells each job that is done.
[[noreturn]] void printForEver(const std::string& folder, int desk, int told) {
    DirectorySpooler spooler{fs::path(folder)};
    for (int number = 1;; ++number) {
        if (!print(spooler, jobOf(desk, number)) ||
            write(told, &desk, sizeof desk) != sizeof desk) {
            _exit(1);
        }
    }
}

class KilledSpooler : public testing::Test {
protected:
    void killOnce(int firstDesk) {
        std::array<int, 2> pipeEnds{};
        ASSERT_EQ(pipe(pipeEnds.data()), 0);
        std::vector<pid_t> children;
        for (int i = 0; i < desks; ++i) {
            const pid_t child = fork();
            ASSERT_GE(child, 0);
            if (child == 0) {
                printForEver(folder_.path().toStdString(), firstDesk + i, pipeEnds[1]);
            }
            children.push_back(child);
        }
        close(pipeEnds[1]);
        int desk = 0;
        ASSERT_EQ(read(pipeEnds[0], &desk, sizeof desk), static_cast<ssize_t>(sizeof desk));
        ++told_[desk];
        moments_.await(longestSpooling);
        for (const pid_t child : children) {
            ASSERT_EQ(kill(child, SIGKILL), 0);
            int status = 0;
            ASSERT_EQ(waitpid(child, &status, 0), child);
            ASSERT_TRUE(WIFSIGNALED(status)) << "a job could not be printed";
        }
        while (read(pipeEnds[0], &desk, sizeof desk) == static_cast<ssize_t>(sizeof desk)) {
            ++told_[desk];
        }
        close(pipeEnds[0]);
    }

    // What was there before is untouched; what is new is whole, or the begin of the one
    // job that a desk was at.
    void lookThrough() {
        std::map<int, int> whole;
        std::map<int, int> cut;
        for (const auto& entry : fs::directory_iterator(folder_.path().toStdString())) {
            const std::string bytes = contentOf(entry.path());
            const auto [known, fresh] = files_.emplace(entry.path().string(), bytes);
            ASSERT_TRUE(fresh || known->second == bytes) << entry.path() << " was changed";
            if (fresh && bytes.empty()) {
                ++empty_;
            } else if (fresh) {
                ASSERT_NO_FATAL_FAILURE(judge(bytes, whole, cut)) << entry.path();
            }
        }
        for (const auto& [desk, count] : told_) {
            EXPECT_LE(count, whole[desk]) << "a job told as printed isn't there";
            EXPECT_LE(whole[desk], count + 1);
            EXPECT_LE(cut[desk], 1);
            jobs_ += whole[desk];
            cut_ += cut[desk];
        }
        told_.clear();
    }

    void judge(const std::string& bytes, std::map<int, int>& whole, std::map<int, int>& cut) {
        int desk = 0;
        int number = 0;
        const int read = std::sscanf(bytes.c_str(), "inicio %d-%d", &desk, &number);
        ASSERT_EQ(read, 2) << "not the begin of a job: " << bytes.substr(0, 80);
        const std::string job = jobOf(desk, number);
        ASSERT_EQ(job.compare(0, bytes.size(), bytes), 0) << "a mixture";
        ASSERT_TRUE(bytes != job || names_.insert(job).second) << "printed twice";
        ++(bytes == job ? whole : cut)[desk];
    }

    QTemporaryDir folder_;
    KillMoments moments_;
    std::map<int, int> told_;  // jobs of each desk
    std::map<std::string, std::string> files_;
    std::set<std::string> names_;
    int jobs_ = 0;
    int cut_ = 0;
    int empty_ = 0;
};

TEST_F(KilledSpooler, LosesNoJobThatWasDoneAndTakesNoNumberTwice) {
    const int kills = killsWanted();
    for (int kill = 0; kill < kills && !HasFailure(); ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill + 1));
        ASSERT_NO_FATAL_FAILURE(killOnce(1 + kill * desks));
        ASSERT_NO_FATAL_FAILURE(lookThrough());
    }
    EXPECT_GE(jobs_, kills);
    std::cout << kills << " kills of " << desks << " desks: " << jobs_ << " jobs whole, " << cut_
              << " cut where their desk was killed, " << empty_ << " without a byte\n";
}

}  // namespace
}  // namespace tarn::test
