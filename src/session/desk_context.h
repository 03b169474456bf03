// What every screen works with, handed down by reference.
#pragma once

#include "platform/environment.h"
#include "session/fim_do_programa.h"
#include "session/sessao.h"

namespace tarn {

struct DeskContext {
    Environment& ambiente;
    Sessao& sessao;
    FimDoPrograma& fim;
};

}  // namespace tarn
