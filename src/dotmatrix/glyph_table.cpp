#include "dotmatrix/glyph_table.h"

namespace tarn::dotmatrix {

bool hasUpperControls(CodePage page) {
    return page == CodePage::Page1252;
}

char16_t glyphOf(std::uint8_t byte, CodePage page) {
    const bool control =
        byte < 0x20 || byte == 0x7F || (hasUpperControls(page) && byte >= 0x80 && byte < 0xA0);
    return control ? u' ' : characterOf(byte, page);
}

}  // namespace tarn::dotmatrix
