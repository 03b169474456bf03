#include "notes/item_rows.h"

#include <limits>

#include "notes/run.h"
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

std::string nameOfItem(NoteDocument& document) {
    try {
        std::string name(document.text(Source::CD_PRO));
        const std::string_view description = document.text(Source::DESCRICAO);
        return name.append(name.empty() || description.empty() ? "" : " ").append(description);
    } catch (const RuntimeError&) {
        return {};  // nothing prints of this row, and so nothing stops for it
    }
}

std::size_t positionAfter(std::size_t position) {
    if (position == static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        throw RuntimeError(RuntimeErrorCode::Overflow, "a nota tem itens demais");
    }
    return position + 1;
}

}  // namespace tarn::notes
