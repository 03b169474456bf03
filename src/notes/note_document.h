// The note document: child elements of PRINCIPAL by position, their attributes by
// source. Each row is walked once, when its first field is asked for.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "gateway/row_reader.h"
#include "gateway/xml_document.h"
#include "notes/source.h"

namespace tarn::notes {

// Position of the first item row.
inline constexpr std::size_t firstItem = 3;

// Texts live as long as the XML document, amounts until the next row of the same
// kind. A row or a node that is missing, and a field that is there in another case
// of letters only, are RuntimeError ObjectVariable.
class NoteDocument {
public:
    explicit NoteDocument(const XmlDocument& document);

    bool present(Source source) { return readerOf(source).present(fieldOf(source)); }
    // Text reading: the text as it is, "" when absent.
    std::string_view text(Source source) { return readerOf(source).text(fieldOf(source)); }
    // Amount reading: "." turned into ",", `absent` when absent.
    std::string_view amount(Source source, std::string_view absent = "0") {
        return readerOf(source).number(fieldOf(source), absent);
    }
    // An amount as a number; TypeMismatch, naming the field, for anything else.
    double number(Source source, std::string_view absent = "0");

    // Makes the child at `position` the item row in hand.
    void goToItem(std::size_t position);
    std::size_t childCount() const { return children_.length(); }
    bool isItem(std::size_t position) const;

private:
    RowReader& readerOf(Source source);
    static std::size_t fieldOf(Source source);
    XmlNode row(std::size_t position) const;

    XmlNode principal_;
    XmlNodeList children_;
    std::optional<RowReader> head_;
    std::optional<RowReader> totals_;
    std::optional<RowReader> form_;
    std::optional<RowReader> item_;
};

// The text of `source` as a number by the comma reading.
double numberOf(Source source, std::string_view text);
// `text` as the server sent it, so that it can be found there.
[[noreturn]] void refuseNumber(Source source, std::string_view text);

}  // namespace tarn::notes
