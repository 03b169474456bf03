// From a note document to paper: the ladder picks the layout of the logged-on
// company and establishment, the layout prints.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "gateway/sessao.h"
#include "gateway/xml_document.h"

namespace tarn {

struct Environment;
namespace notes {
class LossLog;
}

// The two screens run ladders that differ in two steps.
enum class Ladder { Issuing, Reprint };

// Name of the layout ("ImprimeNF_1361"), or "" where nothing is printed.
std::string_view layoutFor(Ladder ladder, std::int32_t company, std::int32_t establishment);

// Prints the note of an answer whose status reads "OK" and lets go of the document.
// `noteNumber` holds the note's number as digits. What was sent before an
// RuntimeError stays sent and the job stays open. `losses`, if given, keeps what the form
// has no room for.
void printNote(Ladder ladder, Environment& environment, const Sessao& session,
               XmlDocument& document, const std::string& noteNumber,
               notes::LossLog* losses = nullptr);

}  // namespace tarn
