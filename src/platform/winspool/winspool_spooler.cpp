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

#include "runtime/wide_text.h"

namespace tarn {

namespace {

std::optional<std::wstring> wideOrNone(const std::optional<std::string>& text) {
    return text ? std::optional(wideOf(*text)) : std::nullopt;
}

// The spooler's record takes texts that it doesn't change, though it doesn't say so.
wchar_t* textOrNull(std::optional<std::wstring>& text) {
    return text ? text->data() : nullptr;
}

// The last call failed because the print service isn't there or doesn't speak.
bool serviceIsSilent() {
    const DWORD error = GetLastError();
    return error == RPC_S_SERVER_UNAVAILABLE || error == RPC_S_SERVER_TOO_BUSY ||
           error == RPC_S_CALL_FAILED;
}

}  // namespace

WinspoolSpooler::~WinspoolSpooler() {
    dropHandle();
}

std::string WinspoolSpooler::defaultPrinter() {
    answers_ = true;
    DWORD size = 0;
    GetDefaultPrinterW(nullptr, &size);
    std::wstring name(size, L'\0');
    if (size == 0 || GetDefaultPrinterW(name.data(), &size) == 0) {
        answers_ = !serviceIsSilent();
        return {};
    }
    return utf8Of(name.substr(0, name.find(L'\0')));
}

bool WinspoolSpooler::openPrinter(const std::string& name) {
    dropHandle();
    std::wstring device = wideOf(name);
    HANDLE handle = nullptr;
    answers_ = true;
    if (OpenPrinterW(device.data(), &handle, nullptr) == 0) {
        answers_ = !serviceIsSilent();
        return false;
    }
    printer_ = handle;
    return true;
}

bool WinspoolSpooler::startDocument(const JobDescription& job) {
    if (printer_ == nullptr || started_) {
        return false;
    }
    std::optional<std::wstring> docName = wideOrNone(job.docName);
    std::optional<std::wstring> outputFile = wideOrNone(job.outputFile);
    std::optional<std::wstring> dataType = wideOrNone(job.dataType);
    DOC_INFO_1W record{};
    record.pDocName = textOrNull(docName);
    record.pOutputFile = textOrNull(outputFile);
    record.pDatatype = textOrNull(dataType);
    constexpr DWORD level = 1;
    document_ = StartDocPrinterW(printer_, level, reinterpret_cast<LPBYTE>(&record));
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
    GetJobW(printer_, number, level, nullptr, 0, &size);
    std::vector<BYTE> room(size);
    if (size == 0 || GetJobW(printer_, number, level, room.data(), size, &size) == 0) {
        return JobFate::Doubtful;
    }
    const auto* job = reinterpret_cast<const JOB_INFO_1W*>(room.data());
    if ((job->Status & JOB_STATUS_SPOOLING) == 0) {
        return JobFate::Arrived;
    }
    SetJobW(printer_, number, 0, nullptr, JOB_CONTROL_DELETE);
    return JobFate::NeverArrived;
}

}  // namespace tarn
