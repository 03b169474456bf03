#include "notes/pipeline.h"

#include "notes/print_pen.h"
#include "runtime/mask.h"

namespace tarn::notes {
namespace {

constexpr NumberMask noteNumberMask = "000000";
constexpr std::size_t widestForm = 256;

}  // namespace

void printNote(const Form& form, const XmlDocument& document, std::string_view noteNumber,
               RawChannel& channel, LossLog* losses) {
    Run run{.document = NoteDocument(document),
            .channel = &channel,
            .noteNumber = formatText(noteNumber, noteNumberMask),
            .observation = form.observation,
            .losses = losses};
    run.line.reserve(widestForm);
    run.value.reserve(widestForm);
    PrintPen pen(run);
    walkForm(form, pen);
    closeTexts(run);
    channel.close();
}

}  // namespace tarn::notes
