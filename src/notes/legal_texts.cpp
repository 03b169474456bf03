#include "notes/legal_texts.h"

#include <functional>

namespace tarn::notes {

void joinLegal(std::string& joined, std::string_view text) {
    if (!joined.empty()) {
        joined += legalSeparator;
    }
    joined += text;
}

void LegalTexts::add(std::string_view text) {
    // Most items repeat the text of the one before.
    if (!texts_.empty() && texts_.back() == text) {
        return;
    }
    if (2 * (texts_.size() + 1) > slots_.size()) {
        grow();
    }
    const std::size_t slot = slotOf(text);
    if (slots_[slot] == 0) {
        texts_.push_back(text);
        slots_[slot] = texts_.size();
    }
}

std::string LegalTexts::joined() const {
    std::string joined;
    for (const std::string_view text : texts_) {
        joinLegal(joined, text);
    }
    return joined;
}

void LegalTexts::grow() {
    constexpr std::size_t least = 16;
    slots_.assign(slots_.empty() ? least : 2 * slots_.size(), 0);
    for (std::size_t i = 0; i < texts_.size(); ++i) {
        slots_[slotOf(texts_[i])] = i + 1;
    }
}

std::size_t LegalTexts::slotOf(std::string_view text) const {
    const std::size_t mask = slots_.size() - 1;
    std::size_t slot = std::hash<std::string_view>{}(text)&mask;
    while (slots_[slot] != 0 && texts_[slots_[slot] - 1] != text) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

}  // namespace tarn::notes
