// The machine's seams as the running desk hands them to its routines. What became of the
// paper, and how long the server or a printer is waited for, is noted for the teller; and after the
// end of the program they lead nowhere: ProgramEnded leaves the routine that still wants them.
#pragma once

#include "platform/http_loader.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"
#include "platform/spooler.h"
#include "widgets/teller.h"

namespace tarn {

class ProgramEnd;

class DeskLoader : public HttpLoader {
public:
    DeskLoader(HttpLoader& real, Teller& teller, const ProgramEnd& end)
        : real_(real), teller_(teller), end_(end) {}

    HttpAnswer get(const std::string& address) override;
    bool load(const std::string& address, const BodyReader& read) override;
    void close() override { real_.close(); }

private:
    // `work` between two looks at whether the program has ended.
    template <typename Work>
    auto waited(const Work& work);

    HttpLoader& real_;
    Teller& teller_;
    const ProgramEnd& end_;
};

class DeskSpooler : public Spooler {
public:
    DeskSpooler(Spooler& real, Teller& teller, const ProgramEnd& end)
        : real_(real), teller_(teller), paper_(teller.paper()), end_(end) {}

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
    template <typename Call>
    auto waitFor(Call call) const;
    std::string obstacle() const;
    bool noted(bool taken);

    Spooler& real_;
    Teller& teller_;
    PaperOutcome& paper_;
    const ProgramEnd& end_;
    bool open_ = false;  // what is refused without a job is no refusal
};

class DeskPrinter : public Printer {
public:
    DeskPrinter(Printer& real, Teller& teller, const ProgramEnd& end)
        : real_(real), teller_(teller), paper_(teller.paper()), end_(end) {}

    std::string name() override { return real_.name(); }
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

private:
    std::optional<PrinterFailure> passOn(const PrintOperation& operation);

    Printer& real_;
    Teller& teller_;
    PaperOutcome& paper_;
    const ProgramEnd& end_;
};

class DeskBoxes : public MessageBoxes {
public:
    DeskBoxes(MessageBoxes& real, const ProgramEnd& end) : real_(real), end_(end) {}

    BoxAnswer show(const Box& box) override;

private:
    MessageBoxes& real_;
    const ProgramEnd& end_;
};

}  // namespace tarn
