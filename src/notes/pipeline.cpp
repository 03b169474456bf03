#include "notes/pipeline.h"

#include "notes/blocks.h"
#include "notes/fields.h"
#include "notes/run.h"
#include "runtime/mask.h"

namespace tarn::notes {
namespace {

constexpr NumberMask noteNumberMask = "000000";
constexpr std::size_t widestForm = 256;

void print(const Row& row, Run& run) {
    printRow(row, run);
}
void print(const Control& control, Run& run) {
    run.line = control.bytes;
    run.send(0);
    if (control.advance > 0) {
        run.send(control.advance);
    }
}
void print(const Parcels& block, Run& run) {
    printParcels(block, run);
}
void print(const Items& block, Run& run) {
    printItems(block, run);
}
void print(const Band& band, Run& run) {
    printBand(band, run);
}
void print(const Credit& credit, Run& run) {
    printCredit(credit, run);
}

void setUpPrinter(std::string_view bytes, RawChannel& channel) {
    channel.open();
    std::string text(bytes);
    channel.ImprimeRaw(1, text, 0);
    channel.close();
}

}  // namespace

void printNote(const Form& form, const XmlDocument& document, std::string_view noteNumber,
               RawChannel& channel, LossLog* losses) {
    if (!form.setUp.empty()) {
        setUpPrinter(form.setUp, channel);
    }
    channel.open();
    Run run{.document = NoteDocument(document),
            .channel = &channel,
            .noteNumber = formatText(noteNumber, noteNumberMask),
            .observation = form.observation,
            .losses = losses};
    run.line.reserve(widestForm);
    run.value.reserve(widestForm);
    for (const Step& step : form.steps) {
        std::visit([&run](const auto& s) { print(s, run); }, step);
    }
    closeTexts(run);
    channel.close();
}

}  // namespace tarn::notes
