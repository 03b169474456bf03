// Seam: what was done, for whoever tells the clerk without asking anything (decision D123).
// Those who do something only say so; what became of the paper they don't know.
#pragma once

#include <string>

namespace tarn {

// Something done that goes to paper, as pieces of a sentence; Portuguese, UTF-8.
struct PaperAct {
    std::string sent;    // "NF 008529 da ordem 45112 enviada": the printer's name follows
    std::string made;    // "NF 008529 gerada": why there is no paper follows
    std::string remedy;  // "use ReImpressão de NF": what to do about that
};

// What became of everything that was sent to paper since it was last asked for.
struct PaperOutcome {
    bool asked = false;    // something was sent at all
    std::string printer;   // the machine's name of it
    std::string obstacle;  // why it doesn't come out, without a full stop; empty: it does
};

class ActLog {
public:
    virtual ~ActLog() = default;
    virtual void done(const std::string& what) = 0;
    virtual void printed(const PaperAct& act) = 0;
};

}  // namespace tarn
