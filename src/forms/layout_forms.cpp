#include "forms/layout_forms.h"

#include <algorithm>
#include <set>

#include "dotmatrix/escp_interpreter.h"
#include "forms/field_labels.h"
#include "notes/layouts/layouts.h"
#include "notes/service_rows.h"

namespace tarn::dotmatrix {

namespace {

using notes::Field;
using notes::Source;

constexpr PaperUnits lineHeight = unitsPerInch / 6;
constexpr PaperUnits headroom = lineHeight / 2;
constexpr PaperUnits carriage = 136 * unitsPerInch / 10;
constexpr PaperUnits endless = 1000 * unitsPerInch;
constexpr int sheetLines = 66;
// Of a text without a width that has the rest of its line.
constexpr int openRoom = 60;

int roomOf(const Field& field) {
    if (field.source == Source::LegalText || field.source == Source::Observation) {
        return field.length;
    }
    const int room = notes::check::roomOf(field);
    return room > 0 ? room : openRoom;
}

// Sends the form's own bytes and line ends to a printer, as a note does, and notes
// where the head stands when a field begins.
class Walk {
public:
    explicit Walk(const FormPitch& pitch)
        : paper_(endless),
          printer_(
              paper_,
              Dialect{.formHeight = endless, .elite = pitch.elite, .condensed = pitch.condensed}) {}

    void run(const notes::Form& form, int itemLines) {
        itemLines_ = itemLines;
        if (!form.setUp.empty()) {
            control(form.setUp);
        }
        for (const notes::Step& step : form.steps) {
            std::visit([this](const auto& s) { walk(s); }, step);
        }
        giveHeadroom();
    }

    PaperUnits height() const { return paper_.y(); }
    std::vector<FormBox>& boxes() { return boxes_; }
    // Right edge of the rightmost field that has a width.
    PaperUnits reach() const { return reach_; }

private:
    void feed(std::string_view bytes) { printer_.feed(bytes); }
    void feedLines(int count) {
        for (int i = 0; i < count; ++i) {
            feed("\r\n");
        }
    }
    void control(std::string_view bytes) {
        feed(" ");
        feed(bytes);
    }

    struct Call {
        PaperUnits x = 0;  // where `column` begins
        int column = 2;
        int end = 2;  // column behind the last field
        PaperUnits cell = 0;
        PaperUnits height = lineHeight;  // of its boxes
        bool labels = true;
    };

    Call begin() {
        feed(" ");
        Call call;
        call.x = printer_.state().x;
        call.cell = printer_.state().mode.cellWidth();
        return call;
    }
    void finish(const Call& call, int lineEnds) {
        if (lineEnds == 0) {
            feed(std::string(static_cast<std::size_t>(call.end - call.column), ' '));
        }
        feedLines(lineEnds);
    }

    void box(const Call& call, int column, int room, std::string_view label) {
        const PaperUnits x = call.x + (column - call.column) * call.cell;
        const PaperUnits width = std::min(room * call.cell, carriage - x);
        if (width > 0) {
            boxes_.push_back({x, paper_.y(), width, call.height,
                              std::string(call.labels ? label : std::string_view())});
        }
    }

    void fields(Call& call, std::span<const Field> fields) {
        int blanks = 0;  // of the volumes line: its empty boxes are brand and number
        const bool volumes = !fields.empty() && (fields.front().source == Source::QT_ESP ||
                                                 fields.front().source == Source::QuantitySum);
        for (const Field& field : fields) {
            const int room = roomOf(field);
            if (field.source == Source::Mark) {
                box(call, field.column, room, "Saída");
                box(call, field.entryColumn, room, "Entrada");
            } else if (field.source != Source::Literal) {
                const bool later = field.start > 1;  // a further piece of the same text
                box(call, field.column, room, later ? std::string_view() : labelOf(field.source));
            } else if (field.label.find('\n') != std::string_view::npos) {
                feed(field.label);
                call.x = printer_.state().x;
                call.column = field.column + room;
            } else if (field.width > 0) {
                constexpr std::string_view emptyBoxes[] = {"Marca", "Número"};
                const bool known = volumes && field.label.empty() && blanks < 2;
                box(call, field.column, room,
                    known      ? emptyBoxes[blanks]
                    : !volumes ? std::string_view()
                               : std::string_view("Espécie"));
                blanks += known ? 1 : 0;
            }
            call.end = std::max<int>(call.end, field.column + notes::check::roomOf(field));
            if (field.width > 0) {
                reach_ = std::max(reach_,
                                  call.x + (field.column + field.width - call.column) * call.cell);
            }
        }
    }

    void call(std::span<const Field> list, int lineEnds, PaperUnits height = lineHeight,
              bool labels = true) {
        Call one = begin();
        one.height = height;
        one.labels = labels;
        fields(one, list);
        finish(one, lineEnds);
    }

    void walk(const notes::Row& row) { call(row.fields(), row.advance); }
    void walk(const notes::Control& step) {
        control(step.bytes);
        if (step.advance > 0) {
            feed(" ");
            feedLines(step.advance);
        }
    }

