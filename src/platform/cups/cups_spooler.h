// Raw jobs on a queue of CUPS.
#pragma once

#include <memory>

#include "platform/spooler.h"

namespace tarn {

// Jobs go out as "application/vnd.cups-raw" whatever data type they ask for, without
// banner pages. A job that isn't ended when its handle is replaced or closed, or
// when the object dies, is cancelled: nothing of it prints and the queue goes on. The same
// becomes of a job during which the server fell silent.
class CupsSpooler : public Spooler {
public:
    CupsSpooler();
    ~CupsSpooler() override;
    CupsSpooler(const CupsSpooler&) = delete;
    CupsSpooler& operator=(const CupsSpooler&) = delete;

    std::string defaultPrinter() override;  // "queue" or "queue/instance"
    bool openPrinter(const std::string& name) override;
    bool startDocument(const JobDescription& job) override;
    bool startPage() override;
    std::size_t write(std::string_view bytes) override;
    bool endPage() override;
    bool endDocument() override;
    bool closePrinter() override;
    int documentNumber() const override;
    JobFate fateOf(int documentNumber) override;
    bool answers() const override { return answers_; }

private:
    struct Handle;

    bool answers_ = true;
    std::unique_ptr<Handle> handle_;  // null while no printer is open
};

}  // namespace tarn
