// The whole desk put together: the machine's seams, the session, the main window.
#pragma once

#include <memory>

#include "desk/desk_application.h"
#include "desk/desk_options.h"
#include "desk/mdi_menu.h"
#include "platform/curl/curl_loader.h"
#include "platform/printer.h"
#include "platform/qt/blocking_loader.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_machine.h"
#include "platform/qt/qt_message_boxes.h"
#include "platform/spooler.h"
#include "widgets/desk_context.h"

namespace tarn {

// The printer that the options name, as raw jobs and drawn pages reach it.
struct Printers {
    std::unique_ptr<Spooler> raw;
    std::unique_ptr<Printer> pages;
};

// `raw` is null where the program was built without a printer of the system and
// the options name none.
Printers printersOf(const Options& options);

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
    CurlLoader network_;
    BlockingLoader http_{network_};
    Printers printers_;
    QtMessageBoxes boxes_;
    QtClock clock_;
    QtMachine machine_;
    Environment environment_;
    Sessao session_;
    ProgramEnd end_;
    DeskContext desk_{environment_, session_, end_};
    MDIMenu menu_{desk_};
};

}  // namespace tarn
