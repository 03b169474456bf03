// Saying what was done.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/act_log.h"

namespace tarn {

struct Environment;

// Nothing where nobody listens.
void tellDone(const Environment& environment, const std::string& what);
void tellPrinted(const Environment& environment, const PaperAct& act);

// "NF 008529".
std::string noteName(std::string_view number);
// "1 boleto", "3 boletos".
std::string counted(std::size_t count, std::string_view one, std::string_view many);

}  // namespace tarn
