// Prints a note by a form's table: one pass, top to bottom, one write a call.
#pragma once

#include <string_view>

#include "notes/layout.h"

namespace tarn {
class RawChannel;
class XmlDocument;
}  // namespace tarn

namespace tarn::notes {

// Opens the job of the set-up, if the form has one, and the job of the note. An
// ErroExecucao leaves the note's job open with everything sent before the row that
// failed.
void printNote(const Form& form, const XmlDocument& document, std::string_view noteNumber,
               RawChannel& channel);

}  // namespace tarn::notes
