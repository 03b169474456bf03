#include "platform/cups/cups_spooler.h"

#include <cups/cups.h>

#include <sys/socket.h>

namespace tarn {

namespace {

struct CloseHttp {
    void operator()(http_t* http) const { httpClose(http); }
};
using Connection = std::unique_ptr<http_t, CloseHttp>;

struct FreeDestination {
    void operator()(cups_dest_t* dest) const { cupsFreeDests(1, dest); }
};
using Destination = std::unique_ptr<cups_dest_t, FreeDestination>;

// A connection of its own: a document under way must not meet other requests.
Connection connectToServer() {
    constexpr int milliseconds = 30000;
    return Connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1,
                                   milliseconds, nullptr));
}

// A name as defaultPrinter gives it: the queue, and behind "/" an instance of it.
Destination findDestination(http_t* http, const std::string& name) {
    const std::size_t slash = name.find('/');
    const std::string queue = name.substr(0, slash);
    const std::string instance = slash == std::string::npos ? "" : name.substr(slash + 1);
    return Destination(
        cupsGetNamedDest(http, queue.c_str(), instance.empty() ? nullptr : instance.c_str()));
}

const char* textOrNull(const std::optional<std::string>& text) {
    return text && !text->empty() ? text->c_str() : nullptr;
}

bool isOk(ipp_status_t status) {
    return status >= IPP_STATUS_OK && status <= IPP_STATUS_OK_CONFLICTING;
}

}  // namespace

struct CupsSpooler::Handle {
    Connection connection;
    std::string queue;
    int job = 0;  // 0: no document is under way

    Handle(Connection openConnection, std::string queueName)
        : connection(std::move(openConnection)), queue(std::move(queueName)) {}
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    ~Handle() { cancel(); }

    // The request that carries the document can't be taken back on its own
    // connection, so that one is dropped and the job cancelled over another.
    void cancel() {
        if (job == 0) {
            return;
        }
        connection.reset();
        if (const Connection other = connectToServer()) {
            constexpr int keepInHistory = 0;
            cupsCancelJob2(other.get(), queue.c_str(), job, keepInHistory);
        }
        job = 0;
    }
};

CupsSpooler::CupsSpooler() {
    // Where a server wants a password the request fails: nobody sits at a terminal.
    cupsSetPasswordCB2([](const char*, http_t*, const char*, const char*,
                          void*) -> const char* { return nullptr; },
                       nullptr);
}

CupsSpooler::~CupsSpooler() = default;

std::string CupsSpooler::defaultPrinter() {
    const Connection connection = connectToServer();
    if (!connection) {
        return {};
    }
    const Destination dest(cupsGetNamedDest(connection.get(), nullptr, nullptr));
    if (!dest) {
        return {};
    }
    std::string name = dest->name;
    return dest->instance == nullptr ? name : name.append("/").append(dest->instance);
}

bool CupsSpooler::openPrinter(const std::string& name) {
    handle_.reset();
    Connection connection = connectToServer();
    if (name.empty() || !connection) {
        return false;
    }
    const Destination dest = findDestination(connection.get(), name);
    if (!dest) {
        return false;
    }
    handle_ = std::make_unique<Handle>(std::move(connection), dest->name);
    return true;
}

bool CupsSpooler::startDocument(const JobDescription& job) {
    if (!handle_ || handle_->job != 0 || !handle_->connection) {
        return false;
    }
    cups_option_t* options = nullptr;
    const int count = cupsAddOption("job-sheets", "none", 0, &options);
    http_t* http = handle_->connection.get();
    const char* queue = handle_->queue.c_str();
    const char* title = textOrNull(job.docName);
    handle_->job = cupsCreateJob(http, queue, title, count, options);
    cupsFreeOptions(count, options);
    if (handle_->job == 0) {
        return false;
    }
    constexpr int lastDocument = 1;
    const http_status_t status =
        cupsStartDocument(http, queue, handle_->job, title, CUPS_FORMAT_RAW, lastDocument);
    if (status != HTTP_STATUS_CONTINUE) {
        handle_->cancel();
        return false;
    }
    return true;
}

bool CupsSpooler::startPage() {
    return handle_ && handle_->job != 0;
}

std::size_t CupsSpooler::write(std::string_view bytes) {
    // An empty write would end the request.
    if (!handle_ || handle_->job == 0 || bytes.empty()) {
        return 0;
    }
    const http_status_t status =
        cupsWriteRequestData(handle_->connection.get(), bytes.data(), bytes.size());
    return status == HTTP_STATUS_CONTINUE ? bytes.size() : 0;
}

bool CupsSpooler::endPage() {
    return handle_ && handle_->job != 0;
}

bool CupsSpooler::endDocument() {
    if (!handle_ || handle_->job == 0) {
        return false;
    }
    if (!isOk(cupsFinishDocument(handle_->connection.get(), handle_->queue.c_str()))) {
        handle_->cancel();
        return false;
    }
    handle_->job = 0;
    return true;
}

bool CupsSpooler::closePrinter() {
    const bool wasOpen = handle_ != nullptr;
    handle_.reset();
    return wasOpen;
}

}  // namespace tarn
