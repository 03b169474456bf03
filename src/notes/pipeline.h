// Prints a note by a form's table: one pass, top to bottom, one write a call.
#pragma once

#include <string_view>

#include "notes/layout.h"

namespace tarn {
class RawChannel;
class XmlDocument;
}  // namespace tarn

namespace tarn::notes {

class LossLog;

// Opens the job of the set-up, if the form has one, and the job of the note. An
// RuntimeError leaves the note's job open with everything sent before the row that
// failed. `losses`, if given, keeps what the form has no room for.
void printNote(const Form& form, const XmlDocument& document, std::string_view noteNumber,
               RawChannel& channel, LossLog* losses = nullptr);

}  // namespace tarn::notes
