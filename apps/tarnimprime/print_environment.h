// What the documents print on here: no server, no window.
#pragma once

#include <memory>

#include "apps/tarnimprime/commands.h"
#include "platform/clock.h"
#include "platform/environment.h"
#include "platform/http_loader.h"
#include "platform/machine.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"
#include "platform/spooler.h"

namespace tarn::imprime {

class SemServidor : public HttpLoader {
public:
    HttpAnswer get(const std::string&) override { return {}; }
};

// A box's text on stderr; the default button is its answer.
class CaixasNoTerminal : public MessageBoxes {
public:
    BoxAnswer show(const Box& box) override;
};

class Relogio : public Clock {
public:
    Date today() override;
};

class SemMaquina : public Machine {
public:
    bool setShortDateFormat(const std::string&) override { return true; }
    std::string systemDirectory() override { return {}; }
    void beep() override {}
};

class Mesa {
public:
    explicit Mesa(const Geral& geral);

    // For printing; FalhaDeUso when there is nowhere to print.
    Environment& ambiente();
    // Directory of the jobs, if they go into one.
    const std::optional<std::string>& destino() const { return geral_.destino; }
    // For looking at what would print: as `ambiente` where a directory was told, else
    // nothing is printed.
    Environment& ambienteDeConferencia();

private:
    void preparaPasta();
    void preparaImpressora();
    void preparaNada();
    Environment& monta(CodePage pagina);
    CodePage confereOpcoes() const;

    const Geral& geral_;
    SemServidor servidor_;
    CaixasNoTerminal caixas_;
    Relogio relogio_;
    SemMaquina maquina_;
    std::unique_ptr<Spooler> spooler_;
    std::unique_ptr<Printer> paginas_;
    std::unique_ptr<Environment> ambiente_;
};

}  // namespace tarn::imprime
