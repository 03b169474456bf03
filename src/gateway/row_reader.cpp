#include "gateway/row_reader.h"

#include <algorithm>
#include <bit>

#include "gateway/pega_valor.h"
#include "runtime/ascii.h"
#include "runtime/numbers.h"
#include "runtime/runtime_error.h"
#include "runtime/text.h"

namespace tarn {
namespace {

// Spreads addresses that lie close together over 256 places.
std::size_t placeOf(const char* address) {
    constexpr std::uint64_t prime = 0x9E3779B97F4A7C15U;
    return static_cast<std::size_t>((std::bit_cast<std::uintptr_t>(address) * prime) >> 56U);
}

}  // namespace

std::size_t RowNames::Hash::operator()(std::string_view name) const {
    std::size_t sum = name.size();
    for (const char c : name) {
        sum = sum * 31 + static_cast<unsigned char>(asciiUpper(c));
    }
    return sum;
}

bool RowNames::Equal::operator()(std::string_view a, std::string_view b) const {
    return sameIgnoringCase(a, b);
}

RowNames::RowNames(std::span<const std::string_view> names) {
    names_.reserve(names.size());
    places_.reserve(names.size());
    for (const std::string_view name : names) {
        places_.emplace(name, static_cast<int>(names_.size()));
        names_.push_back({.name = name, .upperCase = asciiUpper(name)});
    }
}

int RowNames::find(std::string_view name) const {
    const auto place = places_.find(name);
    return place == places_.end() ? -1 : place->second;
}

RowReader::RowReader(std::shared_ptr<const RowNames> names)
    : names_(std::move(names)), matches_(names_->count()) {}

void RowReader::read(const XmlNode& row) {
    XmlAttribute a = row.attributes().first();
    row_ = row;
    ++turn_;
    for (; a; a = a.next()) {
        const KnownName& name = known(a);
        if (name.field < 0) {
            continue;
        }
        Match& match = matches_[static_cast<std::size_t>(name.field)];
        if (match.turn != turn_) {
            match.attribute = a;
            match.turn = turn_;
            match.exact = name.exact && !a.hasPrefix();
        }
    }
}

const RowReader::KnownName& RowReader::known(const XmlAttribute& attribute) {
    const char* address = attribute.nameAddress();
    KnownName& name = known_[placeOf(address)];
    if (name.address != address) {
        const int field = names_->find(attribute.baseName());
        const bool exact = field >= 0 && (*names_)[static_cast<std::size_t>(field)].name == address;
        name = {address, field, exact};
    }
    return name;
}

std::string_view RowReader::text(std::size_t field) const {
    const Match& match = matches_[field];
    if (match.turn != turn_) {
        return {};
    }
    return match.exact
               ? match.attribute.text()
               : spelledAs((*names_)[field].name, match.attribute, row_.attributes()).text();
}

std::string_view RowReader::number(std::size_t field, std::string_view fallback) {
    Match& match = matches_[field];
    if (match.turn != turn_) {
        return fallback;
    }
    const RowNames::Name& name = (*names_)[field];
    const std::string_view text =
        match.exact && name.name == name.upperCase
            ? match.attribute.text()
            : spelledAs(name.upperCase, match.attribute, row_.attributes()).text();
    if (text.find('.') == std::string_view::npos) {
        return text;
    }
    match.withCommas = pointToComma(text);
    return match.withCommas;
}

}  // namespace tarn
