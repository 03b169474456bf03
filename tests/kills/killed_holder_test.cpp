// The virtual printer killed while it holds jobs and passes them on through a real cupsd:
// the printer behind it gets each job that was taken once, whole, and in order.
// TARN_HELD_JOBS tells how many jobs there are.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QTemporaryDir>
#include <atomic>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <set>
#include <thread>

#include "platform/directory/directory_spooler.h"
#include "tests/e2e/programs.h"
#include "tests/kills/kills.h"
#include "tests/support/cups_test.h"
#include "tests/support/loopback_address.h"

namespace tarn::test {
namespace {

namespace fs = std::filesystem;

constexpr std::chrono::milliseconds beyondAJob(300);
constexpr std::chrono::seconds longestSilence(90);  // of the printer at the end

int heldJobsWanted() {
    const QByteArray count = qgetenv("TARN_HELD_JOBS");
    return count.isEmpty() ? 40 : count.toInt();
}

// Every byte there is, in another order for each job, and up to some pieces of the spooler.
std::string heldBytes(int job) {
    std::string bytes = "trabalho " + std::to_string(job) + "\n";
    const int length = job % 10 == 0 ? 150'000 : 300 + job % 700;
    for (int i = 0; i < length; ++i) {
        bytes.push_back(static_cast<char>((i * 7 + job * 13 + i / 256) % 256));
    }
    return bytes;
}

int numberOfHeld(const std::string& bytes) {
    int job = -1;
    std::sscanf(bytes.c_str(), "trabalho %d\n", &job);
    return job;
}

// Takes what comes out of the queue, all the time.
class LastPrinter {
public:
    explicit LastPrinter(PrivateCupsd& server)
        : thread_([this, &server] {
              while (!done_) {
                  if (auto job = server.nextJob(std::chrono::seconds(5))) {
                      const std::lock_guard lock(mutex_);
                      jobs_.push_back(std::move(*job));
                      came_.notify_all();
                  }
              }
          }) {}
    ~LastPrinter() { stop(); }
    LastPrinter(const LastPrinter&) = delete;
    LastPrinter& operator=(const LastPrinter&) = delete;

    std::size_t count() {
        const std::lock_guard lock(mutex_);
        return jobs_.size();
    }
    std::vector<std::string> jobs() {
        const std::lock_guard lock(mutex_);
        return jobs_;
    }
    // Until the job is the latest that came; false when none comes for too long.
    bool await(int job) {
        std::unique_lock lock(mutex_);
        while (jobs_.empty() || numberOfHeld(jobs_.back()) != job) {
            if (came_.wait_for(lock, longestSilence) == std::cv_status::timeout) {
                return false;
            }
        }
        return true;
    }
    void stop() {
        done_ = true;
        if (thread_.joinable()) {
            thread_.join();
        }
    }

private:
    std::mutex mutex_;
    std::condition_variable came_;
    std::vector<std::string> jobs_;
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

class HoldingProgram {
public:
    void start(const QStringList& arguments) {
        process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process_.start(TARNIMPRESSORA, arguments);
        while (!process_.canReadLine() && process_.waitForReadyRead(patienceMs)) {
        }
        const QString line = QString::fromUtf8(process_.readLine()).trimmed();
        ASSERT_FALSE(line.isEmpty());
        port_ = static_cast<quint16>(line.section("porta ", 1).section(u' ', 0, 0).toInt());
    }
    void kill() {
        process_.kill();
        ASSERT_TRUE(process_.waitForFinished(patienceMs));
    }
    quint16 port() const { return port_; }

private:
    QProcess process_;
    quint16 port_ = 0;
};

class KilledHolder : public CupsTest {
protected:
    QStringList arguments() const {
        return {"--sem-janela", "--repassa",    PrivateCupsd::queueName, "--repassa-apos", "0",
                "--retidos",    spool().c_str()};
    }
    std::string spool() const { return folder_.filePath("retidos").toStdString(); }

