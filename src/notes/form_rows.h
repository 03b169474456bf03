// The words in which a layout file writes its rows.
#pragma once

#include "notes/layout.h"

namespace tarn::notes {

constexpr int charactersOf(std::string_view utf8) {
    int count = 0;
    for (const char c : utf8) {
        count += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1 : 0;
    }
    return count;
}

constexpr Field fieldOf(Source source, int column, int width) {
    const SourceRow& usual = rowOf(source);
    Field field;
    field.source = source;
    field.rule = usual.rule;
    field.column = static_cast<std::uint16_t>(column);
    field.width = static_cast<std::uint16_t>(width);
    field.room = static_cast<std::uint16_t>(usual.room);
    field.mask = NumberMask(usual.mask);
    return field;
}

// The column and the width as the form has them, as "2:38" and "23:17 R".
constexpr Field left(Source source, int column, int width) {
    return fieldOf(source, column, width);
}
constexpr Field right(Source source, int column, int width) {
    Field field = fieldOf(source, column, width);
    field.right = true;
    return field;
}
// Takes the room of its text.
constexpr Field bare(Source source, int column) {
    return fieldOf(source, column, 0);
}
constexpr Field blank(int column, int width) {
    return fieldOf(Source::Literal, column, width);
}
// A text of the form itself; without a width it takes its own room.
constexpr Field text(std::string_view words, int column, int width = 0) {
    Field field = fieldOf(Source::Literal, column, width);
    field.label = words;
    field.room = static_cast<std::uint16_t>(charactersOf(words));
    return field;
}
// Label and value as one text, padded together.
constexpr Field labelled(std::string_view label, Source source, int column, int width) {
    Field field = fieldOf(source, column, width);
    field.label = label;
    return field;
}
// The "X": its column on an exit note and on an entry note.
constexpr Field mark(int exitColumn, int entryColumn) {
    Field field = fieldOf(Source::Mark, exitColumn, 0);
    field.entryColumn = static_cast<std::uint16_t>(entryColumn);
    return field;
}
// `length` characters of a long text from character `start`, neither padded nor
// trimmed. LegalText: the joined legal texts; Observation: " OBS.: " and DC_OBS.
constexpr Field piece(Source source, int column, int start, int length) {
    Field field = fieldOf(source, column, 0);
    field.start = static_cast<std::uint16_t>(start);
    field.length = static_cast<std::uint16_t>(length);
    return field;
}
// The field under another mask than its usual one, or with another rule.
constexpr Field under(std::string_view mask, Field field) {
    field.mask = NumberMask(mask);
    return field;
}
constexpr Field as(Rule rule, Field field) {
    field.rule = rule;
    return field;
}

template <typename... Fields>
constexpr Row row(int advance, Fields... fields) {
    static_assert(sizeof...(fields) <= mostFields);
    return Row{.advance = advance, .count = sizeof...(fields), .field = {fields...}};
}
template <typename... Fields>
constexpr Place place(Fields... fields) {
    static_assert(sizeof...(fields) <= 4);
    return Place{.count = sizeof...(fields), .field = {fields...}};
}

}  // namespace tarn::notes
