// All recording seams and the struct that hands them down, ready to use.
#pragma once

#include "platform/environment.h"
#include "tests/support/fixed_machine.h"
#include "tests/support/recorded_acts.h"
#include "tests/support/recording_printer.h"
#include "tests/support/recording_spooler.h"
#include "tests/support/scripted_boxes.h"
#include "tests/support/scripted_loader.h"

namespace tarn::test {

struct TestEnvironment {
    TestEnvironment();
    ~TestEnvironment();

    ScriptedLoader loader;
    RecordingSpooler spooler;
    RecordingPrinter printer;
    ScriptedBoxes boxes;
    FixedClock clock;
    FixedMachine machine;
    RecordedActs acts;
    Environment environment{.http = loader,
                            .spooler = spooler,
                            .printer = printer,
                            .boxes = boxes,
                            .clock = clock,
                            .machine = machine,
                            .baseUrl = "http://servidor/p.asp?",
                            .acts = &acts};

    // The same seams with another server, other raw paper or other pages.
    Environment with(HttpLoader& other) { return withSeams(other, spooler, printer); }
    Environment with(Spooler& other) { return withSeams(loader, other, printer); }
    Environment with(Printer& other) { return withSeams(loader, spooler, other); }

private:
    Environment withSeams(HttpLoader& server, Spooler& paper, Printer& pages);
};

}  // namespace tarn::test
