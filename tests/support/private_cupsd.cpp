#include "tests/support/private_cupsd.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <sstream>
#include <thread>

#include "tests/support/files.h"
#include "tests/support/loopback_address.h"

namespace tarn::test {

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr const char* serverProgram = "/usr/sbin/cupsd";
constexpr const char* socketBackend = "/usr/lib/cups/backend/socket";
constexpr std::chrono::seconds startLimit{20};
constexpr std::chrono::seconds stopLimit{10};
constexpr std::chrono::milliseconds pollStep{10};

// Asks again and again until the condition holds or the time is over.
template <typename Condition>
bool waitFor(Condition holds, Clock::duration limit) {
    const Clock::time_point end = Clock::now() + limit;
    while (!holds()) {
        if (Clock::now() > end) {
            return false;
        }
        std::this_thread::sleep_for(pollStep);
    }
    return true;
}

int millisecondsUntil(Clock::time_point end) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - Clock::now());
    return left.count() > 0 ? static_cast<int>(left.count()) : 0;
}

bool readableBy(int socket, Clock::time_point end) {
    pollfd watched{.fd = socket, .events = POLLIN, .revents = 0};
    return poll(&watched, 1, millisecondsUntil(end)) == 1;
}

// What the page queue's printer can: one size of paper, PDF.
std::string pagePrinter() {
    constexpr int width = 595;  // points
    constexpr int height = 842;
    constexpr int margin = PrivateCupsd::pageMargin;
    std::ostringstream ppd;
    ppd << "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n"
        << "*LanguageVersion: English\n*LanguageEncoding: ISOLatin1\n*PCFileName: \"PAGES.PPD\"\n"
        << "*Manufacturer: \"Test\"\n*Product: \"(Pages)\"\n*ModelName: \"Pages\"\n"
        << "*ShortNickName: \"Pages\"\n*NickName: \"Pages\"\n*PSVersion: \"(3010) 0\"\n"
        << "*LanguageLevel: \"3\"\n*ColorDevice: False\n*DefaultColorSpace: Gray\n"
        << "*cupsVersion: 2.4\n*cupsSNMPSupplies: False\n*cupsFilter2: \"application/pdf "
           "application/pdf 0 -\"\n"
        << "*OpenUI *PageSize/Media Size: PickOne\n*DefaultPageSize: A4\n*PageSize A4/A4: \"\"\n"
        << "*CloseUI: *PageSize\n"
        << "*OpenUI *PageRegion/Media Region: PickOne\n*DefaultPageRegion: A4\n"
        << "*PageRegion A4/A4: \"\"\n*CloseUI: *PageRegion\n"
        << "*DefaultImageableArea: A4\n*ImageableArea A4/A4: \"" << margin << " " << margin << " "
        << width - margin << " " << height - margin << "\"\n*DefaultPaperDimension: A4\n"
        << "*PaperDimension A4/A4: \"" << width << " " << height << "\"\n";
    return ppd.str();
}

}  // namespace

std::string PrivateCupsd::whyMissing() {
    for (const char* program : {serverProgram, socketBackend}) {
        if (access(program, X_OK) != 0) {
            return std::string(program) + " is not installed (package cups)";
        }
    }
    return {};
}

std::string PrivateCupsd::start() {
    std::string path = (fs::temp_directory_path() / "tarn-cupsd-XXXXXX").string();
    if (mkdtemp(path.data()) == nullptr) {
        return "no directory for the server";
    }
    directory_ = path;
    // The backend runs as another user when the server runs as root.
    fs::permissions(directory_,
                    fs::perms::owner_all | fs::perms::group_exec | fs::perms::others_exec);
    if (port_ == 0) {
        if (std::string failed = listenAsPrinter(); !failed.empty()) {
            return failed;
        }
    }
    writeConfiguration();
    run();
    if (!waitFor([this] { return answers() || isGone(); }, startLimit) || isGone()) {
        return "cupsd did not come up:\n" + errorLog();
    }
    pointEnvironmentHere();
    return {};
}

std::string PrivateCupsd::listenAsPrinter() {
    printer_ = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = loopbackAddress();
    socklen_t length = sizeof address;
    auto* generic = reinterpret_cast<sockaddr*>(&address);
    const bool listening = printer_ >= 0 && bind(printer_, generic, length) == 0 &&
                           listen(printer_, SOMAXCONN) == 0 &&
                           getsockname(printer_, generic, &length) == 0;
    port_ = ntohs(address.sin_port);
    return listening ? "" : "no loopback socket for the printer";
}

void PrivateCupsd::writeConfiguration() const {
    for (const char* sub : {"root", "root/ppd", "state", "cache", "spool", "spool/tmp"}) {
        fs::create_directories(directory_ / sub);
    }
    const std::string dir = directory_.string();
    std::ofstream(directory_ / "cupsd.conf")
        << "Listen " << dir << "/cups.sock\nBrowsing Off\nWebInterface No\nLogLevel debug\n"
        << "MaxLogSize 0\nPreserveJobHistory Yes\nDefaultAuthType None\nDefaultPolicy open\n"
        << "<Location />\nOrder allow,deny\nAllow all\n</Location>\n"
        << "<Policy open>\nJobPrivateAccess all\nJobPrivateValues none\n"
        << "<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n";
    std::ofstream files(directory_ / "cups-files.conf");
    files << "ServerRoot " << dir << "/root\nStateDir " << dir << "/state\nCacheDir " << dir
          << "/cache\nRequestRoot " << dir << "/spool\nTempDir " << dir << "/spool/tmp\n"
          << "ErrorLog " << dir << "/error_log\nAccessLog " << dir << "/access_log\n"
          << "PageLog " << dir << "/page_log\nSyncOnClose No\n";
    if (geteuid() == 0) {
        files << "User nobody\nGroup nogroup\nSystemGroup root\n";
    }
    writeQueues();
}

