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
struct Impressoras {
    std::unique_ptr<Spooler> bruta;
    std::unique_ptr<Printer> paginas;
};

// `bruta` is null where the program was built without a printer of the system and
// the options name none.
Impressoras impressorasDe(const Opcoes& opcoes);

class Mesa {
public:
    // Both of `impressoras` must be there.
    Mesa(DeskApplication& programa, const Opcoes& opcoes, Impressoras impressoras);
    ~Mesa();

    // Shows the main window, then runs the start of the program in its event loop.
    void abre();

    MDIMenu& menu() { return menu_; }
    const FimDoPrograma& fim() const { return fim_; }

private:
    DeskApplication& programa_;
    bool selecaoEtiquetas_;
    CurlLoader rede_;
    BlockingLoader http_{rede_};
    Impressoras impressoras_;
    QtMessageBoxes caixas_;
    QtClock relogio_;
    QtMachine maquina_;
    Environment ambiente_;
    Sessao sessao_;
    FimDoPrograma fim_;
    DeskContext desk_{ambiente_, sessao_, fim_};
    MDIMenu menu_{desk_};
};

}  // namespace tarn
