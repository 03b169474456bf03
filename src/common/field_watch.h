// Who draws a document's form: told where on it each field lies, as the document prints.
#pragma once

#include <span>
#include <string_view>

namespace tarn {

// A field of one call of the raw channel. Columns count from 0 at the call's first one, the
// blank that every line begins with.
struct PlacedField {
    int column = 0;
    int width = 0;
    std::string_view label{};  // what the form calls it; empty: it goes on with the one above
};

class FieldWatch {
public:
    virtual ~FieldWatch() = default;
    // Before the call's bytes go out.
    virtual void placed(std::span<const PlacedField> fields) = 0;
};

}  // namespace tarn
