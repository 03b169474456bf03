// What the commands of the printers' language do.
#include "dotmatrix/control_codes.h"
#include "dotmatrix/escp_interpreter.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::uint8_t maxFormLines = 127;
constexpr std::uint8_t maxFormInches = 22;
// No label is lower; shorter forms would only flood the paper with perforations.
constexpr PaperUnits shortestForm = unitsPerInch / 2;
constexpr std::uint8_t maxSpacing = 85;

// Printers read the digits "0" and "1" like the numbers in their on/off commands.
bool isOn(std::uint8_t parameter) {
    return (parameter & 1U) != 0;
}

}  // namespace

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