    // True once the printer has told that the job is taken, by closing in order.
    static bool isTaken(quint16 port, int job) {
        const int connection = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        const sockaddr_in place = loopbackAddress(port);
        const std::string bytes = heldBytes(job);
        std::size_t sent = 0;
        bool taken =
            connect(connection, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0;
        while (taken && sent < bytes.size()) {
            const ssize_t count =
                ::send(connection, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
            taken = count > 0;
            sent += taken ? static_cast<std::size_t>(count) : 0;
        }
        char nothing = 0;
        taken =
            taken && shutdown(connection, SHUT_WR) == 0 && recv(connection, &nothing, 1, 0) == 0;
        close(connection);
        return taken;
    }

    std::string statesOfJobs() const {
        std::string states;
        for (const auto& entry : fs::directory_iterator(spool())) {
            states += entry.path().filename().string() + " " +
                      contentOf(QString::fromStdString(entry.path() / "queue-job"));
        }
        return states;
    }

    // All come out in the order in which they were taken: behind the last one that was, none
    // is missing and none comes a second time.
    void awaitLast(LastPrinter& printer, int job) const {
        ASSERT_TRUE(printer.await(job)) << "the printer got " << printer.count() << " jobs\n"
                                        << statesOfJobs() << server_->errorLog();
        printer.stop();
    }

    // Whole, each once, in the order of their numbers, all of `taken` among them.
    static void expectRight(const std::vector<std::string>& jobs, const std::set<int>& taken) {
        std::set<int> printedJobs;
        int before = 0;
        for (const std::string& bytes : jobs) {
            const int job = numberOfHeld(bytes);
            ASSERT_TRUE(bytes == heldBytes(job)) << "job " << job << " is not as it was sent";
            ASSERT_GT(job, before) << "twice, or out of order";
            before = job;
            printedJobs.insert(job);
        }
        for (const int job : taken) {
            EXPECT_TRUE(printedJobs.contains(job)) << "job " << job << " is lost";
        }
    }

    QTemporaryDir folder_;
    KillMoments moments_;
};

// A sender who wasn't told sends the next job, not the same again.
TEST_F(KilledHolder, PassesOnEachJobOfTheNetworkOnce) {
    const int kills = killsWanted();
    const int wanted = heldJobsWanted();
    std::set<int> taken;
    int next = 1;
    LastPrinter printer(*server_);
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        HoldingProgram program;
        ASSERT_NO_FATAL_FAILURE(program.start(arguments() + QStringList{"--porta", "0"}));
        std::atomic<int> sent = 0;
        std::thread sender([&] {
            for (; sent >= 0; ++next) {
                if (!isTaken(program.port(), next)) {
                    ++next;
                    return;
                }
                taken.insert(next);
                ++sent;
            }
        });
        moments_.await([&] { return sent.load(); }, 2 * wanted / kills, beyondAJob);
        program.kill();
        sender.join();
    }
    HoldingProgram last;
    ASSERT_NO_FATAL_FAILURE(last.start(arguments() + QStringList{"--porta", "0"}));
    do {
        ASSERT_TRUE(isTaken(last.port(), next));
        taken.insert(next++);
    } while (static_cast<int>(taken.size()) < wanted);
    ASSERT_NO_FATAL_FAILURE(awaitLast(printer, next - 1));
    expectRight(printer.jobs(), taken);
    std::cout << kills << " kills, " << next - 1 << " jobs sent, " << taken.size()
              << " told as taken, " << printer.jobs().size() << " printed, each once\n";
}

// A file is there until it is kept, so that all of them come out.
TEST_F(KilledHolder, PassesOnEachFileOfAFolderOnce) {
    const int kills = killsWanted();
    const int wanted = heldJobsWanted();
    const fs::path jobs = folder_.filePath("fila").toStdString();
    DirectorySpooler spooler(jobs);
    std::set<int> all;
    const auto put = [&](int job) {
        const std::string bytes = heldBytes(job);
        ASSERT_TRUE(spooler.openPrinter("x") && spooler.startDocument({}) && spooler.startPage() &&
                    spooler.write(bytes) == bytes.size() && spooler.endPage() &&
                    spooler.endDocument() && spooler.closePrinter());
        all.insert(job);
    };
    for (int job = 1; job <= wanted; ++job) {
        ASSERT_NO_FATAL_FAILURE(put(job));
    }
    LastPrinter printer(*server_);
    const QStringList start = arguments() + QStringList{"--pasta", jobs.c_str()};
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        HoldingProgram program;
        ASSERT_NO_FATAL_FAILURE(program.start(start));
        const std::size_t before = printer.count();
        const auto silence = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        const auto come = [&] {
            return std::chrono::steady_clock::now() > silence
                       ? wanted
                       : static_cast<std::int64_t>(printer.count() - before);
        };
        moments_.await(come, 2 * wanted / kills / 3, beyondAJob);
        program.kill();
    }
    HoldingProgram last;
    ASSERT_NO_FATAL_FAILURE(last.start(start));
    ASSERT_NO_FATAL_FAILURE(put(wanted + 1));
    ASSERT_NO_FATAL_FAILURE(awaitLast(printer, wanted + 1));
    expectRight(printer.jobs(), all);
    EXPECT_EQ(printer.jobs().size(), all.size());
    std::cout << kills << " kills, " << all.size() << " files, each printed once\n";
}

}  // namespace
}  // namespace tarn::test
