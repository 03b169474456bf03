// A billing order becomes a fiscal note: generated on the server first, printed
// after, with no transaction between the two.
#pragma once

#include <functional>
#include <string>

#include "gateway/sessao.h"
#include "gateway/xml_document.h"
#include "notes/print_note.h"

namespace tarn {

class AlertDialog;
struct Environment;

// How a generation ended for the screen: stopped (the timer stays off), or ran
// its way (the list is to be read again and the timer switched on).
enum class GenerationEnd { Stopped, Finished };

// Brings a generated note to paper: its document and its number.
using PrintStep =
    std::function<void(Environment&, const Sessao&, XmlDocument&, const std::string& note)>;

// Everything from the observations to the printed note. The caller has switched
// its timer off. The two cases in which the note exists on the server and can't be
// printed here, and every error of a layout, come out as ErrorAfterNote.
GenerationEnd generateNote(Environment& environment, Sessao& session, AlertDialog& alert,
                           const std::string& order, const PrintStep& print);

// The same, printed by the issuing screen's ladder.
inline GenerationEnd generateNote(Environment& environment, Sessao& session, AlertDialog& alert,
                                  const std::string& order) {
    return generateNote(
        environment, session, alert, order,
        [](Environment& where, const Sessao& who, XmlDocument& document, const std::string& note) {
            printNote(Ladder::Issuing, where, who, document, note);
        });
}

}  // namespace tarn
