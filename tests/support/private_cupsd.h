// A cupsd of the test's own: its files in a new directory, reached by a socket in
// there, with a raw queue and one of drawn pages, whose printer is a loopback socket of the
// test. The system's cupsd, if there is one, isn't touched.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace tarn::test {

class PrivateCupsd {
public:
    static constexpr const char* queueName = "tarn_raw";
    // A4, takes PDF as it is; leaves this many points at each edge of the sheet.
    static constexpr const char* pageQueueName = "tarn_pages";
    static constexpr int pageMargin = 18;

    // Why no cupsd can be run here, for a test to skip with; empty when it can.
    static std::string whyMissing();

    PrivateCupsd() = default;
    ~PrivateCupsd() { stop(); }
    PrivateCupsd(const PrivateCupsd&) = delete;
    PrivateCupsd& operator=(const PrivateCupsd&) = delete;

    // The queue's printer listens on this loopback port, and nextJob() hears nothing; to
    // be called before start().
    void printTo(int port) { port_ = port; }
    // The queue that is the default printer; likewise.
    void makeDefault(const char* queue) { default_ = queue; }

    // Runs the server and, for this process and its children, makes it the CUPS
    // server (CUPS_SERVER) with one of its queues as the default printer. To be called before
    // anything uses libcups. Returns what went wrong, empty for nothing.
    std::string start();

    // The bytes of the next job that reaches the printer; nothing when none came, or
    // none came whole, in that time. A job waits until it is asked for.
    std::optional<std::string> nextJob(std::chrono::milliseconds timeOut);

    // The queue takes jobs and prints none until it is resumed; it refuses jobs until it
    // accepts them again. Return whether the server did so.
    bool pauseQueue(const char* queue) const;
    bool resumeQueue(const char* queue) const;
    bool refuseJobs(const char* queue) const;
    bool acceptJobs(const char* queue) const;

    // The server says nothing until it may go on.
    void holdStill() const;
    void goOn() const;

    // Ends the server, waits until it is gone, and removes its files.
    void stop();

    std::string serverSocket() const { return (directory_ / "cups.sock").string(); }
    std::string errorLog() const;

private:
    std::string listenAsPrinter();
    void writeConfiguration() const;
    void writeQueues() const;
    void run();
    bool answers() const;
    bool isGone();
    void pointEnvironmentHere();
    void restoreEnvironment();

    std::filesystem::path directory_;
    int printer_ = -1;  // listening socket
    int port_ = 0;
    std::string default_ = queueName;
    pid_t server_ = -1;
    std::map<std::string, std::optional<std::string>> environmentBefore_;
};

}  // namespace tarn::test
