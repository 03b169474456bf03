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

    // Whether the system's print service answered when it was last asked for something.
    virtual bool answers() const { return true; }
};

}  // namespace tarn
