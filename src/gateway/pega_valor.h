// Reading one attribute of one row, and the status of an answer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "gateway/xml_document.h"

namespace tarn {

// What a read gives back: the default value of whichever type was passed, or a text.
using AttributeValue = std::variant<std::string, double>;

// `index` counts the element children of `node` from 0. A default equal to the
// number 0 makes the read numeric: looked up by the upper-cased name, "." turned
// into ",". Any other default makes it a text read, looked up by the name exactly
// as given. Absent in any case of letters: the default as passed. Present in another
// case than the lookup's, or no such row: RuntimeError ObjectVariable.
AttributeValue PegaValor(const XmlNode& node, std::size_t index, std::string_view name,
                         const AttributeValue& fallback);

// The two readings in use, as text: absent gives "" and "0".
std::string textAttribute(const XmlNode& node, std::size_t index, std::string_view name);
std::string numberAttribute(const XmlNode& node, std::size_t index, std::string_view name);

// The names of a row's fields, found without regard to the case of letters. Made
// once for any number of readers.
class RowNames {
public:
    // The texts must outlive this object.
    explicit RowNames(std::span<const std::string_view> names);

    struct Name {
        std::string_view name;  // as PegaValor takes it
        std::string upperCase;  // as a numeric read looks it up
    };
    std::size_t count() const { return names_.size(); }
    const Name& operator[](std::size_t field) const { return names_[field]; }
    // Which one is called so in any case of letters.
    struct Match {
        int field = -1;      // -1: none
        bool exact = false;  // spelled as `name`
    };
    Match find(std::string_view name) const;

private:
    std::vector<Name> names_;
    std::vector<std::int16_t> table_;  // open addressing, a power of two long; -1: free
};

// PegaValor for many rows of the same fields: one pass over the attributes of a
// row answers for all of them. Rows that repeat the order of the names cost least.
class RowReader {
public:
    explicit RowReader(std::shared_ptr<const RowNames> names);
    explicit RowReader(std::span<const std::string_view> names)
        : RowReader(std::make_shared<const RowNames>(names)) {}

    // Goes to a row. ObjectVariable for a null one. What was read of the row before
    // is no longer valid.
    void read(const XmlNode& line);
    void read(const XmlNode& node, std::size_t index) { read(node.child(index)); }

    // `field` is the place of the name in `names`. Results live until the next row.
    bool present(std::size_t field) const { return matches_[field].turn == turn_; }
    std::string_view text(std::size_t field) const;
    std::string_view number(std::size_t field, std::string_view fallback = "0");

private:
    // First attribute of that name in any case; of this row when `turn` is the reader's.
    struct MatchedField {
        const void* attribute = nullptr;
        std::uint64_t turn = 0;
        bool exact = false;      // spelled as the name
        std::string withCommas;  // its text with commas, when it has points
    };
    // A name as the document interns it, and the field it stands for (-1: none).
    struct KnownName {
        const void* name = nullptr;
        std::int16_t field = -1;
        bool exact = false;
    };

    void start(const void* element);
    std::size_t placeOf(const void* name, std::size_t since);
    KnownName recognise(const void* name) const;
    std::string_view query(const MatchedField& match, std::string_view name) const;

    std::shared_ptr<const RowNames> names_;
    std::vector<MatchedField> matches_;
    std::vector<KnownName> sequence_;  // names of the row before, in its order
    std::uint64_t document_ = 0;
    bool withoutPrefix_ = false;  // the document's names hold prefixes that it never declares
    std::uint64_t turn_ = 0;      // rows read
    XmlNode line_;
};

// Text of the second attribute of the document's second child; RuntimeError
// ObjectVariable when there is none (no declaration, one attribute only).
std::string statusOf(const XmlDocument& document);

}  // namespace tarn
