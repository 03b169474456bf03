// The printing seams for a program with windows: however long the machine's print service
// takes, the windows repaint meanwhile, and what is typed is kept.
#pragma once

#include <functional>

#include "platform/printer.h"
#include "platform/qt/side_thread.h"
#include "platform/spooler.h"

namespace tarn {

class PatientSpooler : public Spooler {
public:
    // `real` is used on `side` alone, but for its answers().
    PatientSpooler(Spooler& real, SideThread& side) : real_(real), side_(side) {}

    std::string defaultPrinter() override;
    bool openPrinter(const std::string& name) override;
    bool startDocument(const JobDescription& job) override;
    bool startPage() override;
    std::size_t write(std::string_view bytes) override;
    bool endPage() override;
    bool endDocument() override;
    bool closePrinter() override;
    bool tellsKinds() const override { return real_.tellsKinds(); }
    bool answers() const override { return real_.answers(); }

private:
    Spooler& real_;
    SideThread& side_;
};

class PatientPrinter : public Printer {
public:
    PatientPrinter(Printer& real, SideThread& side) : real_(real), side_(side) {}

    std::string name() override;
    // Asks the machine when a document begins and when it ends; what comes between is noted
    // at once. `progress` is told on the calling thread.
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

private:
    std::optional<PrinterFailure> aside(const PrintOperation& operation);

    Printer& real_;
    SideThread& side_;
    bool begun_ = false;
};

}  // namespace tarn
