#include "notes/losses.h"

#include <algorithm>

#include "runtime/text.h"

namespace tarn::notes {
namespace {

bool isNumber(std::string_view text) {
    const std::string_view trimmed = trimBlanks(text);
    return !trimmed.empty() && trimmed.find_first_not_of("0123456789.,-") == std::string_view::npos;
}

std::string nameOf(Source source, int parcel) {
    const SourceRow& row = rowOf(source);
    if (isAttribute(source)) {
        return std::string(row.name);
    }
    const bool numbered = isOfParcel(row.rule) && row.rule != Rule::ParcelNumber;
    return std::string(row.words) + (numbered ? std::to_string(parcel) : "");
}

std::string placeOf(const Loss& loss) {
    std::string place;
    if (loss.line > 0) {
        place += "linha " + std::to_string(loss.line) + ", ";
    }
    if (loss.column > 0) {
        place += "coluna " + std::to_string(loss.column) + ", ";
    }
    return place;
}

std::string quoted(std::string_view text) {
    return "\"" + blankControls(text) + "\"";
}

}  // namespace

std::string describe(const Loss& loss) {
    return placeOf(loss) + describeInPlace(loss);
}

std::string describeInPlace(const Loss& loss) {
    std::string where =
        (loss.item > 0 ? "item " + std::to_string(loss.item) + ", " : std::string()) + loss.field;
    switch (loss.kind) {
        case Loss::Kind::Text:
            return where + ": não cabe; perde " + quoted(loss.lost);
        case Loss::Kind::Amount:
            return where + ": valor não cabe; perde " + quoted(loss.lost);
        case Loss::Kind::Item:
            return where + ": não imprime, o formulário tem " + std::to_string(loss.limit) +
                   " linhas; perde " + quoted(loss.lost);
        case Loss::Kind::Unplaced:
            return where + ": não imprime, o formulário não tem lugar para serviços; perde " +
                   quoted(loss.lost);
        case Loss::Kind::ItemsOver:
            return where + ": passam das " + std::to_string(loss.limit) +
                   " linhas do formulário; o que vem abaixo desce " + std::to_string(loss.count) +
                   (loss.count == 1 ? " linha" : " linhas");
        case Loss::Kind::ParcelsOverflow:
            return where + ": " + std::to_string(loss.count) +
                   " parcelas, o formulário tem lugar para " + std::to_string(loss.limit) +
                   "; nenhuma imprime";
    }
    return where;
}

// The end of the decimals may go when it is nothing but zeros, a digit ahead of the comma
// never.
bool readsTheSame(std::string_view text, std::size_t shown) {
    const std::string_view lost = text.substr(std::min(shown, text.size()));
    if (lost.find_first_of("123456789") != std::string_view::npos) {
        return false;
    }
    const std::size_t comma = text.find(',');
    return comma != std::string_view::npos && shown >= comma;
}

void LossLog::add(Loss loss) {
    losses_.push_back(std::move(loss));
}

void LossLog::field(const Field& field, int column, int parcel, std::string_view value) {
    if (lengthOf(value) <= field.width) {
        return;
    }
    const std::string_view kept = leftOf(value, field.width);
    const std::string_view lost = value.substr(kept.size());
    const bool number = isNumber(value);
    if (trimBlanks(lost).empty() || (number && readsTheSame(value, kept.size()))) {
        return;
    }
    add({.kind = number ? Loss::Kind::Amount : Loss::Kind::Text,
         .line = line_,
         .column = column,
         .item = item_,
         .field = nameOf(field.source, parcel),
         .lost = std::string(lost)});
}

void LossLog::piece(const Field& field, int column) {
    shown_.push_back({field.source, field.start, field.length, line_, column});
}

void LossLog::pieces(Source source, std::string_view text) {
    const std::size_t length = lengthOf(text);
    std::size_t next = 1;  // first character that no piece so far has shown
    const Shown* last = nullptr;
    const auto lose = [&](std::size_t end) {
        const std::string_view lost = midOf(text, next, end - next);
        if (last != nullptr && end > next && !trimBlanks(lost).empty()) {
            add({.kind = Loss::Kind::Text,
                 .line = last->line,
                 .column = last->column,
                 .field = nameOf(source, 0),
                 .lost = std::string(lost)});
        }
    };
    for (const Shown& piece : shown_) {
        if (piece.source != source) {
            continue;
        }
        if (piece.first > next) {
            lose(std::min(piece.first, length + 1));
        }
        next = std::max(next, piece.first + piece.length);
        last = &piece;
    }
    lose(length + 1);
}

void LossLog::band(Source source, int column, std::string_view rest) {
    if (!trimBlanks(rest).empty()) {
        add({.kind = Loss::Kind::Text,
             .line = line_,
             .column = column,
             .field = nameOf(source, 0),
             .lost = std::string(rest)});
    }
}

}  // namespace tarn::notes
