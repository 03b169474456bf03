// The distinct legal texts of a note's items, in order of first appearance.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarn::notes {

// Between two entries: blank, two backslashes, blank (decision N4).
inline constexpr std::string_view legalSeparator = " \\\\ ";
inline constexpr std::string_view observationLabel = " OBS.: ";

// Adds `text` behind `joined`, separated from what is already there.
void joinLegal(std::string& joined, std::string_view text);

class LegalTexts {
public:
    // Keeps a text that isn't there yet, an empty one too. The text must outlive
    // this object.
    void add(std::string_view text);
    std::string joined() const;

private:
    void grow();
    // Slot of the text, or the free one where it belongs.
    std::size_t slotOf(std::string_view text) const;

    std::vector<std::string_view> texts_;
    std::vector<std::size_t> slots_;  // open addressing, 1-based places in `texts_`
};

}  // namespace tarn::notes
