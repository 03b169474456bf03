#include "notes/losses.h"

#include <algorithm>

#include "runtime/text.h"

namespace tarn::notes {
namespace {

bool isNumber(std::string_view text) {
    const std::string_view trimmed = trimBlanks(text);
    return !trimmed.empty() && trimmed.find_first_not_of("0123456789.,-") == std::string_view::npos;
}

struct Name {
    Source source;
    std::string_view words;
};

// Of what isn't an attribute.
constexpr Name names[] = {{Source::NoteNumber, "número da nota"},
                          {Source::NR_DOC, "NR_DOC"},
                          {Source::VL_PRN_DOC, "VL_PRN_DOC"},
                          {Source::DT_VNC_DOC, "DT_VNC_DOC"},
                          {Source::OriginTax, "IC_ORI_PRO e SIT_TRI"},
                          {Source::LineTotal, "total do item"},
                          {Source::Discount, "desconto"},
                          {Source::ProductTotal, "total dos produtos"},
                          {Source::QuantitySum, "soma das quantidades"},
                          {Source::WeightSum, "soma dos pesos"},
                          {Source::LegalText, "textos legais e observação"},
                          {Source::Observation, "DC_OBS"},
                          {Source::TaxCredit, "crédito de imposto"},
                          {Source::LastServiceRate, "AQ_ISS"},
                          {Source::ServiceTaxSum, "soma de VL_ISS"},
                          {Source::ServiceSum, "soma de VL_LIQ_IT"}};

std::string nameOf(Source source, int parcel) {
    if (isAttribute(source)) {
        return std::string(attributeName(source));
    }
    const auto* name = std::find_if(std::begin(names), std::end(names),
                                    [source](const Name& n) { return n.source == source; });
    std::string words(name == std::end(names) ? "texto do formulário" : name->words);
    const bool ofParcel =
        source == Source::NR_DOC || source == Source::VL_PRN_DOC || source == Source::DT_VNC_DOC;
    return ofParcel ? words + std::to_string(parcel) : words;
}

std::string placeOf(const Loss& loss) {
    std::string place;
    if (loss.line > 0) {
        place += "linha " + std::to_string(loss.line) + ", ";
    }
    if (loss.column > 0) {
        place += "coluna " + std::to_string(loss.column) + ", ";
    }
    if (loss.item > 0) {
        place += "item " + std::to_string(loss.item) + ", ";
    }
    return place;
}

std::string quoted(std::string_view text) {
    return "\"" + blankControls(text) + "\"";
}

}  // namespace

std::string describe(const Loss& loss) {
    std::string where = placeOf(loss) + loss.field;
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
