#include "notes/form_ruler.h"

#include <algorithm>
#include <string>

#include "common/raw_channel.h"
#include "common/ruler_marks.h"
#include "notes/form_check.h"

namespace tarn::notes {
namespace {

constexpr int sheetLines = 66;
// Room of a text that has the rest of its line.
constexpr int openRoom = 20;

int boxWidth(const Field& field) {
    if (check::isText(field.source)) {
        return field.length;
    }
    const int room = check::roomOf(field);
    return room > 0 ? room : openRoom;
}

class RulerPen {
public:
    // Without a channel it only looks how far the form reaches.
    RulerPen(int itemLines, int reach, RawChannel* channel)
        : itemLines_(itemLines), reach_(reach), channel_(channel) {}

    // The rightmost column of a box.
    int reach() const { return reach_; }

    void setUp(std::string_view bytes) {
        if (channel_ == nullptr) {
            return;
        }
        if (!bytes.empty()) {
            channel_->open();
            send(std::string(bytes), 0);
            channel_->close();
        }
        channel_->open();
    }
    void control(std::string_view bytes) { send(std::string(bytes), 0); }
    void margin(int column) {
        text_.append(static_cast<std::size_t>(std::max(0, column - column_)), ' ');
        column_ = std::max(column, column_);
    }
    void fields(std::span<const Field> list) {
        for (const Field& field : list) {
            place(field);
        }
    }
    // Lines that a form takes from those below it are left out of them; a call that would
    // leave blanks alone is none.
    void end(int lineEnds) {
        owed_ += lineEnds;
        const int lines = std::max(0, owed_);
        owed_ -= lines;
        if (lines == 0 && text_.find_first_not_of(' ') == std::string::npos) {
            text_.clear();
            column_ = firstColumn;
            return;
        }
        send(text_, std::min(lines, 1));
        text_.clear();
        column_ = firstColumn;
        line_ += std::min(lines, 1);
        for (int i = 1; i < lines; ++i) {
            send(rulerLine(line_, reach_), 1);
            ++line_;
        }
    }

    int parcels(const Parcels& block) { return block.limit; }
    void tooMany(const Parcels&) {}
    void parcel(int) {}
    // The block is as high as for three.
    int belowParcels(const Parcels& block, int count) {
        return std::max(0, check::heightOf(block) - count / block.perRow * block.rowEnds);
    }

    void items(const Items& block) {
        for (int i = 0; i < itemLines_; ++i) {
            if (block.code.count > 0) {
                fields(block.code.fields());
                end(block.code.advance);
            }
            fields(block.line.fields());
            end(block.line.advance);
        }
    }
    void controlBelowItems(std::string_view bytes) { control(bytes); }
    int emptyItemLines(const Items& block) const { return block.constant; }

    int services() const { return serviceLines; }
    bool service(int) { return true; }
    bool creditToTake() const { return true; }
    void band(const Band& band) {
        for (int i = 1; i <= band.most; ++i) {
            margin(band.column);
            box(band.column, band.piece);
            end(i < band.most ? 1 : band.lines - (band.most - 1));
        }
    }

private:
    void send(std::string text, int lineEnds) {
        if (channel_ != nullptr) {
            channel_->ImprimeRaw(1, text, lineEnds);
        }
    }
    void box(int column, int width) {
        margin(column);
        text_ += boxCorners(line_, column, width);
        column_ = column + width;
        reach_ = std::max(reach_, column_ - 1);
    }
    void place(const Field& field) {
        const bool lineBreak = field.label.find('\n') != std::string_view::npos;
        if (lineBreak) {
            margin(field.column);
            text_ += field.label;
            column_ += check::roomOf(field);
            line_ += static_cast<int>(std::ranges::count(field.label, '\n'));
        } else if (field.source == Source::Mark) {
            box(std::min(field.column, field.entryColumn), boxWidth(field));
            box(std::max(field.column, field.entryColumn), boxWidth(field));
        } else {
            box(field.column, boxWidth(field));
        }
    }

    int itemLines_;
    int reach_;
    RawChannel* channel_;
    std::string text_;  // of the call in hand
    int column_ = firstColumn;
    int line_ = 1;
    int owed_ = 0;
};
static_assert(Pen<RulerPen>);

}  // namespace

void printFormRuler(const Form& form, int itemLines, RawChannel& channel) {
    RulerPen look(itemLines, 0, nullptr);
    walkForm(form, look);
    RulerPen pen(itemLines, look.reach(), &channel);
    walkForm(form, pen);
    channel.close();
}

int itemLinesOfSheet(const Form& form) {
    return std::max(1, sheetLines - form.length);
}

}  // namespace tarn::notes
