// PegaValor for many rows of the same fields: one pass over the attributes of a row
// answers for all of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "gateway/xml_node.h"

namespace tarn {

// The names of a row's fields, found without regard to the case of letters. Made once for
// any number of readers.
class RowNames {
public:
    // The texts must outlive this object. No two are the same but for their case.
    explicit RowNames(std::span<const std::string_view> names);

    struct Name {
        std::string_view name;  // as PegaValor takes it
        std::string upperCase;  // as a numeric read looks it up
    };
    std::size_t count() const { return names_.size(); }
    const Name& operator[](std::size_t field) const { return names_[field]; }
    // Which one is called so in any case of letters; -1: none.
    int find(std::string_view name) const;

private:
    struct Hash {
        std::size_t operator()(std::string_view name) const;
    };
    struct Equal {
        bool operator()(std::string_view a, std::string_view b) const;
    };
    std::vector<Name> names_;
    std::unordered_map<std::string_view, int, Hash, Equal> places_;
};

// The rows of one document.
class RowReader {
public:
    explicit RowReader(std::shared_ptr<const RowNames> names);
    explicit RowReader(std::span<const std::string_view> names)
        : RowReader(std::make_shared<const RowNames>(names)) {}

    // Goes to a row. RuntimeError ObjectVariable for a null one. What was read of the row
    // before is no longer valid.
    void read(const XmlNode& row);
    void read(const XmlNode& node, std::size_t index) { read(node.child(index)); }

    // `field` is the place of the name in `names`. Results live until the next row.
    bool present(std::size_t field) const { return matches_[field].turn == turn_; }
    std::string_view text(std::size_t field) const;
    std::string_view number(std::size_t field, std::string_view fallback = "0");

private:
    // First attribute of that name in any case; of this row when `turn` is the reader's.
    struct Match {
        XmlAttribute attribute;
        std::uint64_t turn = 0;
        bool exact = false;      // spelled as the name
        std::string withCommas;  // its text as a numeric read gives it
    };
    // What is known of a name of the document.
    struct KnownName {
        const char* address = nullptr;
        int field = -1;  // -1: none
        bool exact = false;
    };

    const KnownName& known(const XmlAttribute& attribute);

    std::shared_ptr<const RowNames> names_;
    std::vector<Match> matches_;
    // Each name at the place its address gives; one that comes later takes the place.
    std::array<KnownName, 256> known_;
    std::uint64_t turn_ = 0;  // rows read
    XmlNode row_;
};

}  // namespace tarn
