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

std::string_view asText(const void* name) {
    return static_cast<const char*>(name);
}

char upperByte(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

// Of the length and both ends of the name. The bit that parts small letters from
// capitals doesn't count, so that spellings of one name fall together.
std::size_t hashOf(std::string_view name) {
    constexpr std::uint64_t withoutCase = 0xDFDFDFDFDFDFDFDFU;
    constexpr std::uint64_t prime = 0x9E3779B97F4A7C15U;
    using Half = std::uint32_t;
    std::uint64_t first = 0;
    std::uint64_t end = 0;
    if (name.size() >= sizeof first) {
        first = ascii::load<std::uint64_t>(name.data());
        end = ascii::load<std::uint64_t>(name.data() + name.size() - sizeof end);
    } else if (name.size() >= sizeof(Half)) {
        first = ascii::load<Half>(name.data());
        end = ascii::load<Half>(name.data() + name.size() - sizeof(Half));
    } else {
        for (const char c : name) {
            first = first << 8U | static_cast<unsigned char>(c);
        }
    }
    const std::uint64_t mixed =
        ((first & withoutCase) * prime ^ (end & withoutCase)) * prime + name.size();
    return static_cast<std::size_t>(mixed ^ (mixed >> 32U));
}

bool equalIgnoringCase(std::string_view name, std::string_view upperCase) {
    return name.size() == upperCase.size() &&
           std::equal(name.begin(), name.end(), upperCase.begin(),
                      [](char a, char b) { return upperByte(a) == b; });
}

// The value of an attribute is one text node, or none.
std::string_view content(const void* attribute) {
    const xmlNode* text = static_cast<const xmlAttr*>(attribute)->children;
    return text == nullptr || text->content == nullptr ? std::string_view{} : asText(text->content);
}

std::size_t tableFor(std::size_t names) {
    return std::max(smallestTable, std::bit_ceil(2 * names + 1));
}

}  // namespace

RowNames::RowNames(std::span<const std::string_view> names)
    : table_(tableFor(names.size()), std::int16_t{-1}) {
    names_.reserve(names.size());
    for (const std::string_view name : names) {
        std::size_t place = hashOf(name) & (table_.size() - 1);
        while (table_[place] >= 0) {
            place = (place + 1) & (table_.size() - 1);
        }
        table_[place] = static_cast<std::int16_t>(names_.size());
        names_.push_back({.name = name, .upperCase = asciiUpper(name)});
    }
}

RowNames::Match RowNames::find(std::string_view name) const {
    std::size_t place = hashOf(name) & (table_.size() - 1);
    while (table_[place] >= 0) {
        const std::int16_t field = table_[place];
        const Name& candidate = names_[static_cast<std::size_t>(field)];
        if (name == candidate.name) {
            return {field, true};
        }
        if (equalIgnoringCase(name, candidate.upperCase)) {
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

void RowReader::read(const XmlNode& line) {
    if (!line) {
        throw RuntimeError(RuntimeErrorCode::ObjectVariable);
    }
    line_ = line;
    ++turn_;
    const auto* element = static_cast<const xmlNode*>(line.node_);
    if (element->type != XML_ELEMENT_NODE) {
        return;
    }
    start(element);
    std::size_t place = 0;
    for (const xmlAttr* a = element->properties; a != nullptr; a = a->next) {
        if (place >= sequence_.size() || sequence_[place].name != a->name) {
            place = placeOf(a->name, place);
        }
        const KnownName& name = sequence_[place++];
        if (name.field < 0) {
            continue;
        }
        MatchedField& match = matches_[static_cast<std::size_t>(name.field)];
        if (match.turn != turn_) {
            match.attribute = a;
            match.turn = turn_;
            match.exact = name.exact && a->ns == nullptr;
        }
    }
}

std::string_view RowReader::text(std::size_t field) const {
    const MatchedField& match = matches_[field];
    if (match.turn != turn_) {
        return {};
    }
    return match.exact ? content(match.attribute) : query(match, (*names_)[field].name);
}

std::string_view RowReader::number(std::size_t field, std::string_view fallback) {
    MatchedField& match = matches_[field];
    if (match.turn != turn_) {
        return fallback;
    }
    const RowNames::Name& name = (*names_)[field];
    const std::string_view text = match.exact && name.name == name.upperCase
                                      ? content(match.attribute)
                                      : query(match, name.upperCase);
    const auto point = std::find(text.begin(), text.end(), '.');
    if (point == text.end()) {
        return text;
    }
    match.withCommas.assign(text);
    std::replace(match.withCommas.begin() + (point - text.begin()), match.withCommas.end(), '.',
                 ',');
    return match.withCommas;
}

std::string_view RowReader::query(const MatchedField& match, std::string_view name) const {
    const auto* attribute = static_cast<const xmlAttr*>(match.attribute);
    if (attribute->ns == nullptr && asText(attribute->name) == name) {
        return content(attribute);
    }
    return line_.attributes().getNamedItem(name).text();
}

// What is known of names belongs to one document.
void RowReader::start(const void* element) {
    const std::uint64_t document = XmlDocument::serialOf(element);
    if (document != document_) {
        sequence_.clear();
        document_ = document;
        withoutPrefix_ = XmlDocument::undeclaredPrefixes(element);
    }
}

// Where the name stands in the sequence from `since` on. A document holds each name
// once, so that its address tells it. A name that isn't near takes the place.
std::size_t RowReader::placeOf(const void* name, std::size_t since) {
    const std::size_t to = std::min(since + 1 + largestSkip, sequence_.size());
    for (std::size_t place = since; place < to; ++place) {
        if (sequence_[place].name == name) {
            return place;
        }
    }
    if (since == sequence_.size()) {
        sequence_.push_back(recognise(name));
    } else {
        sequence_[since] = recognise(name);
    }
    return since;
}

RowReader::KnownName RowReader::recognise(const void* name) const {
    const std::string_view whole = asText(name);
    const std::string_view base = withoutPrefix_ ? whole.substr(whole.find(':') + 1) : whole;
    const RowNames::Match match = names_->find(base);
    return {name, static_cast<std::int16_t>(match.field),
            match.exact && base.size() == whole.size()};
}

}  // namespace tarn
