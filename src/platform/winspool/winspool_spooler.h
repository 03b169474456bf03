// Raw jobs on a printer of Windows.
#pragma once

#include "platform/spooler.h"

namespace tarn {

// A job that isn't ended when its handle is replaced or closed, or when the object
// dies, is aborted, so that no queue blocks.
class WinspoolSpooler : public Spooler {
public:
    WinspoolSpooler() = default;
    ~WinspoolSpooler() override;
    WinspoolSpooler(const WinspoolSpooler&) = delete;
    WinspoolSpooler& operator=(const WinspoolSpooler&) = delete;

    std::string defaultPrinter() override;
    bool openPrinter(const std::string& name) override;
    bool startDocument(const JobDescription& job) override;
    bool startPage() override;
    std::size_t write(std::string_view bytes) override;
    bool endPage() override;
    bool endDocument() override;
    bool closePrinter() override;
    bool answers() const override { return answers_; }
    int documentNumber() const override { return static_cast<int>(document_); }
    JobFate fateOf(int documentNumber) override;

private:
    void dropHandle();

    void* printer_ = nullptr;     // a HANDLE
    bool started_ = false;        // a document is under way
    unsigned long document_ = 0;  // its number
    bool answers_ = true;
};

}  // namespace tarn
