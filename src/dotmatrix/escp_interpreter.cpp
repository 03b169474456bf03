#include "dotmatrix/escp_interpreter.h"

#include <algorithm>
#include <utility>

#include "dotmatrix/control_codes.h"

namespace tarn::dotmatrix {

namespace {

constexpr PaperUnits narrowestCarriage = unitsPerInch;

}  // namespace

EscpInterpreter::EscpInterpreter(ContinuousPaper& paper, const Dialect& dialect)
    : paper_(paper), dialect_(dialect), head_(paper_, dialect_, state_, notices_) {
    dialect_.carriageWidth = std::max(dialect_.carriageWidth, narrowestCarriage);
    reset();
}

EscpInterpreter::EscpInterpreter(ContinuousPaper& paper, const Dialect& dialect, PrinterState state)
    : paper_(paper),
      dialect_(dialect),
      state_(std::move(state)),
      head_(paper_, dialect_, state_, notices_) {
    dialect_.carriageWidth = std::max(dialect_.carriageWidth, narrowestCarriage);
}

void EscpInterpreter::startJob() {
    paper_.startJob();
    state_.columnsBefore = static_cast<std::uint16_t>(state_.column - 1);
}

void EscpInterpreter::feedToTop() {
    if (!paper_.atFreshForm()) {
        paper_.feedToNextForm();
    }
}

void EscpInterpreter::changePaper(const Dialect& panel, bool switchedOn) {
    feedToTop();
    dialect_ = panel;
    if (switchedOn) {
        state_ = PrinterState{};
        reset();
    } else if (paper_.formHeight() != panel.formHeight) {
        paper_.setFormHeight(panel.formHeight);
    }
}

void EscpInterpreter::feed(std::string_view bytes) {
    if (paper_.currentJob() == 0) {
        startJob();
    }
    for (const char c : bytes) {
        take(static_cast<std::uint8_t>(c));
    }
}

void EscpInterpreter::take(std::uint8_t byte) {
    switch (state_.waiting) {
        case Waiting::Text:
            takeText(byte);
            break;
        case Waiting::Escape:
            takeEscape(byte);
            break;
        case Waiting::Parameters:
            takeParameter(byte);
            break;
        case Waiting::ListEnd:
            if (byte == nul) {
                finishCommand();
            }
            break;
        case Waiting::Data:
            if (--state_.missing == 0) {
                state_.waiting = Waiting::Text;
            }
            break;
    }
}

void EscpInterpreter::takeText(std::uint8_t byte) {
    if (hasUpperControls(dialect_.codePage) && byte >= 0x80 && byte < 0xA0) {
        head_.note(NoticeKind::UpperControl, std::string(1, static_cast<char>(byte)));
        takeControl(static_cast<std::uint8_t>(byte - 0x80), byte);
    } else if (byte < 0x20 || byte == deleteByte) {
        takeControl(byte, byte);
    } else {
        head_.print(glyphOf(byte, dialect_.codePage));
    }
}

void EscpInterpreter::takeControl(std::uint8_t code, std::uint8_t byte) {
    switch (code) {
        case nul:
        case bell:
            break;
        case backspaceByte:
            head_.backspace();
            break;
        case tab:
            head_.horizontalTab();
            break;
        case lineFeed:
        case verticalTab:  // without vertical tabs set it feeds one line
            head_.newLine();
            break;
        case formFeed:
            paper_.feedToNextForm();
            head_.carriageReturn();
            state_.mode.wideLine = false;
            break;
        case carriageReturnByte:
            head_.carriageReturn();
            break;
        case shiftOut:
            state_.mode.wideLine = true;
            break;
        case deviceControl4:
            state_.mode.wideLine = false;
            break;
        case shiftIn:
            state_.mode.condensed = true;
            break;
        case deviceControl2:
            state_.mode.condensed = false;
            break;
        case escape:
            state_.command.assign(1, static_cast<char>(byte));
            state_.waiting = Waiting::Escape;
            break;
        default:
            head_.note(NoticeKind::UnknownControl, std::string(1, static_cast<char>(byte)));
            break;
    }
}

void EscpInterpreter::takeEscape(std::uint8_t byte) {
    state_.command += static_cast<char>(byte);
    std::uint8_t code = byte;
    if (hasUpperControls(dialect_.codePage) && byte >= 0x80 && byte < 0xA0) {
        code = static_cast<std::uint8_t>(byte - 0x80);
    }
    if (code == escape) {
        // Forms are in use whose set-up reads ESC ESC G and wants double strike, so the
        // first ESC is the one that is dropped. A printer that drops the pair prints "G"
        // instead; the notice tells where.
        head_.note(NoticeKind::RepeatedEscape, state_.command);
        state_.command.assign(1, static_cast<char>(byte));
        return;
    }
    const auto shape = shapeOf(code);
    if (!shape) {
        head_.note(NoticeKind::UnknownCommand, state_.command);
        state_.waiting = Waiting::Text;
        return;
    }
    state_.shape = *shape;
    state_.missing = state_.shape.parameters;
    state_.waiting = Waiting::Parameters;
    if (state_.missing == 0) {
        if (state_.shape.tail == Tail::UntilNul) {
            state_.waiting = Waiting::ListEnd;
        } else {
            finishCommand();
        }
    }
}

void EscpInterpreter::takeParameter(std::uint8_t byte) {
    state_.command += static_cast<char>(byte);
    if (state_.shape.code == 'C' && state_.command.size() == 3 && byte == 0) {
        return;  // the length in inches follows
    }
    if (--state_.missing > 0) {
        return;
    }
    if (state_.shape.tail == Tail::UntilNul) {
        state_.waiting = Waiting::ListEnd;
    } else {
        finishCommand();
    }
}

void EscpInterpreter::finishCommand() {
    state_.waiting = Waiting::Text;
    if (state_.shape.drawn) {
        execute();
        return;
    }
    head_.note(NoticeKind::NotDrawn, state_.command);
    if (state_.shape.tail != Tail::Data) {
        return;
    }
    const auto low = static_cast<std::uint8_t>(state_.command[state_.command.size() - 2]);
    const auto high = static_cast<std::uint8_t>(state_.command[state_.command.size() - 1]);
    state_.missing = low + 256U * high;
    if (state_.shape.code == '*' && static_cast<std::uint8_t>(state_.command[2]) >= 32) {
        state_.missing *= 3;  // columns of 24 needles
    } else if (state_.shape.code == '^') {
        state_.missing *= 2;  // columns of 9 needles
    }
    if (state_.missing > 0) {
        state_.waiting = Waiting::Data;
    }
}

}  // namespace tarn::dotmatrix