void PrivateCupsd::writeQueues() const {
    std::ofstream queues(directory_ / "root" / "printers.conf");
    for (const std::string queue : {queueName, pageQueueName}) {
        const std::string section = queue == default_ ? "DefaultPrinter" : "Printer";
        queues << "<" << section << " " << queue
               << ">\nInfo test\nDeviceURI socket://127.0.0.1:" << port_
               << "\nState Idle\nAccepting Yes\nShared No\nErrorPolicy retry-job\n</" << section
               << ">\n";
    }
    std::ofstream(directory_ / "root" / "ppd" / (std::string(pageQueueName) + ".ppd"))
        << pagePrinter();
}

void PrivateCupsd::run() {
    const std::string config = (directory_ / "cupsd.conf").string();
    const std::string files = (directory_ / "cups-files.conf").string();
    const pid_t parent = getpid();
    server_ = fork();
    if (server_ != 0) {
        return;
    }
    // The server dies with the test, however that ends.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (getppid() == parent) {
        execl(serverProgram, serverProgram, "-f", "-c", config.c_str(), "-s", files.c_str(),
              nullptr);
    }
    _exit(127);
}

bool PrivateCupsd::answers() const {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = serverSocket();
    if (path.size() >= sizeof address.sun_path) {
        return false;
    }
    std::memcpy(address.sun_path, path.c_str(), path.size());
    const int client = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const bool connected =
        connect(client, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
    close(client);
    return connected;
}

bool PrivateCupsd::isGone() {
    if (server_ > 0 && waitpid(server_, nullptr, WNOHANG) == server_) {
        server_ = -1;
    }
    return server_ <= 0;
}

// libcups is told by its environment, which children inherit; the user's own choice of
// a default printer must not reach in.
void PrivateCupsd::pointEnvironmentHere() {
    const std::map<std::string, std::optional<std::string>> wanted = {
        {"CUPS_SERVER", serverSocket()},
        {"CUPS_SERVERROOT", (directory_ / "root").string()},
        {"HOME", directory_.string()},
        {"LPDEST", std::nullopt},
        {"PRINTER", std::nullopt}};
    for (const auto& [name, value] : wanted) {
        const char* before = std::getenv(name.c_str());
        environmentBefore_[name] =
            before == nullptr ? std::nullopt : std::optional<std::string>(before);
        value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    }
}

void PrivateCupsd::restoreEnvironment() {
    for (const auto& [name, value] : environmentBefore_) {
        value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    }
    environmentBefore_.clear();
}

std::optional<std::string> PrivateCupsd::nextJob(std::chrono::milliseconds timeOut) {
    const Clock::time_point end = Clock::now() + timeOut;
    if (!readableBy(printer_, end)) {
        return std::nullopt;
    }
    const int client = accept4(printer_, nullptr, nullptr, SOCK_CLOEXEC);
    std::string bytes;
    std::array<char, 65536> buffer{};
    ssize_t count = -1;
    while (client >= 0 && readableBy(client, end)) {
        count = read(client, buffer.data(), buffer.size());
        if (count <= 0) {
            break;
        }
        bytes.append(buffer.data(), static_cast<std::size_t>(count));
        count = -1;
    }
    close(client);
    return count == 0 ? std::optional(bytes) : std::nullopt;
}

namespace {

// What an administrator does, with the tools of CUPS.
bool administer(const char* program, const char* queue) {
    const pid_t tool = fork();
    if (tool == 0) {
        execlp(program, program, queue, nullptr);
        _exit(127);
    }
    int status = -1;
    return waitpid(tool, &status, 0) == tool && status == 0;
}

}  // namespace

bool PrivateCupsd::pauseQueue(const char* queue) const {
    return administer("cupsdisable", queue);
}

bool PrivateCupsd::resumeQueue(const char* queue) const {
    return administer("cupsenable", queue);
}

bool PrivateCupsd::refuseJobs(const char* queue) const {
    return administer("cupsreject", queue);
}

bool PrivateCupsd::acceptJobs(const char* queue) const {
    return administer("cupsaccept", queue);
}

void PrivateCupsd::holdStill() const {
    kill(server_, SIGSTOP);
}

void PrivateCupsd::goOn() const {
    kill(server_, SIGCONT);
}

void PrivateCupsd::stop() {
    restoreEnvironment();
    if (server_ > 0) {
        goOn();
        kill(server_, SIGTERM);
        if (!waitFor([this] { return isGone(); }, stopLimit)) {
            kill(server_, SIGKILL);
            waitpid(server_, nullptr, 0);
            server_ = -1;
        }
    }
    if (printer_ >= 0) {
        close(printer_);
        printer_ = -1;
    }
    if (!directory_.empty()) {
        std::error_code ignored;
        fs::remove_all(directory_, ignored);
        directory_.clear();
    }
}

std::string PrivateCupsd::errorLog() const {
    return contentOf(directory_ / "error_log");
}

}  // namespace tarn::test
