// The seams of a document that is printed to be watched.
#pragma once

#include <optional>
#include <string>

#include "platform/environment.h"
#include "platform/http_loader.h"
#include "platform/printer.h"
#include "tests/fuzz/checking_spooler.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/scripted_boxes.h"

namespace tarn::fuzz {

// Fails every load, and watches that each request is one line.
class CheckingLoader : public HttpLoader {
public:
    HttpAnswer get(const std::string& address) override;
};

// Keeps nothing, and aborts where a drawn text has a control character.
class CheckingPrinter : public Printer {
public:
    std::optional<PrinterFailure> perform(const PrintOperation& operation) override;

    bool used() const { return used_; }
    bool ended() const { return ended_; }

private:
    bool used_ = false;
    bool ended_ = false;  // by the last operation
};

struct CheckedPress {
    CheckingLoader http;
    CheckingSpooler spooler;
    CheckingPrinter printer;
    test::ScriptedBoxes boxes;
    test::FixedClock clock;
    test::FixedMachine machine;
    Environment environment{http, spooler, printer, boxes, clock, machine, "", CodePage::Page1252};
};

}  // namespace tarn::fuzz
