// What every screen works with, handed down by reference.
#pragma once

#include "gateway/sessao.h"
#include "platform/environment.h"
#include "widgets/program_end.h"

namespace tarn {

struct DeskContext {
    Environment& environment;
    Sessao& session;
    ProgramEnd& end;
};

}  // namespace tarn
