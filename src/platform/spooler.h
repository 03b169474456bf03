// Seam: the life of a raw print job. There is one handle; opening replaces it.
// Results are there for who wants them; documents don't look at them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/job_kind.h"

namespace tarn {

// Three texts, each null by default: the job has no name and the printer's
// default data type.
struct JobDescription {
    std::optional<std::string> docName;
    std::optional<std::string> outputFile;
    std::optional<std::string> dataType;
    // What the job prints, for a spooler that can tell it on; nothing of it reaches a printer.
    JobKind kind{};
};

// What is told of a print service that doesn't answer; Portuguese, part of a sentence.
inline constexpr std::string_view spoolerIsSilent =
    "o serviço de impressão desta máquina não responde";

// What a queue tells of a job that was on its way to it when something broke off.
enum class JobFate {
    Arrived,
    NeverArrived,  // nothing of it prints, now or later
    Doubtful,      // it was cancelled on its way, or the queue knows of it no more
    Unknown        // the queue doesn't answer
};

class Spooler {
public:
    virtual ~Spooler() = default;
    // Device name of the system's current default printer; empty when there is none.
    virtual std::string defaultPrinter() = 0;
    virtual bool openPrinter(const std::string& name) = 0;
    virtual bool startDocument(const JobDescription& job) = 0;
    virtual bool startPage() = 0;
    // Bytes of the printer's page; returns how many were taken.
    virtual std::size_t write(std::string_view bytes) = 0;
    virtual bool endPage() = 0;
    virtual bool endDocument() = 0;
    virtual bool closePrinter() = 0;

    // The number that the printer's queue gave the document under way, 0 where it gives
    // none. Nothing of a document prints before endDocument.
    virtual int documentNumber() const { return 0; }
    // Of a document by that number of the open printer. One that never arrived is taken out
    // of the queue.
    virtual JobFate fateOf(int /*documentNumber*/) { return JobFate::Doubtful; }

    // Whether it tells on what the jobs print: only then is it worth finding out what they cut.
    virtual bool tellsKinds() const { return false; }

    // Whether the system's print service answered when it was last asked for something.
    virtual bool answers() const { return true; }
};

}  // namespace tarn
