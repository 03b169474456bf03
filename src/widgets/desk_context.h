// What every screen works with, handed down by reference.
#pragma once

#include "gateway/sessao.h"
#include "platform/environment.h"
#include "widgets/program_end.h"

namespace tarn {

struct DeskContext {
    Environment& ambiente;
    Sessao& sessao;
    FimDoPrograma& fim;
};

}  // namespace tarn
