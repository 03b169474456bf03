// The head of the printer: where it is in the line, and how the next character
// comes onto the paper.
#pragma once

#include <cstdint>
#include <string>

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/dialect.h"
#include "dotmatrix/print_notice.h"

namespace tarn::dotmatrix {

struct HeadState {
    PrintMode mode;
    PaperUnits lineSpacing = lineHeight;
    PaperUnits x = 0;
    std::uint16_t column = 1;         // printed characters since the left margin, from 1
    std::uint16_t columnsBefore = 0;  // as in PaperLine
};

class PrintHead {
public:
    // All must outlive this.
    PrintHead(ContinuousPaper& paper, const Dialect& dialect, HeadState& state, NoticeLog& notices)
        : paper_(paper), dialect_(dialect), state_(state), notices_(notices) {}

    void print(char16_t character);
    void newLine();
    void carriageReturn();
    void horizontalTab();
    void backspace();
    // With its place.
    void note(NoticeKind kind, std::string bytes);

private:
    void passColumns(PaperUnits count);

    ContinuousPaper& paper_;
    const Dialect& dialect_;
    HeadState& state_;
    NoticeLog& notices_;
};

}  // namespace tarn::dotmatrix
