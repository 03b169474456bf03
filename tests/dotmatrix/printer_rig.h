// A printer with paper in it, for the tests of the interpreter.
#pragma once

#include <string>
#include <string_view>

#include "dotmatrix/escp_interpreter.h"
#include "dotmatrix/paper_text.h"

namespace tarn::test {

struct PrinterRig {
    explicit PrinterRig(dotmatrix::Dialect panel = {})
        : dialect(panel), paper(panel.formHeight), printer(paper, panel) {}

    PrinterRig& job(std::string_view bytes) {
        printer.startJob();
        printer.feed(bytes);
        return *this;
    }
    // The n-th character printed since power on, in the order of printing, from 0.
    dotmatrix::Cell cell(std::size_t n) const {
        for (const dotmatrix::PaperLine& line : paper.lines()) {
            if (n < line.cells.size()) {
                return line.cells[n];
            }
            n -= line.cells.size();
        }
        return dotmatrix::Cell{-1, 0, 0, u'\0', 0};
    }
    std::string text() const { return dotmatrix::textOf(paper); }
    std::size_t count(dotmatrix::NoticeKind kind) const {
        std::size_t found = 0;
        for (const dotmatrix::Notice& notice : printer.notices().kept()) {
            found += notice.kind == kind ? 1U : 0U;
        }
        return found;
    }

    dotmatrix::Dialect dialect;
    dotmatrix::ContinuousPaper paper;
    dotmatrix::EscpInterpreter printer;
};

// A text with zero bytes in it.
template <std::size_t size>
std::string bytesOf(const char (&literal)[size]) {
    return std::string(literal, size - 1);
}

}  // namespace tarn::test
