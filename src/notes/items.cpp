#include "notes/blocks.h"
#include "notes/fields.h"
#include "notes/form_check.h"
#include "notes/item_rows.h"
#include "notes/run.h"

namespace tarn::notes {
namespace {

void collectClass(Run& run) {
    const std::string_view group = run.document.text(Source::GF_AGRUP);
    if (!group.empty()) {
        run.classes.append(" ").append(group).append(") ");
        run.classes.append(run.document.text(Source::ID_CLA_FIS)).append(" ");
    }
}

// Everything of the item is read before its first call, so that a bad amount
// leaves nothing of it on the paper.
void printItem(const Items& block, Run& run) {
    if (block.legalTexts) {
        run.legalTexts.add(run.document.text(Source::DC_TXT_LEG_NF));
    }
    readNumbers(block.quantity, block.sums, run);
    if (block.classes) {
        collectClass(run);
    }
    std::string code;
    if (block.code.count > 0) {
        appendFields(code, firstColumn, block.code.fields(), run);
    }
    appendFields(run.line, firstColumn, block.line.fields(), run);
    if (block.code.count > 0) {
        run.channel->ImprimeRaw(1, code, block.code.advance);
    }
    run.send(block.line.advance);
}

// Prints the item rows; returns how many lines they took.
int printRows(const Items& block, int mostItems, Run& run) {
    NoteDocument& document = run.document;
    int seen = 0;
    int printed = 0;
    std::size_t position = firstItem;
    do {
        ++seen;
        if (block.overflow == Overflow::Pushing || seen <= mostItems) {
            document.goToItem(position);
            if (!block.productsOnly || document.text(Source::IC_TP_CAD) == "P") {
                printItem(block, run);
                ++printed;
            } else if (block.services) {
                run.services.rows.push_back(position);
            }
        }
        position = positionAfter(position);
    } while (document.isItem(position));
    return printed;
}

}  // namespace

void printItems(const Items& block, Run& run) {
    const int mostItems = lineCount(Source::QT_MAX_IT, run);
    int serviceLines = 0;
    if (block.services && !run.document.text(Source::QT_MAX_IT_NF_SRV).empty()) {
        serviceLines = lineCount(Source::QT_MAX_IT_NF_SRV, run);
    }
    const int printed = printRows(block, mostItems, run);
    if (!block.controlAfter.empty()) {
        run.line = block.controlAfter;
        run.send(0);
    }
    if (block.fillsForm) {
        const int blanks = mostItems - printed + block.constant;
        run.send(blanks > 0 ? blanks : 0);
    }
    if (block.services) {
        printServices(serviceLines, run);
    } else if (block.lineEnds > 0) {
        run.send(block.lineEnds);
    }
}

}  // namespace tarn::notes
