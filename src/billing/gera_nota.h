// A billing order becomes a fiscal note: generated on the server first, printed
// after, with no transaction between the two.
#pragma once

#include <string>

#include "session/sessao.h"

namespace tarn {

class AlertaDialogo;
struct Environment;

// How a generation ended for the screen: stopped (the timer stays off), or ran
// its way (the list is to be read again and the timer switched on).
enum class FimDaGeracao { Parada, Completa };

// Everything from the observations to the printed note. The caller has switched
// its timer off. The two cases in which the note stands on the server and can't be
// printed here, and every error of a layout, come out as ErroExecucao.
FimDaGeracao geraNota(Environment& ambiente, Sessao& sessao, AlertaDialogo& alerta,
                      const std::string& ordem);

}  // namespace tarn
