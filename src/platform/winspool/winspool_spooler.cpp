#include "platform/winspool/winspool_spooler.h"

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
// after windows.h, which it needs
#include <winspool.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace tarn {

namespace {

// The spooler's record takes texts that it doesn't change, though it doesn't say so.
char* textOrNull(std::optional<std::string>& text) {
    return text ? text->data() : nullptr;
}

}  // namespace

WinspoolSpooler::~WinspoolSpooler() {
    dropHandle();
}

std::string WinspoolSpooler::defaultPrinter() {
    DWORD size = 0;
    GetDefaultPrinterA(nullptr, &size);
    if (size == 0) {
        return {};
    }
    std::string name(size, '\0');
    if (GetDefaultPrinterA(name.data(), &size) == 0) {
        return {};
    }
    name.resize(name.find('\0'));
    return name;
}

bool WinspoolSpooler::openPrinter(const std::string& name) {
    dropHandle();
    std::string device = name;
    HANDLE handle = nullptr;
    if (OpenPrinterA(device.data(), &handle, nullptr) == 0) {
        return false;
    }
    printer_ = handle;
    return true;
}

bool WinspoolSpooler::startDocument(const JobDescription& job) {
    if (printer_ == nullptr || started_) {
        return false;
    }
    JobDescription texts = job;
    DOC_INFO_1A record{};
    record.pDocName = textOrNull(texts.docName);
    record.pOutputFile = textOrNull(texts.outputFile);
    record.pDatatype = textOrNull(texts.dataType);
    constexpr DWORD level = 1;
    document_ = StartDocPrinterA(printer_, level, reinterpret_cast<LPBYTE>(&record));
    started_ = document_ != 0;
    return started_;
}

bool WinspoolSpooler::startPage() {
    return started_ && StartPagePrinter(printer_) != 0;
}

std::size_t WinspoolSpooler::write(std::string_view bytes) {
    if (!started_) {
        return 0;
    }
    constexpr std::size_t most = std::numeric_limits<DWORD>::max();
    std::string copy(bytes.substr(0, std::min(bytes.size(), most)));
    DWORD written = 0;
    const BOOL done =
        WritePrinter(printer_, copy.data(), static_cast<DWORD>(copy.size()), &written);
    return done != 0 ? written : 0;
}

bool WinspoolSpooler::endPage() {
    return started_ && EndPagePrinter(printer_) != 0;
}

bool WinspoolSpooler::endDocument() {
    if (!started_) {
        return false;
    }
    started_ = false;
    document_ = 0;
    return EndDocPrinter(printer_) != 0;
}

bool WinspoolSpooler::closePrinter() {
    const bool wasOpen = printer_ != nullptr;
    dropHandle();
    return wasOpen;
}

// A document under way is aborted first, or closing would send it on.
void WinspoolSpooler::dropHandle() {
    if (printer_ == nullptr) {
        return;
    }
    if (started_) {
        AbortPrinter(printer_);
    }
    ClosePrinter(printer_);
    printer_ = nullptr;
    started_ = false;
    document_ = 0;
}

// A document that is printed leaves the queue, as one that was aborted does.
JobFate WinspoolSpooler::fateOf(int documentNumber) {
    const auto number = static_cast<DWORD>(documentNumber);
    constexpr DWORD level = 1;
    DWORD size = 0;
    GetJobA(printer_, number, level, nullptr, 0, &size);
    std::vector<BYTE> room(size);
    if (size == 0 || GetJobA(printer_, number, level, room.data(), size, &size) == 0) {
        return JobFate::Doubtful;
    }
    const auto* job = reinterpret_cast<const JOB_INFO_1A*>(room.data());
    if ((job->Status & JOB_STATUS_SPOOLING) == 0) {
        return JobFate::Arrived;
    }
    SetJobA(printer_, number, 0, nullptr, JOB_CONTROL_DELETE);
    return JobFate::NeverArrived;
}

}  // namespace tarn
