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

// A noun and how many of it: "1 boleto", "3 boletos".
struct Noun {
    std::string_view one;
    std::string_view many;
    bool feminine = false;
};
std::string counted(std::size_t count, const Noun& noun);
// Pieces of paper that `what` names: "3 etiquetas enviadas", "3 etiquetas preparadas".
PaperAct piecesSent(const std::string& what, std::size_t count, bool feminine,
                    const std::string& remedy);

}  // namespace tarn
