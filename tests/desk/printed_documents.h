// Every document of the desk, printed by its own routine through the desk's own seams onto
// paper that only records.
#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "desk/desk_seams.h"
#include "desk/mdi_menu.h"
#include "tests/support/test_environment.h"
#include "widgets/program_end.h"
#include "widgets/teller.h"

namespace tarn::test {

// The desk as it prints: what became of the paper stands on its status bar.
class PrintingDesk {
public:
    PrintingDesk() { QObject::connect(&teller_, &Teller::lineChanged, &menu_, &MDIMenu::tell); }

    // The status bar's last line, without the time.
    std::string told() const;

    TestEnvironment machine;
    Sessao session;

private:
    ProgramEnd end_;
    std::ostringstream errors_;
    Teller teller_{machine.clock, errors_};
    DeskSpooler spooler_{machine.spooler, teller_, end_};
    DeskPrinter pages_{machine.printer, teller_, end_};
    DeskBoxes boxes_{machine.boxes, end_};

public:
    Environment environment{.http = machine.loader,
                            .spooler = spooler_,
                            .printer = pages_,
                            .boxes = boxes_,
                            .clock = machine.clock,
                            .machine = machine.machine,
                            .baseUrl = "http://servidor/p.asp?",
                            .acts = &teller_};

private:
    DeskContext desk_{environment, session, end_};
    MDIMenu menu_{desk_};
};

struct PrintedDocument {
    std::string name;
    void (*print)(PrintingDesk&);
    std::string made;    // what the status bar says of it before "mas"
    std::string remedy;  // and at the end
    // Of texts that the page printer refuses each is told, or none (bills, decision D97).
    bool tellsTexts = true;
    // The box of success stands before the last sheet is printed (label queue).
    bool successFirst = false;
};

std::vector<PrintedDocument> rawDocuments();
std::vector<PrintedDocument> drawnDocuments();

}  // namespace tarn::test
