#include "notes/note_document.h"

#include <memory>
#include <span>
#include <string>

#include "notes/source_table.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"

namespace tarn::notes {
namespace {

constexpr std::size_t indexOf(Source source) {
    return static_cast<std::size_t>(source);
}

constexpr std::size_t firstTotal = indexOf(Source::VALOR_BASE_ICMS);
constexpr std::size_t firstOfForm = indexOf(Source::QT_MAX_IT);
constexpr std::size_t firstOfItem = indexOf(Source::CD_PRO);

using Names = std::shared_ptr<const RowNames>;

Names namesOf(std::size_t from, std::size_t to) {
    return std::make_shared<const RowNames>(std::span(attributeNames).subspan(from, to - from));
}

// The names of each kind of row, the same for every note.
struct RowNames {
    Names head = namesOf(0, firstTotal);
    Names totals = namesOf(firstTotal, firstOfForm);
    Names form = namesOf(firstOfForm, firstOfItem);
    Names item = namesOf(firstOfItem, attributeCount);
};

const RowNames& rowNames() {
    static const RowNames names;
    return names;
}

// Layouts are checked for it when they are compiled.
[[noreturn]] void refuseSource(Source source) {
    const SourceRow& row = rowOf(source);
    throw RuntimeError(RuntimeErrorCode::ObjectVariable,
                       "o documento da nota não traz " +
                           std::string(isAttribute(source) ? row.name : row.words) +
                           " neste lugar do formulário");
}

}  // namespace

NoteDocument::NoteDocument(const XmlDocument& document)
    : principal_(document.selectSingleNode("PRINCIPAL")) {
    if (principal_) {
        children_ = principal_.childNodes();
    }
}

XmlNode NoteDocument::row(std::size_t position) const {
    if (!principal_) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable,
                           "o documento da nota não traz o nó PRINCIPAL");
    }
    const XmlNode found = children_.item(position);
    if (!found) {
        throw RuntimeError(
            RuntimeErrorCode::ObjectVariable,
            "falta no documento da nota a linha de posição " + std::to_string(position));
    }
    return found;
}

std::size_t NoteDocument::fieldOf(Source source) {
    const std::size_t index = indexOf(source);
    if (index >= firstOfItem) {
        return index - firstOfItem;
    }
    if (index >= firstOfForm) {
        return index - firstOfForm;
    }
    return index >= firstTotal ? index - firstTotal : index;
}

RowReader& NoteDocument::readerOf(Source source) {
    const auto reader = [this](std::optional<RowReader>& slot, std::size_t position,
                               const Names& names) -> RowReader& {
        if (!slot) {
            const XmlNode node = row(position);
            slot.emplace(names).read(node);
        }
        return *slot;
    };
    const std::size_t index = indexOf(source);
    if (index >= firstOfItem) {
        if (index >= attributeCount || !item_) {
            refuseSource(source);
        }
        return *item_;
    }
    if (index >= firstOfForm) {
        return reader(form_, 2, rowNames().form);
    }
    if (index >= firstTotal) {
        return reader(totals_, 1, rowNames().totals);
    }
    return reader(head_, 0, rowNames().head);
}

void NoteDocument::goToItem(std::size_t position) {
    const XmlNode node = row(position);
    if (!item_) {
        item_.emplace(rowNames().item);
    }
    item_->read(node);
}

bool NoteDocument::isItem(std::size_t position) const {
    return position < children_.length() && children_.item(position).baseName() == "ITEM";
}

double NoteDocument::number(Source source, std::string_view absent) {
    const std::optional<double> value = parseComma(amount(source, absent));
    if (!value) {
        refuseNumber(source, text(source));
    }
    return *value;
}

double numberOf(Source source, std::string_view text) {
    const std::optional<double> value = parseComma(text);
    if (!value) {
        refuseNumber(source, text);
    }
    return *value;
}

void refuseNumber(Source source, std::string_view text) {
    std::string detail = "o campo ";
    detail.append(rowOf(source).name).append(" da nota traz \"").append(text);
    detail += "\", que não é um número";
    throw RuntimeError(RuntimeErrorCode::TypeMismatch, detail);
}

}  // namespace tarn::notes
