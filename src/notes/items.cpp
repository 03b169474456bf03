#include "notes/items.h"

#include <limits>

#include "notes/fields.h"
#include "notes/walk.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn::notes {
namespace {

double quantityOf(Quantity kind, NoteDocument& document) {
    switch (kind) {
        case Quantity::Amount:
            return document.number(Source::QTDE);
        case Quantity::AmountOrFive:
            return document.number(Source::QTDE, "5");
        case Quantity::PointsGroup:
            break;
    }
    return document.present(Source::QTDE) ? numberOf(Source::QTDE, document.text(Source::QTDE))
                                          : 5.0;
}

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

const Items* itemsOf(const Form& form) {
    for (const Step& step : form.steps) {
        if (const auto* items = std::get_if<Items>(&step)) {
            return items;
        }
    }
    return nullptr;
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

// Lines that the form doesn't have push all that is below.
void watchLines(const Items& block, int mostItems, int printed, Run& run) {
    const int spare = mostItems - printed + (block.fillsForm ? block.constant : 0);
    if (run.losses != nullptr && spare < 0) {
        run.losses->add(
            {.kind = Loss::Kind::ItemsOver, .field = "itens", .count = -spare, .limit = mostItems});
    }
}

}  // namespace

int lineCount(Source source, Run& run) {
    const std::string_view text = run.document.text(source);
    if (!isNumeric(text)) {
        refuseNumber(source, text);
    }
    return readInt16(text);
}

void readNumbers(Quantity kind, bool sums, Run& run) {
    NoteDocument& document = run.document;
    run.item.quantity = quantityOf(kind, document);
    run.item.lineTotal = document.number(Source::VALOR_UN) * run.item.quantity;
    if (sums) {
        run.weightSum += document.number(Source::PESO) * run.item.quantity;
        run.quantitySum += run.item.quantity;
    }
}

std::size_t positionAfter(std::size_t position) {
    if (position == static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        throw RuntimeError(RuntimeErrorCode::Overflow, "a nota tem itens demais");
    }
    return position + 1;
}

std::string nameOfItem(NoteDocument& document) {
    try {
        std::string name(document.text(Source::CD_PRO));
        const std::string_view description = document.text(Source::DESCRICAO);
        return name.append(name.empty() || description.empty() ? "" : " ").append(description);
    } catch (const RuntimeError&) {
        return {};  // nothing prints of this row, and so nothing stops for it
    }
}

std::optional<int> itemLinesOf(const Form& form, const XmlDocument& document) {
    const auto* items = itemsOf(form);
    if (items == nullptr) {
        return std::nullopt;
    }
    try {
        NoteDocument note(document);
        if (items->fillsForm) {
            return readInt16(note.text(Source::QT_MAX_IT));
        }
        int printed = 0;
        for (std::size_t at = firstItem; note.isItem(at); ++at) {
            note.goToItem(at);
            printed += !items->productsOnly || note.text(Source::IC_TP_CAD) == "P" ? 1 : 0;
        }
        return printed;
    } catch (const RuntimeError&) {
        return std::nullopt;  // the print will stop where it comes to it
    }
}

int printItems(const Items& block, int mostItems, Run& run) {
    int printed = 0;
    forEachItem(run, [&](int item, std::size_t position) {
        if (block.overflow == Overflow::Cutting && item > mostItems) {
            return lose(run, Loss::Kind::Item, item, position, mostItems);
        }
        run.watchItem(item);
        run.document.goToItem(position);
        if (!block.productsOnly || run.document.text(Source::IC_TP_CAD) == "P") {
            printItem(block, run);
            ++printed;
        } else if (block.services) {
            run.services.rows.push_back(position);
        } else {
            lose(run, Loss::Kind::Unplaced, item, position, mostItems);
        }
    });
    watchLines(block, mostItems, printed, run);
    return printed;
}

}  // namespace tarn::notes
