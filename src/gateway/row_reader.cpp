#include <libxml/tree.h>

#include <algorithm>
#include <bit>
#include <cstdint>

#include "gateway/pega_valor.h"
#include "runtime/ascii.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

constexpr std::size_t smallestTable = 64;
// How many names of the row before may be missing in a row without losing its order.
constexpr std::size_t largestSkip = 4;

std::string_view asText(const void* nome) {
    return static_cast<const char*>(nome);
}

char upperByte(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Of the length and both ends of the name. The bit that parts small letters from
// capitals doesn't count, so that spellings of one name fall together.
std::size_t hashOf(std::string_view nome) {
    constexpr std::uint64_t withoutCase = 0xDFDFDFDFDFDFDFDFU;
    constexpr std::uint64_t prime = 0x9E3779B97F4A7C15U;
    using Half = std::uint32_t;
    std::uint64_t first = 0;
    std::uint64_t end = 0;
    if (nome.size() >= sizeof first) {
        first = ascii::load<std::uint64_t>(nome.data());
        end = ascii::load<std::uint64_t>(nome.data() + nome.size() - sizeof end);
    } else if (nome.size() >= sizeof(Half)) {
        first = ascii::load<Half>(nome.data());
        end = ascii::load<Half>(nome.data() + nome.size() - sizeof(Half));
    } else {
        for (const char c : nome) {
            first = first << 8U | static_cast<unsigned char>(c);
        }
    }
    const std::uint64_t mixed =
        ((first & withoutCase) * prime ^ (end & withoutCase)) * prime + nome.size();
    return static_cast<std::size_t>(mixed ^ (mixed >> 32U));
}

bool equalIgnoringCase(std::string_view nome, std::string_view upperCase) {
    return nome.size() == upperCase.size() &&
           std::equal(nome.begin(), nome.end(), upperCase.begin(),
                      [](char a, char b) { return upperByte(a) == b; });
}

// The value of an attribute is one text node, or none.
std::string_view content(const void* attribute) {
    const xmlNode* texto = static_cast<const xmlAttr*>(attribute)->children;
    return texto == nullptr || texto->content == nullptr ? std::string_view{}
                                                         : asText(texto->content);
}

std::size_t tableFor(std::size_t names) {
    return std::max(smallestTable, std::bit_ceil(2 * names + 1));
}

}  // namespace

RowNames::RowNames(std::span<const std::string_view> names)
    : table_(tableFor(names.size()), std::int16_t{-1}) {
    names_.reserve(names.size());
    for (const std::string_view nome : names) {
        std::size_t place = hashOf(nome) & (table_.size() - 1);
        while (table_[place] >= 0) {
            place = (place + 1) & (table_.size() - 1);
        }
        table_[place] = static_cast<std::int16_t>(names_.size());
        names_.push_back({.nome = nome, .upperCase = asciiUpper(nome)});
    }
}

RowNames::Match RowNames::find(std::string_view nome) const {
    std::size_t place = hashOf(nome) & (table_.size() - 1);
    while (table_[place] >= 0) {
        const std::int16_t field = table_[place];
        const Name& candidate = names_[static_cast<std::size_t>(field)];
        if (nome == candidate.nome) {
            return {field, true};
        }
        if (equalIgnoringCase(nome, candidate.upperCase)) {
            return {field, false};
        }
        place = (place + 1) & (table_.size() - 1);
    }
    return {};
}

RowReader::RowReader(std::shared_ptr<const RowNames> names)
    : names_(std::move(names)), matches_(names_->count()) {
    sequence_.reserve(names_->count());
}

void RowReader::read(const XmlNode& linha) {
    if (!linha) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable);
    }
    linha_ = linha;
    ++turn_;
    const auto* element = static_cast<const xmlNode*>(linha.node_);
    if (element->type != XML_ELEMENT_NODE) {
        return;
    }
    start(element);
    std::size_t place = 0;
    for (const xmlAttr* a = element->properties; a != nullptr; a = a->next) {
        if (place >= sequence_.size() || sequence_[place].nome != a->name) {
            place = placeOf(a->name, place);
        }
        const KnownName& nome = sequence_[place++];
        if (nome.field < 0) {
            continue;
        }
        MatchedField& match = matches_[static_cast<std::size_t>(nome.field)];
        if (match.turn != turn_) {
            match.attribute = a;
            match.turn = turn_;
            match.exact = nome.exact && a->ns == nullptr;
        }
    }
}

std::string_view RowReader::texto(std::size_t field) const {
    const MatchedField& match = matches_[field];
    if (match.turn != turn_) {
        return {};
    }
    return match.exact ? content(match.attribute) : query(match, (*names_)[field].nome);
}

std::string_view RowReader::number(std::size_t field, std::string_view padrao) {
    MatchedField& match = matches_[field];
    if (match.turn != turn_) {
        return padrao;
    }
    const RowNames::Name& nome = (*names_)[field];
    const std::string_view texto = match.exact && nome.nome == nome.upperCase
                                       ? content(match.attribute)
                                       : query(match, nome.upperCase);
    const auto point = std::find(texto.begin(), texto.end(), '.');
    if (point == texto.end()) {
        return texto;
    }
    match.withCommas.assign(texto);
    std::replace(match.withCommas.begin() + (point - texto.begin()), match.withCommas.end(), '.',
                 ',');
    return match.withCommas;
}

std::string_view RowReader::query(const MatchedField& match, std::string_view nome) const {
    const auto* attribute = static_cast<const xmlAttr*>(match.attribute);
    if (attribute->ns == nullptr && asText(attribute->name) == nome) {
        return content(attribute);
    }
    return linha_.attributes().getNamedItem(nome).text();
}

// What is known of names belongs to one document.
void RowReader::start(const void* element) {
    const std::uint64_t documento = XmlDocument::serialOf(element);
    if (documento != documento_) {
        sequence_.clear();
        documento_ = documento;
        withoutPrefix_ = XmlDocument::undeclaredPrefixes(element);
    }
}

// Where the name stands in the sequence from `since` on. A document holds each name
// once, so that its address tells it. A name that isn't near takes the place.
std::size_t RowReader::placeOf(const void* nome, std::size_t since) {
    const std::size_t to = std::min(since + 1 + largestSkip, sequence_.size());
    for (std::size_t place = since; place < to; ++place) {
        if (sequence_[place].nome == nome) {
            return place;
        }
    }
    if (since == sequence_.size()) {
        sequence_.push_back(recognise(nome));
    } else {
        sequence_[since] = recognise(nome);
    }
    return since;
}

RowReader::KnownName RowReader::recognise(const void* nome) const {
    const std::string_view whole = asText(nome);
    const std::string_view base = withoutPrefix_ ? whole.substr(whole.find(':') + 1) : whole;
    const RowNames::Match match = names_->find(base);
    return {nome, static_cast<std::int16_t>(match.field),
            match.exact && base.size() == whole.size()};
}

}  // namespace tarn
