#include "platform/cups/cups_spooler.h"

#include <cups/cups.h>

#include <sys/socket.h>

#include <array>

namespace tarn {

namespace {

struct CloseHttp {
    void operator()(http_t* http) const { httpClose(http); }
};
using Connection = std::unique_ptr<http_t, CloseHttp>;

// How long the server may be silent. It answers at once what it is asked here, also where its
// printers are slow or stopped.
constexpr int patienceSeconds = 4;

// Nobody sits at a terminal: where a server wants a password the request fails.
const char* noPassword(const char*, http_t*, const char*, const char*, void*) {
    return nullptr;
}

int giveUp(http_t*, void* answers) {
    *static_cast<bool*>(answers) = false;
    return 0;
}

// A connection of its own: a document under way must not meet other requests. `answers`, which
// must outlive it, is from now on whether the server did.
Connection connectToServer(bool& answers) {
    cupsSetPasswordCB2(noPassword, nullptr);  // known to one thread alone
    Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                       cupsEncryption(), 1, patienceSeconds * 1000, nullptr));
    answers = connection != nullptr;
    if (connection) {
        httpSetTimeout(connection.get(), patienceSeconds, giveUp, &answers);
    }
    return connection;
}

// Of a name as defaultPrinter gives it: behind "/" stands an instance of the queue.
std::string queueOf(const std::string& name) {
    return name.substr(0, name.find('/'));
}

bool isOk(ipp_status_t status) {
    return status >= IPP_STATUS_OK && status <= IPP_STATUS_OK_CONFLICTING;
}

struct DeleteIpp {
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Message = std::unique_ptr<ipp_t, DeleteIpp>;

ipp_t* requestOf(ipp_op_t operation, const std::string& queue) {
    std::array<char, HTTP_MAX_URI> uri{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), uri.size(), "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.c_str());
    ipp_t* request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
    return request;
}

void addUser(ipp_t* request) {
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
}

int numberIn(ipp_t* answer, const char* name) {
    ipp_attribute_t* attribute = ippFindAttribute(answer, name, IPP_TAG_ZERO);
    return attribute == nullptr ? 0 : ippGetInteger(attribute, 0);
}

// Asked for in so many words: libcups' own search goes on over other connections, which wait
// for minutes.
bool hasQueue(http_t* http, const std::string& queue) {
    ipp_t* request = requestOf(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    addUser(request);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "printer-name");
    const Message answer(cupsDoRequest(http, request, "/"));
    return answer && isOk(ippGetStatusCode(answer.get()));
}

// A job gets its kilobytes together with its document; before that the server holds it, and
// ends it by itself if no document follows.
JobFate fateIn(ipp_t* answer) {
    const bool hasDocument = numberIn(answer, "job-k-octets") > 0;
    switch (static_cast<ipp_jstate_t>(numberIn(answer, "job-state"))) {
        case IPP_JSTATE_HELD:
            return hasDocument ? JobFate::Arrived : JobFate::NeverArrived;
        case IPP_JSTATE_PENDING:
        case IPP_JSTATE_PROCESSING:
        case IPP_JSTATE_STOPPED:
        case IPP_JSTATE_COMPLETED:
            return JobFate::Arrived;
        case IPP_JSTATE_CANCELED:
        case IPP_JSTATE_ABORTED:
            return hasDocument ? JobFate::Doubtful : JobFate::NeverArrived;
    }
    return JobFate::Doubtful;
}

const char* textOrNull(const std::optional<std::string>& text) {
    return text && !text->empty() ? text->c_str() : nullptr;
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
        bool answers = false;
        if (const Connection other = connectToServer(answers)) {
            constexpr int keepInHistory = 0;
            cupsCancelJob2(other.get(), queue.c_str(), job, keepInHistory);
        }
        job = 0;
    }
};

CupsSpooler::CupsSpooler() = default;

CupsSpooler::~CupsSpooler() = default;

std::string CupsSpooler::defaultPrinter() {
    const Connection connection = connectToServer(answers_);
    if (!connection) {
        return {};
    }
    const char* name = cupsGetDefault2(connection.get());
    return name == nullptr ? std::string() : std::string(name);
}

bool CupsSpooler::openPrinter(const std::string& name) {
    handle_.reset();
    if (name.empty()) {
        return false;
    }
    Connection connection = connectToServer(answers_);
    if (!connection) {
        return false;
    }
    const std::string queue = queueOf(name);
    if (!hasQueue(connection.get(), queue)) {
        return false;
    }
    handle_ = std::make_unique<Handle>(std::move(connection), queue);
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
    if (status != HTTP_STATUS_CONTINUE) {
        handle_->cancel();  // rather than half a form, and a wait for each of its lines
        return 0;
    }
    return bytes.size();
}

bool CupsSpooler::endPage() {
    return handle_ && handle_->job != 0;
}

bool CupsSpooler::endDocument() {
    if (!handle_ || handle_->job == 0) {
        return false;
    }
    // Of a server that fell silent the call gives the status before.
    const ipp_status_t status =
        cupsFinishDocument(handle_->connection.get(), handle_->queue.c_str());
    if (!isOk(status) || !answers_) {
        handle_->cancel();
        return false;
    }
    handle_->job = 0;
    return true;
}

int CupsSpooler::documentNumber() const {
    return handle_ ? handle_->job : 0;
}

// Over a connection of its own: the printer's may be lost with what broke off.
JobFate CupsSpooler::fateOf(int documentNumber) {
    const Connection connection = handle_ ? connectToServer(answers_) : nullptr;
    if (!connection) {
        return JobFate::Unknown;
    }
    ipp_t* request = requestOf(IPP_OP_GET_JOB_ATTRIBUTES, handle_->queue);
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", documentNumber);
    addUser(request);
    const std::array<const char*, 2> wanted{"job-state", "job-k-octets"};
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes",
                  static_cast<int>(wanted.size()), nullptr, wanted.data());
    const Message answer(cupsDoRequest(connection.get(), request, "/"));
    if (!answer || !answers_) {
        return JobFate::Unknown;
    }
    if (ippGetStatusCode(answer.get()) == IPP_STATUS_ERROR_NOT_FOUND) {
        return JobFate::Doubtful;
    }
    if (!isOk(ippGetStatusCode(answer.get()))) {
        return JobFate::Unknown;
    }
    const JobFate fate = fateIn(answer.get());
    if (fate == JobFate::NeverArrived) {
        constexpr int keepInHistory = 0;
        cupsCancelJob2(connection.get(), handle_->queue.c_str(), documentNumber, keepInHistory);
    }
    return fate;
}

bool CupsSpooler::closePrinter() {
    const bool wasOpen = handle_ != nullptr;
    handle_.reset();
    return wasOpen;
}

}  // namespace tarn
