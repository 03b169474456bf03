// The whole desk put together: the machine's seams, the session, the main window.
#pragma once

#include <memory>
#include <string>

#include "desk/desk_application.h"
#include "desk/desk_options.h"
#include "desk/desk_seams.h"
#include "desk/mdi_menu.h"
#include "gateway/command_effects.h"
#include "platform/early_loader.h"
#include "platform/parts/network_part.h"
#include "platform/printer.h"
#include "platform/qt/blocking_loader.h"
#include "platform/qt/patient_printing.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_machine.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/spooler.h"
#include "widgets/desk_context.h"
#include "widgets/teller.h"

namespace tarn {

// The printer that the options name, as raw jobs and drawn pages reach it.
struct Printers {
    std::unique_ptr<Spooler> raw;
    std::unique_ptr<Printer> pages;
};

// `raw` is null where the program was built without a printer of the system and
// the options name none.
Printers printersOf(const Options& options);

// Why the printer that the options name can't be printed on, as a line for the error
// output; empty: it can, as far as is known before the first job.
std::string printerObstacle(const Options& options, const Printers& printers);

// Opens the desk and runs its event loop; the program's exit status. An error that nothing
// else catches is reported, whether it comes before the loop, in it or after it.
int runDesk(DeskApplication& program, const Options& options, Printers printers);

class Desk {
public:
    // Both of `printers` must be there.
    Desk(DeskApplication& program, const Options& options, Printers printers);
    ~Desk();

    // Shows the main window, then runs the start of the program in its event loop.
    void open();

    MDIMenu& menu() { return menu_; }
    const ProgramEnd& end() const { return end_; }

private:
    DeskApplication& program_;
    bool labelSelection_;
    std::unique_ptr<HttpLoader> network_ = newNetworkLoader(commands::onlyReads);
    EarlyLoader early_;  // under way while the windows are built
    BlockingLoader http_{early_};
    Printers printers_;
    QtMessageBoxes boxesOnScreen_;
    QtClock clock_;
    QtMachine machine_;
    ProgramEnd end_;
    Teller teller_;
    DeskLoader server_{http_, teller_, end_};
    SideThread beside_;
    PatientSpooler rawJobs_{*printers_.raw, beside_};
    PatientPrinter drawnPages_{*printers_.pages, beside_};
    DeskSpooler spooler_{rawJobs_, teller_, end_};
    DeskPrinter pages_{drawnPages_, teller_, end_};
    DeskBoxes boxes_{boxesOnScreen_, end_};
    Environment environment_;
    Sessao session_;
    DeskContext desk_{environment_, session_, end_};
    MDIMenu menu_{desk_};
};

}  // namespace tarn
