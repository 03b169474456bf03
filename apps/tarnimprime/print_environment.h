// What the documents print on here: no server, no window.
#pragma once

#include <memory>
#include <optional>
#include <utility>

#include "apps/tarnimprime/commands.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/http_loader.h"
#include "platform/machine.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"
#include "platform/spooler.h"

namespace tarn::print {

class NoServer : public HttpLoader {
public:
    HttpAnswer get(const std::string&) override { return {}; }
};

// A box's text on stderr; the default button is its answer.
class TerminalBoxes : public MessageBoxes {
public:
    BoxAnswer show(const Box& box) override;
};

// Remembers whether the printer refused anything.
class WatchedPages : public Printer {
public:
    explicit WatchedPages(std::unique_ptr<Printer> pages) : pages_(std::move(pages)) {}

    bool refused() const { return refused_; }
    std::string name() override { return pages_->name(); }
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

private:
    std::unique_ptr<Printer> pages_;
    bool refused_ = false;
};

class SystemClock : public Clock {
public:
    Date today() override;
    TimeOfDay timeOfDay() override;
};

class NoMachine : public Machine {
public:
    bool setShortDateFormat(const std::string&) override { return true; }
    std::string systemDirectory() override { return {}; }
    void beep() override {}
};

class PrintEnvironment {
public:
    explicit PrintEnvironment(const GlobalOptions& options);

    // For printing; cli::WrongUsage when there is nowhere to print.
    Environment& environment();
    // Directory of the jobs, if they go into one.
    const std::optional<std::string>& destination() const { return options_.destination; }
    // For looking at what would print: as `environment` where a directory was given, else
    // nothing is printed.
    Environment& dryRunEnvironment();
    // Whether the printer refused part of a drawn document.
    bool pagesRefused() const { return pages_ && pages_->refused(); }

private:
    void prepareFolder();
    void preparePrinter();
    void prepareNothing();
    void drawOn(std::unique_ptr<Printer> pages);
    Environment& assemble();

    const GlobalOptions& options_;
    NoServer server_;
    TerminalBoxes boxes_;
    SystemClock clock_;
    NoMachine machine_;
    std::unique_ptr<Spooler> spooler_;
    std::unique_ptr<WatchedPages> pages_;
    std::unique_ptr<Environment> environment_;
};

}  // namespace tarn::print