    // Room for as many parcels as the form takes; the block is as high as for three.
    void walk(const notes::Parcels& block) {
        const int rows = (block.limit + block.perRow - 1) / block.perRow;
        for (int row = 0; row < rows; ++row) {
            if (block.callPerParcel) {
                for (int place = 0; place < block.perRow; ++place) {
                    call(block.places[static_cast<std::size_t>(place)].fields(), 0, lineHeight,
                         row == 0);
                }
            } else {
                Call line = begin();
                line.labels = row == 0;
                for (int place = 0; place < block.perRow; ++place) {
                    fields(line, block.places[static_cast<std::size_t>(place)].fields());
                }
            }
            feedLines(block.rowEnds);
        }
        feedLines(std::max(0, notes::check::heightOf(block) - rows * block.rowEnds));
    }

    void walk(const notes::Items& block) {
        if (itemLines_ > 0) {
            const PaperUnits height = itemLines_ * lineHeight;
            if (block.code.count > 0) {
                call(block.code.fields(), 0, height);
            }
            call(block.line.fields(), 1, height);
            feedLines(itemLines_ - 1);
        }
        if (!block.controlAfter.empty()) {
            // The bytes stand on the line below the last item, which is seldom the last
            // line of the box, and so they move nothing.
            feed(block.controlAfter);
        }
        if (block.services) {
            services();
        } else {
            const int more = block.constant + block.lineEnds;
            feedLines(std::max(0, more));
        }
    }

    void services() {
        for (int line = 1; line <= notes::check::serviceLines; ++line) {
            Call one = begin();
            one.labels = line == 1 || line == 4 || line == 6;
            fields(one, line == 1 ? notes::serviceLine.fields() : notes::emptyServiceLine.fields());
            if (line == 4) {
                fields(one, notes::besideFourth.fields());
            } else if (line == 6) {
                fields(one, notes::besideSixth.fields());
            }
            finish(one, 1);
        }
    }

    void walk(const notes::Band& band) {
        Call one = begin();
        one.height = band.most * lineHeight;
        box(one, band.column, band.piece, labelOf(band.source));
        finish(one, band.lines);
    }
    void walk(const notes::Credit& credit) {
        walk(credit.amount);
        walk(credit.rate);
    }

    // The boxes of a line grow half a line upwards, for their words, where nothing stands
    // above any of them.
    void giveHeadroom() {
        std::set<PaperUnits> tight;
        for (const FormBox& one : boxes_) {
            const bool taken =
                one.y < headroom ||
                std::any_of(boxes_.begin(), boxes_.end(), [&one](const FormBox& other) {
                    return other.y < one.y && other.y + other.height > one.y - headroom &&
                           other.x < one.x + one.width && one.x < other.x + other.width;
                });
            if (taken) {
                tight.insert(one.y);
            }
        }
        for (FormBox& box : boxes_) {
            if (tight.count(box.y) == 0) {
                box.y -= headroom;
                box.height += headroom;
            }
        }
    }

    ContinuousPaper paper_;
    EscpInterpreter printer_;
    std::vector<FormBox> boxes_;
    PaperUnits reach_ = 0;
    int itemLines_ = 0;
};

struct Named {
    std::string name;
    const notes::Form* form;
};

std::vector<Named> namedForms() {
    std::vector<Named> forms;
    for (const notes::Layout* layout : notes::allLayouts()) {
        if (layout->form == nullptr) {
            continue;  // it draws on blank paper
        }
        if (layout->other != nullptr) {
            forms.push_back(
                {std::string(layout->name) + "_" + std::to_string(layout->establishment),
                 layout->form});
        }
        forms.push_back(
            {std::string(layout->name), layout->other != nullptr ? layout->other : layout->form});
    }
    return forms;
}

Walk walked(const notes::Form& form, const FormPitch& pitch, int itemLines) {
    Walk walk(pitch);
    walk.run(form, itemLines);
    return walk;
}

FormDesign draw(const Named& named, std::optional<int> itemLines) {
    FormDesign design;
    design.name = named.name;
    // A form that selects no pitch and is wider than the carriage is for printers that
    // are set to condensed print at their panel.
    if (walked(*named.form, design.pitch, 1).reach() > carriage) {
        design.pitch.condensed = true;
    }
    const auto withOne = walked(*named.form, design.pitch, 1).height() / lineHeight;
    const int lines =
        itemLines ? *itemLines : std::max(1, sheetLines - static_cast<int>(withOne) + 1);
    Walk walk = walked(*named.form, design.pitch, lines);
    design.height = std::max<PaperUnits>(walk.height(), unitsPerInch);
    design.boxes = std::move(walk.boxes());
    return design;
}

}  // namespace

std::vector<std::string> layoutFormNames() {
    std::vector<std::string> names;
    for (Named& named : namedForms()) {
        names.push_back(std::move(named.name));
    }
    return names;
}

std::optional<FormDesign> layoutForm(std::string_view name, std::optional<int> itemLines) {
    for (const Named& named : namedForms()) {
        if (named.name == name) {
            return draw(named, itemLines);
        }
    }
    return std::nullopt;
}

}  // namespace tarn::dotmatrix
