#include "notes/draw_note.h"

#include "common/drawn_text.h"
#include "notes/drawn_form.h"
#include "notes/fields.h"
#include "notes/items.h"
#include "notes/print_pen.h"
#include "platform/environment.h"
#include "platform/printer.h"
#include "runtime/mask.h"

namespace tarn::notes {
namespace {

constexpr NumberMask noteNumberMask = "000000";
constexpr int margin = 0;

// The page, and what its texts are made from.
struct Page {
    const DrawnForm& form;
    Environment& environment;
    Run& run;

    // Reads and draws one text.
    void draw(const Row& row, double x, double y, bool bold = false) {
        run.line.clear();
        appendFields(run.line, firstColumn, row.fields(), run);
        draw(run.line, x, y, bold);
    }
    void draw(std::string_view text, double x, double y, bool bold) {
        ImprimeTextoEm(environment, text, x, y, bold, form.size, form.font, margin);
    }
};

void drawStep(const DrawnRow& step, Page& page) {
    page.draw(step.row, step.x, step.y, step.bold);
}

void drawStep(const DrawnParcels& block, Page& page) {
    const int count = parcelCount(block.limit, page.run);
    if (count > block.limit) {
        return page.draw(block.message, block.x, block.y, false);
    }
    double y = block.y;
    for (page.run.parcel = 1; page.run.parcel <= count; ++page.run.parcel) {
        page.draw(block.row, block.x, y);
        y += block.step;
    }
}

void drawStep(const DrawnItems& block, Page& page) {
    Run& run = page.run;
    lineCount(Source::QT_MAX_IT, run);  // drawn pages have no such limit, but it must be a number
    double y = block.y;
    forEachItem(run, [&](int item, std::size_t position) {
        run.watchItem(item);
        run.document.goToItem(position);
        readNumbers(Quantity::Amount, true, run);
        page.draw(block.row, block.x, y);
        y += block.step;
    });
}

}  // namespace

void drawNote(const DrawnForm& form, const XmlDocument& document, std::string_view noteNumber,
              Environment& environment, LossLog* losses) {
    Printer& printer = environment.printer;
    printer.setScaleMode(ScaleMode::Centimetres);
    printer.setOrientation(Orientation::Portrait);
    Run run{.document = NoteDocument(document),
            .channel = nullptr,
            .noteNumber = formatText(noteNumber, noteNumberMask),
            .losses = losses};
    if (losses != nullptr) {
        losses->drawnPage();
    }
    Page page{form, environment, run};
    for (const DrawnStep& step : form.steps) {
        std::visit([&page](const auto& s) { drawStep(s, page); }, step);
    }
    if (const auto failure = printer.EndDoc()) {
        showFailure(environment, *failure, noteLineEnd);
    }
}

}  // namespace tarn::notes
