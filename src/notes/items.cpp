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
// leaves nothing of it on the paper (decision N12).
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

void lose(Run& run, Loss::Kind kind, int item, std::size_t position, int limit) {
    if (run.losses == nullptr) {
        return;
    }
    run.document.goToItem(position);
    run.losses->add({.kind = kind,
                     .item = item,
                     .field = "DESCRICAO",
                     .lost = nameOfItem(run.document),
                     .limit = limit});
}

void watchItem(Run& run, int item) {
    if (run.losses != nullptr) {
        run.losses->item(item);
    }
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
            watchItem(run, seen);
            document.goToItem(position);
            if (!block.productsOnly || document.text(Source::IC_TP_CAD) == "P") {
                printItem(block, run);
                ++printed;
            } else if (block.services) {
                run.services.rows.push_back(position);
            } else {
                lose(run, Loss::Kind::Unplaced, seen, position, mostItems);
            }
        } else {
            lose(run, Loss::Kind::Item, seen, position, mostItems);
        }
        position = positionAfter(position);
    } while (document.isItem(position));
    watchItem(run, 0);
    return printed;
}

// Lines that the form doesn't have push all that stands below.
void watchLines(const Items& block, int mostItems, int printed, Run& run) {
    const int spare = mostItems - printed + (block.fillsForm ? block.constant : 0);
    if (run.losses != nullptr && spare < 0) {
        run.losses->add(
            {.kind = Loss::Kind::ItemsOver, .field = "itens", .count = -spare, .limit = mostItems});
    }
}

}  // namespace

void printItems(const Items& block, Run& run) {
    const int mostItems = lineCount(Source::QT_MAX_IT, run);
    int serviceLines = 0;
    if (block.services && !run.document.text(Source::QT_MAX_IT_NF_SRV).empty()) {
        serviceLines = lineCount(Source::QT_MAX_IT_NF_SRV, run);
    }
    const int printed = printRows(block, mostItems, run);
    watchLines(block, mostItems, printed, run);
    if (!block.controlAfter.empty()) {
        run.line = block.controlAfter;
        run.send(0);
    }
    if (block.fillsForm) {
        const int blanks = mostItems - printed + block.constant;
        run.send(blanks > 0 ? blanks : 0);  // its blank is sent also for 0: decision N26
    }
    if (block.services) {
        printServices(serviceLines, run);
    } else if (block.lineEnds > 0) {
        run.send(block.lineEnds);
    }
}

}  // namespace tarn::notes
