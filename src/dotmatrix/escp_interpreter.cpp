#include "dotmatrix/escp_interpreter.h"

#include <algorithm>
#include <utility>

#include "dotmatrix/glyph_table.h"

namespace tarn::dotmatrix {

namespace {

constexpr std::uint8_t kNul = 0x00;
constexpr std::uint8_t kBell = 0x07;
constexpr std::uint8_t kBackspace = 0x08;
constexpr std::uint8_t kTab = 0x09;
constexpr std::uint8_t kLineFeed = 0x0A;
constexpr std::uint8_t kVerticalTab = 0x0B;
constexpr std::uint8_t kFormFeed = 0x0C;
constexpr std::uint8_t kCarriageReturn = 0x0D;
constexpr std::uint8_t kShiftOut = 0x0E;
constexpr std::uint8_t kShiftIn = 0x0F;
constexpr std::uint8_t kDeviceControl2 = 0x12;
constexpr std::uint8_t kDeviceControl4 = 0x14;
constexpr std::uint8_t kEscape = 0x1B;
constexpr std::uint8_t kDelete = 0x7F;

constexpr int kTabColumns = 8;
// Backspaces of another pitch can bring the head back without giving back the columns.
constexpr PaperUnits kMaxColumn = 4096;
constexpr std::uint8_t kMaxFormLines = 127;
constexpr std::uint8_t kMaxFormInches = 22;
// No label is lower; shorter forms would only flood the paper with perforations.
constexpr PaperUnits kShortestForm = kUnitsPerInch / 2;
constexpr std::uint8_t kMaxSpacing = 85;
constexpr PaperUnits kNarrowestCarriage = kUnitsPerInch;

// Printers read the digits "0" and "1" like the numbers in their on/off commands.
bool isOn(std::uint8_t parameter) {
    return (parameter & 1U) != 0;
}

}  // namespace

EscpInterpreter::EscpInterpreter(ContinuousPaper& paper, const Dialect& dialect)
    : paper_(paper), dialect_(dialect) {
    dialect_.carriageWidth = std::max(dialect_.carriageWidth, kNarrowestCarriage);
    reset();
}

void EscpInterpreter::startJob(std::string name) {
    paper_.startJob(std::move(name));
    columnsBefore_ = static_cast<std::uint16_t>(column_ - 1);
}

void EscpInterpreter::feed(std::string_view bytes) {
    if (paper_.currentJob() == 0) {
        startJob({});
    }
    for (const char c : bytes) {
        take(static_cast<std::uint8_t>(c));
    }
}

void EscpInterpreter::take(std::uint8_t byte) {
    switch (waiting_) {
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
            if (byte == kNul) {
                finishCommand();
            }
            break;
        case Waiting::Data:
            if (--missing_ == 0) {
                waiting_ = Waiting::Text;
            }
            break;
    }
}

void EscpInterpreter::takeText(std::uint8_t byte) {
    if (hasUpperControls(dialect_.codePage) && byte >= 0x80 && byte < 0xA0) {
        note(NoticeKind::UpperControl, std::string(1, static_cast<char>(byte)));
        takeControl(static_cast<std::uint8_t>(byte - 0x80), byte);
    } else if (byte < 0x20 || byte == kDelete) {
        takeControl(byte, byte);
    } else {
        printCharacter(glyphOf(byte, dialect_.codePage));
    }
}

void EscpInterpreter::takeControl(std::uint8_t code, std::uint8_t byte) {
    switch (code) {
        case kNul:
        case kBell:
            break;
        case kBackspace:
            backspace();
            break;
        case kTab:
            horizontalTab();
            break;
        case kLineFeed:
        case kVerticalTab:  // without vertical tabs set it feeds one line
            newLine();
            break;
        case kFormFeed:
            paper_.feedToNextForm();
            carriageReturn();
            mode_.wideLine = false;
            break;
        case kCarriageReturn:
            carriageReturn();
            break;
        case kShiftOut:
            mode_.wideLine = true;
            break;
        case kDeviceControl4:
            mode_.wideLine = false;
            break;
        case kShiftIn:
            mode_.condensed = true;
            break;
        case kDeviceControl2:
            mode_.condensed = false;
            break;
        case kEscape:
            command_.assign(1, static_cast<char>(byte));
            waiting_ = Waiting::Escape;
            break;
        default:
            note(NoticeKind::UnknownControl, std::string(1, static_cast<char>(byte)));
            break;
    }
}

void EscpInterpreter::takeEscape(std::uint8_t byte) {
    command_ += static_cast<char>(byte);
    std::uint8_t code = byte;
    if (hasUpperControls(dialect_.codePage) && byte >= 0x80 && byte < 0xA0) {
        code = static_cast<std::uint8_t>(byte - 0x80);
    }
    if (code == kEscape) {
        // Forms are in use whose set-up reads ESC ESC G and wants double strike, so the
        // first ESC is the one that is dropped. A printer that drops the pair prints "G"
        // instead; the notice tells where.
        note(NoticeKind::RepeatedEscape, command_);
        command_.assign(1, static_cast<char>(byte));
        return;
    }
    const auto shape = shapeOf(code);
    if (!shape) {
        note(NoticeKind::UnknownCommand, command_);
        waiting_ = Waiting::Text;
        return;
    }
    shape_ = *shape;
    missing_ = shape_.parameters;
    waiting_ = Waiting::Parameters;
    if (missing_ == 0) {
        if (shape_.tail == Tail::UntilNul) {
            waiting_ = Waiting::ListEnd;
        } else {
            finishCommand();
        }
    }
}

void EscpInterpreter::takeParameter(std::uint8_t byte) {
    command_ += static_cast<char>(byte);
    if (shape_.code == 'C' && command_.size() == 3 && byte == 0) {
        return;  // the length in inches follows
    }
    if (--missing_ > 0) {
        return;
    }
    if (shape_.tail == Tail::UntilNul) {
        waiting_ = Waiting::ListEnd;
    } else {
        finishCommand();
    }
}

void EscpInterpreter::finishCommand() {
    waiting_ = Waiting::Text;
    if (shape_.drawn) {
        execute();
        return;
    }
    note(NoticeKind::NotDrawn, command_);
    if (shape_.tail != Tail::Data) {
        return;
    }
    const auto low = static_cast<std::uint8_t>(command_[command_.size() - 2]);
    const auto high = static_cast<std::uint8_t>(command_[command_.size() - 1]);
    missing_ = low + 256U * high;
    if (shape_.code == '*' && static_cast<std::uint8_t>(command_[2]) >= 32) {
        missing_ *= 3;  // columns of 24 needles
    } else if (shape_.code == '^') {
        missing_ *= 2;  // columns of 9 needles
    }
    if (missing_ > 0) {
        waiting_ = Waiting::Data;
    }
}

void EscpInterpreter::execute() {
    const auto parameter = static_cast<std::uint8_t>(command_.back());
    switch (shape_.code) {
        case kShiftOut:
            mode_.wideLine = true;
            break;
        case kShiftIn:
            mode_.condensed = true;
            break;
        case 'M':
            mode_.elite = true;
            mode_.micron = false;
            break;
        case 'P':
            mode_.elite = false;
            mode_.micron = false;
            break;
        case 'g':
            mode_.micron = true;
            break;
        case 'E':
        case 'F':
            mode_.setStyle(kEmphasised, shape_.code == 'E');
            break;
        case 'G':
        case 'H':
            mode_.setStyle(kDoubleStrike, shape_.code == 'G');
            break;
        case '4':
        case '5':
            mode_.setStyle(kItalic, shape_.code == '4');
            break;
        case '-':
            mode_.setStyle(kUnderlined, isOn(parameter));
            break;
        case 'W':
            mode_.wide = isOn(parameter);
            mode_.wideLine = false;
            break;
        case '!':
            mode_.select(parameter);
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
    const PaperUnits fine = kUnitsPerInch / (nine ? 216 : 180);
    switch (shape_.code) {
        case '0':
            lineSpacing_ = kUnitsPerInch / 8;
            break;
        case '1':
            lineSpacing_ = kUnitsPerInch * 7 / 72;
            break;
        case '2':
            lineSpacing_ = kUnitsPerInch / 6;
            break;
        case 'A':
            if (parameter > kMaxSpacing) {
                note(NoticeKind::BadParameter, command_);
            } else {
                lineSpacing_ = parameter * (kUnitsPerInch / (nine ? 72 : 60));
            }
            break;
        case '3':
            lineSpacing_ = parameter * fine;
            break;
        case 'J':
            paper_.feedFine(parameter * fine);
            break;
        case 'C':
            if (command_.size() == 3) {
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
    const PaperUnits height = lines * lineSpacing_;
    if (lines > kMaxFormLines || height < kShortestForm ||
        height > kMaxFormInches * kUnitsPerInch) {
        note(NoticeKind::BadParameter, command_);
        return;
    }
    paper_.setFormHeight(height);
}

void EscpInterpreter::setFormInches(std::uint8_t inches) {
    if (inches < 1 || inches > kMaxFormInches) {
        note(NoticeKind::BadParameter, command_);
        return;
    }
    paper_.setFormHeight(inches * kUnitsPerInch);
}

void EscpInterpreter::reset() {
    mode_ = {};
    mode_.elite = dialect_.elite;
    mode_.condensed = dialect_.condensed;
    mode_.eliteOverridesCondensed = dialect_.eliteOverridesCondensed;
    lineSpacing_ = kUnitsPerInch / 6;
    carriageReturn();
    // The paper stays where it is; only a changed form length starts a new form here.
    if (paper_.formHeight() != dialect_.formHeight) {
        paper_.setFormHeight(dialect_.formHeight);
    }
}

void EscpInterpreter::printCharacter(char16_t character) {
    const std::uint16_t width = mode_.cellWidth();
    if (x_ + width > dialect_.carriageWidth) {
        note(NoticeKind::PastRightMargin, {});
        newLine();
        // The end of the line may have ended double width, so the cell is measured anew.
        printCharacter(character);
        return;
    }
    const bool isBlank = character == u' ' || character == u'\u00A0';
    if (!isBlank || (mode_.style & kUnderlined) != 0) {
        Cell cell;
        cell.x = static_cast<std::int32_t>(x_);
        cell.width = width;
        cell.column = column_;
        cell.character = isBlank ? u' ' : character;
        cell.style = mode_.style;
        paper_.print(cell, columnsBefore_);
    }
    x_ += width;
    passColumns(1);
}

void EscpInterpreter::passColumns(PaperUnits count) {
    column_ = static_cast<std::uint16_t>(std::min<PaperUnits>(column_ + count, kMaxColumn));
}

void EscpInterpreter::newLine() {
    paper_.feedRow(lineSpacing_);
    carriageReturn();
    mode_.wideLine = false;
}

void EscpInterpreter::carriageReturn() {
    x_ = 0;
    column_ = 1;
    columnsBefore_ = 0;
}

void EscpInterpreter::horizontalTab() {
    const PaperUnits width = mode_.cellWidth();
    const PaperUnits stride = kTabColumns * width;
    const PaperUnits stop = (x_ / stride + 1) * stride;
    if (stop > dialect_.carriageWidth) {
        return;  // no stop is left in this line
    }
    passColumns((stop - x_ + width - 1) / width);
    x_ = stop;
}

void EscpInterpreter::backspace() {
    if (column_ == 1) {
        return;
    }
    x_ = std::max<PaperUnits>(x_ - mode_.cellWidth(), 0);
    --column_;
}

void EscpInterpreter::note(NoticeKind kind, std::string bytes) {
    notices_.add({kind, paper_.currentJob(), paper_.jobLine(),
                  static_cast<std::size_t>(column_ - columnsBefore_), std::move(bytes)});
}

}  // namespace tarn::dotmatrix
