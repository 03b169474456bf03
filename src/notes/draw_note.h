// Draws a note by a table: one page, top to bottom, ended once.
#pragma once

#include <string_view>

namespace tarn {
class XmlDocument;
struct Environment;
}  // namespace tarn

namespace tarn::notes {

struct DrawnForm;
class LossLog;

// An RuntimeError leaves the document on the page printer as it is, not ended. `losses`,
// if given, keeps what the form has no room for.
void drawNote(const DrawnForm& form, const XmlDocument& document, std::string_view noteNumber,
              Environment& environment, LossLog* losses = nullptr);

}  // namespace tarn::notes
