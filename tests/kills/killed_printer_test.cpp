// The virtual printer killed while jobs come in: what its file shows at any moment is whole
// jobs, each once, and what it showed before the end it still shows.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QDir>
#include <QTemporaryDir>
#include <atomic>
#include <iostream>
#include <set>
#include <thread>

#include "platform/directory/directory_spooler.h"
#include "tests/e2e/programs.h"
#include "tests/kills/kills.h"
#include "tests/support/loopback_address.h"

namespace tarn::test {
namespace {

constexpr int senders = 4;
constexpr std::int64_t mostJobs = 200;  // before a kill
constexpr int jobsAKill = 20;           // of a folder
constexpr std::chrono::milliseconds longestPrinting(600);

std::string lines(int job, const char* lineEnd) {
    std::string text;
    for (int line = 1; line <= 1 + job % 60; ++line) {
        text += "trabalho " + std::to_string(job) + " linha " + std::to_string(line) + lineEnd;
    }
    return text;
}

// A form each.
std::string bytesOf(int job) {
    return lines(job, "\r\n") + '\f';
}

// The numbers of the jobs on the paper, in order; fails where one isn't whole.
std::vector<int> jobsOn(const std::string& paper) {
    std::vector<int> jobs;
    std::size_t at = 0;
    while (at < paper.size()) {
        const std::size_t end = std::min(paper.find('\f', at), paper.size());
        const std::string form = paper.substr(at, end - at);
        int job = -1;
        if (std::sscanf(form.c_str(), "trabalho %d ", &job) != 1 || form != lines(job, "\n")) {
            ADD_FAILURE() << "half a job: " << form;
            return jobs;
        }
        jobs.push_back(job);
        at = end + 1;
    }
    EXPECT_EQ(std::set<int>(jobs.begin(), jobs.end()).size(), jobs.size()) << "printed twice";
    return jobs;
}

class Printer {
public:
    void start(const QStringList& arguments) {
        process_.start(TARNIMPRESSORA, arguments);
        while (!process_.canReadLine() && process_.waitForReadyRead(patienceMs)) {
        }
        const QString line = QString::fromUtf8(process_.readLine()).trimmed();
        ASSERT_FALSE(line.isEmpty()) << process_.readAllStandardError().toStdString();
        port_ = static_cast<quint16>(line.section(u' ', -1).toInt());
    }
    void kill() {
        process_.kill();
        ASSERT_TRUE(process_.waitForFinished(patienceMs));
    }
    bool ended() { return process_.waitForFinished(patienceMs) && process_.exitCode() == 0; }
    quint16 port() const { return port_; }

private:
    QProcess process_;
    quint16 port_ = 0;
};

// Looks at the paper again and again; nothing it once showed goes away.
class Reader {
public:
    explicit Reader(QString file)
        : file_(std::move(file)), thread_([this] {
              while (!done_) {
                  look();
                  std::this_thread::sleep_for(std::chrono::milliseconds(2));
              }
          }) {}
    ~Reader() {
        done_ = true;
        thread_.join();
        look();
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;
    std::int64_t shown() const { return shown_; }

private:
    void look() {
        const std::string paper = contentOf(file_);
        if (paper == seen_) {
            return;
        }
        shown_ = static_cast<std::int64_t>(jobsOn(paper).size());
        EXPECT_TRUE(paper.starts_with(seen_)) << "what was shown is gone";
        seen_ = paper;
    }

    QString file_;
    std::string seen_;
    std::atomic<std::int64_t> shown_ = 0;
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

class KilledPrinter : public testing::Test {
protected:
    // Jobs from several senders until the printer is gone: at any moment, or at one after it
    // has shown some.
    void sendUntilKilled(Printer& printer, const Reader& reader, bool afterSomeShown) {
        std::vector<std::thread> threads;
        threads.reserve(senders);
        for (int i = 0; i < senders; ++i) {
            threads.emplace_back([this, &printer] {
                while (send(printer.port(), next_++)) {
                }
            });
        }
        const int before = next_;
        while (afterSomeShown && reader.shown() == 0) {
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        moments_.await([this, before] { return next_ - before; }, mostJobs, longestPrinting);
        printer.kill();
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
    // True once the printer has taken all of the job, which it tells by closing.
    static bool send(quint16 port, int job) {
        const int connection = socket(AF_INET, SOCK_STREAM, 0);
        const sockaddr_in place = loopbackAddress(port);
        const std::string bytes = bytesOf(job);
        char nothing = 0;
        const bool taken =
            connect(connection, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0 &&
            ::send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL) ==
                static_cast<ssize_t>(bytes.size()) &&
            shutdown(connection, SHUT_WR) == 0 && recv(connection, &nothing, 1, 0) == 0;
        close(connection);
        return taken;
    }

    QTemporaryDir folder_;
    KillMoments moments_;
    std::atomic<int> next_ = 1;
};

TEST_F(KilledPrinter, ShowsWholeJobsOnlyFromTheNetwork) {
    const int kills = killsWanted();
    std::size_t shown = 0;
    for (int kill = 1; kill <= kills && !HasFailure(); ++kill) {
        SCOPED_TRACE("kill " + std::to_string(kill));
        const QString file = folder_.filePath(QString::number(kill) + ".txt");
        Printer printer;
        ASSERT_NO_FATAL_FAILURE(printer.start({"--porta", "0", "--texto", file}));
        {
            const Reader reader(file);
            sendUntilKilled(printer, reader, kill % 2 == 0);
        }
        shown += jobsOn(contentOf(file)).size();
    }
    EXPECT_GT(shown, 0U);
    std::cout << kills << " kills, " << next_ - 1 << " jobs sent, " << shown
              << " shown before their kill\n";
}

// Killed and started again over one folder into which a desk prints meanwhile.
TEST_F(KilledPrinter, PrintsEachJobOfAFolderOnceAfterTheLastKill) {
    const int kills = killsWanted();
    const QString jobs = folder_.filePath("fila");
    ASSERT_TRUE(QDir().mkpath(jobs));
    const QStringList arguments{"--pasta", jobs, "--texto", folder_.filePath("papel.txt")};
    std::atomic<bool> enough = false;
    std::atomic<int> most = 0;  // so that a slow machine has no more to print at the end
    std::thread desk([&] {
        DirectorySpooler spooler(std::filesystem::path(jobs.toStdString()));
        while (!enough) {
            if (next_ > most) {
                std::this_thread::yield();
                continue;
            }
            const std::string job = bytesOf(next_);
            const std::string_view bytes = job;
            const std::size_t half = bytes.size() / 2;
            EXPECT_TRUE(spooler.openPrinter("x") && spooler.startDocument({}) &&
                        spooler.startPage() && spooler.write(bytes.substr(0, half)) == half &&
                        spooler.write(bytes.substr(half)) == bytes.size() - half &&
                        spooler.endPage() && spooler.endDocument() && spooler.closePrinter());
            ++next_;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    });
    for (int kill = 1; kill <= kills; ++kill) {
        Printer printer;
        printer.start(arguments);
        most += jobsAKill;
        moments_.await(longestPrinting);
        printer.kill();
        jobsOn(contentOf(folder_.filePath("papel.txt")));
    }
    enough = true;
    desk.join();
    Printer last;
    ASSERT_NO_FATAL_FAILURE(
        last.start(arguments + QStringList{"--quantos", QString::number(next_ - 1)}));
    ASSERT_TRUE(last.ended());
    const std::vector<int> printed = jobsOn(contentOf(folder_.filePath("papel.txt")));
    ASSERT_EQ(printed.size(), static_cast<std::size_t>(next_ - 1));
    for (std::size_t i = 0; i < printed.size(); ++i) {
        EXPECT_EQ(printed[i], static_cast<int>(i) + 1);
    }
    std::cout << kills << " kills, " << printed.size() << " jobs, each printed once\n";
}

}  // namespace
}  // namespace tarn::test
