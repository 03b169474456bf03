// The seams of a document that is printed to be watched.
#pragma once

#include <string>

#include "platform/environment.h"
#include "platform/http_loader.h"
#include "tests/fuzz/checking_spooler.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/recording_printer.h"
#include "tests/support/scripted_boxes.h"

namespace tarn::fuzz {

// Fails every load, and watches that each request is one line.
class CheckingLoader : public HttpLoader {
public:
    HttpAnswer get(const std::string& address) override;
};

struct CheckedPress {
    CheckingLoader http;
    CheckingSpooler spooler;
    test::RecordingPrinter printer;
    test::ScriptedBoxes boxes;
    test::FixedClock clock;
    test::FixedMachine machine;
    Environment environment{http, spooler, printer, boxes, clock, machine, "", CodePage::Page1252};

    // Aborts where a drawn text has a control character.
    void checkDrawing() const;
};

}  // namespace tarn::fuzz
