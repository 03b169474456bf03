// Prints a range of the label queue on the form of stationery that was chosen. Nothing
// is written to the server: labels stay in the queue and can be printed again.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "gateway/xml_document.h"
#include "labels/label.h"
#include "labels/queue.h"
#include "platform/progress.h"

namespace tarn {
struct Environment;
struct Sessao;
}  // namespace tarn

namespace tarn::labels {

enum class LabelForm : int { Pimaco6280 = 1, DotMatrix = 2, A5 = 3, A4WithSender = 4 };

// A TipoFormulario is compared as a number; whatever is none of the first three is the
// fourth form.
LabelForm labelFormOf(std::string_view formKind);

// What the print screen calls the form.
std::string_view labelFormName(LabelForm form);

// What a run prints.
struct PrintRun {
    XmlDocument labels;  // answer of sel_etiquetas
    Sender sender;
};

// Fetches the labels of a range and their sender. Nothing, with the user told why, when
// the range is no pair of numbers, a request fails or the sender is unknown.
std::optional<PrintRun> fetchRange(Environment& environment, const Sessao& session,
                                   const LabelValues& values, const Range& range);

// Prints all labels. The last sheet of a drawn form goes to the printer after the user
// has been told that all is printed; a document that the printer refused before is told of
// instead. False: not all was printed.
bool printLabels(Environment& environment, LabelForm form, const PrintRun& run,
                 const Progress& progress);

}  // namespace tarn::labels
