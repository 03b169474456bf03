// From a note document to paper: the ladder picks the layout of the logged-on
// company and establishment, the layout prints.
#pragma once

#include <string>

#include "gateway/sessao.h"
#include "gateway/xml_document.h"
#include "notes/ladder.h"

namespace tarn {

struct Environment;
namespace notes {
class LossLog;
}

// Prints the note of an answer whose status reads "OK" and lets go of the document.
// `noteNumber` holds the note's number as digits. What was sent before an
// RuntimeError stays sent and the job stays open. `losses`, if given, keeps what the form
// has no room for.
void printNote(Ladder ladder, Environment& environment, const Sessao& session,
               XmlDocument& document, const std::string& noteNumber,
               notes::LossLog* losses = nullptr);

}  // namespace tarn
