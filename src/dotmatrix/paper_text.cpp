#include "dotmatrix/paper_text.h"

#include <cstddef>

namespace tarn::dotmatrix {

namespace {

// The character generators hold no character above FFFF and no surrogate.
void appendCharacter(std::string& out, char16_t c) {
    const auto append = [&out](unsigned byte) { out += static_cast<char>(byte); };
    if (c < 0x80) {
        append(c);
    } else if (c < 0x800) {
        append(0xC0U | (c >> 6U));
        append(0x80U | (c & 0x3FU));
    } else {
        append(0xE0U | (c >> 12U));
        append(0x80U | ((c >> 6U) & 0x3FU));
        append(0x80U | (c & 0x3FU));
    }
}

void appendRow(std::string& out, std::u16string& row) {
    while (!row.empty() && row.back() == u' ') {
        row.pop_back();
    }
    for (const char16_t c : row) {
        appendCharacter(out, c);
    }
    out += '\n';
    row.clear();
}

}  // namespace

void putInto(std::u16string& row, const Cell& cell) {
    const std::size_t index = cell.column - 1U;
    if (row.size() <= index) {
        row.resize(index + 1, u' ');
    }
    const bool hides = cell.character != u'_' && cell.character != u' ';
    if (hides || row[index] == u' ') {
        row[index] = cell.character;
    }
}

void appendText(std::string& out, const FormPage& page) {
    std::u16string row;
    std::size_t rowsOut = 0;
    const auto& lines = page.lines;
    for (std::size_t next = 0; next < lines.size();) {
        const std::size_t present = lines[next].row;
        for (; rowsOut < present; ++rowsOut) {
            out += '\n';
        }
        for (; next < lines.size() && lines[next].row == present; ++next) {
            for (const Cell& cell : lines[next].cells) {
                putInto(row, cell);
            }
        }
        appendRow(out, row);
        ++rowsOut;
    }
}

std::string textOf(const ContinuousPaper& paper) {
    std::string out;
    for (std::size_t form = 0; form < paper.printedForms(); ++form) {
        if (form > 0) {
            out += '\f';
        }
        appendText(out, pageOf(paper, form));
    }
    return out;
}

}  // namespace tarn::dotmatrix
