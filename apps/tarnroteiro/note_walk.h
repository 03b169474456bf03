// The main job: logon, list, an order that is refused, one without stock, and one that
// becomes a note; that note is printed again and cancelled.
#pragma once

#include <string>

#include "apps/tarnroteiro/walk.h"

namespace tarn {

struct Entrada {
    std::string servidor;
    std::string pasta;  // of the pictures and of the printed jobs
    std::string empresa = "1361";
    std::string usuario = "clara";
    std::string senha = "pratica";
};

// Each begins and ends at the main window. `entrada` must outlive the walk.
void escreveLogon(Roteiro& roteiro, const Entrada& entrada);
void escreveEmissao(Roteiro& roteiro);
void escreveReimpressao(Roteiro& roteiro, const Entrada& entrada);
void escreveCancelamento(Roteiro& roteiro, const Entrada& entrada);

}  // namespace tarn
