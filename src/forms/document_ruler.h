// The ruler sheet of what is no note: a document's own routine prints, and where it places a
// field the box's corners are printed instead.
#pragma once

#include <string_view>

namespace tarn {
class RawChannel;
}

namespace tarn::dotmatrix {

// Prints the sheet of that form: its set-up and commands, the corners of its boxes with line and
// column (both from 1), and a ruler on its other lines where they are as far apart as usual.
// False where the form is none of them, and nothing is printed.
bool printDocumentRuler(std::string_view form, RawChannel& channel);

}  // namespace tarn::dotmatrix
