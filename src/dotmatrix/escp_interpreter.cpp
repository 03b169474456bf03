#include "dotmatrix/escp_interpreter.h"

#include <algorithm>
#include <utility>

namespace tarn::dotmatrix {

namespace {

constexpr std::uint8_t nul = 0x00;
constexpr std::uint8_t bell = 0x07;
constexpr std::uint8_t backspaceByte = 0x08;
constexpr std::uint8_t tab = 0x09;
constexpr std::uint8_t lineFeed = 0x0A;
constexpr std::uint8_t verticalTab = 0x0B;
constexpr std::uint8_t formFeed = 0x0C;
constexpr std::uint8_t carriageReturnByte = 0x0D;
constexpr std::uint8_t shiftOut = 0x0E;
constexpr std::uint8_t shiftIn = 0x0F;
constexpr std::uint8_t deviceControl2 = 0x12;
constexpr std::uint8_t deviceControl4 = 0x14;
constexpr std::uint8_t escape = 0x1B;
constexpr std::uint8_t deleteByte = 0x7F;

constexpr std::uint8_t maxFormLines = 127;
constexpr std::uint8_t maxFormInches = 22;
// No label is lower; shorter forms would only flood the paper with perforations.
constexpr PaperUnits shortestForm = unitsPerInch / 2;
constexpr std::uint8_t maxSpacing = 85;
constexpr PaperUnits narrowestCarriage = unitsPerInch;

// Printers read the digits "0" and "1" like the numbers in their on/off commands.
bool isOn(std::uint8_t parameter) {
    return (parameter & 1U) != 0;
}

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

void EscpInterpreter::execute() {
    const auto parameter = static_cast<std::uint8_t>(state_.command.back());
    switch (state_.shape.code) {
        case shiftOut:
            state_.mode.wideLine = true;
            break;
        case shiftIn:
            state_.mode.condensed = true;
            break;
        case 'M':
            state_.mode.elite = true;
            state_.mode.micron = false;
            break;
        case 'P':
            state_.mode.elite = false;
            state_.mode.micron = false;
            break;
        case 'g':
            state_.mode.micron = true;
            break;
        case 'E':
        case 'F':
            state_.mode.setStyle(emphasised, state_.shape.code == 'E');
            break;
        case 'G':
        case 'H':
            state_.mode.setStyle(doubleStrike, state_.shape.code == 'G');
            break;
        case '4':
        case '5':
            state_.mode.setStyle(italicShear, state_.shape.code == '4');
            break;
        case '-':
            state_.mode.setStyle(underlined, isOn(parameter));
            break;
        case 'W':
            state_.mode.wide = isOn(parameter);
            state_.mode.wideLine = false;
            break;
        case '!':
            state_.mode.select(parameter);
            break;
        case '@':
            reset();
            break;
        default:
            executeFeed(parameter);
            break;
    }
}

void EscpInterpreter::executeFeed(std::uint8_t parameter) {
    const bool nine = dialect_.needles == Needles::Nine;
    const PaperUnits fine = unitsPerInch / (nine ? 216 : 180);
    switch (state_.shape.code) {
        case '0':
            state_.lineSpacing = unitsPerInch / 8;
            break;
        case '1':
            state_.lineSpacing = unitsPerInch * 7 / 72;
            break;
        case '2':
            state_.lineSpacing = lineHeight;
            break;
        case 'A':
            if (parameter > maxSpacing) {
                head_.note(NoticeKind::BadParameter, state_.command);
            } else {
                state_.lineSpacing = parameter * (unitsPerInch / (nine ? 72 : 60));
            }
            break;
        case '3':
            state_.lineSpacing = parameter * fine;
            break;
        case 'J':
            paper_.feedFine(parameter * fine);
            break;
        case 'C':
            if (state_.command.size() == 3) {
                setFormLines(parameter);
            } else {
                setFormInches(parameter);
            }
            break;
        default:
            break;
    }
}

void EscpInterpreter::setFormLines(std::uint8_t lines) {
    const PaperUnits height = lines * state_.lineSpacing;
    if (lines > maxFormLines || height < shortestForm || height > maxFormInches * unitsPerInch) {
        head_.note(NoticeKind::BadParameter, state_.command);
        return;
    }
    paper_.setFormHeight(height);
}

void EscpInterpreter::setFormInches(std::uint8_t inches) {
    if (inches < 1 || inches > maxFormInches) {
        head_.note(NoticeKind::BadParameter, state_.command);
        return;
    }
    paper_.setFormHeight(inches * unitsPerInch);
}

void EscpInterpreter::reset() {
    state_.mode = {};
    state_.mode.elite = dialect_.elite;
    state_.mode.condensed = dialect_.condensed;
    state_.mode.eliteOverridesCondensed = dialect_.eliteOverridesCondensed;
    state_.lineSpacing = lineHeight;
    head_.carriageReturn();
    // The paper stays where it is; only a changed form length starts a new form here.
    if (paper_.formHeight() != dialect_.formHeight) {
        paper_.setFormHeight(dialect_.formHeight);
    }
}

}  // namespace tarn::dotmatrix
