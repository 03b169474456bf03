#include "forms/drawing_pen.h"

#include <algorithm>

#include "notes/form_check.h"

namespace tarn::dotmatrix {

namespace {

using notes::Field;
using notes::Source;

// Of a text without a width that has the rest of its line.
constexpr int openRoom = 60;

int roomOf(const Field& field) {
    if (notes::check::isText(field.source)) {
        return field.length;
    }
    const int room = notes::check::roomOf(field);
    return room > 0 ? room : openRoom;
}

bool isVolumes(std::span<const Field> fields) {
    return !fields.empty() && (fields.front().source == Source::QT_ESP ||
                               fields.front().source == Source::QuantitySum);
}

}  // namespace

DrawingPen::DrawingPen(const FormPitch& pitch, int itemLines)
    : paper_(endlessForm),
      printer_(
          paper_,
          Dialect{.formHeight = endlessForm, .elite = pitch.elite, .condensed = pitch.condensed}),
      itemLines_(itemLines),
      boxHeight_(lineHeight) {}

void DrawingPen::setUp(std::string_view bytes) {
    if (!bytes.empty()) {
        control(bytes);
    }
}

void DrawingPen::control(std::string_view bytes) {
    feed(" ");
    feed(bytes);
}

void DrawingPen::begin() {
    if (!call_.begun) {
        feed(" ");
        call_ = {.x = printer_.state().x, .cell = printer_.state().mode.cellWidth(), .begun = true};
        blanks_ = 0;
    }
}

void DrawingPen::feedLines(int count) {
    for (int i = 0; i < count; ++i) {
        feed("\r\n");
    }
}

void DrawingPen::end(int lineEnds) {
    owed_ += lineEnds;
    const int lines = std::max(0, owed_);
    owed_ -= lines;
    if (call_.begun && lines == 0) {
        feed(std::string(static_cast<std::size_t>(call_.end - call_.column), ' '));
    }
    feedLines(lines);
    call_.begun = false;
}

FormBox DrawingPen::place(int column, int room, std::string_view label) const {
    const PaperUnits x = call_.x + (column - call_.column) * call_.cell;
    return {x, paper_.y(), std::min(room * call_.cell, carriage - x), boxHeight_,
            std::string(label)};
}

void DrawingPen::box(int column, int room, std::string_view label) {
    FormBox drawn = place(column, room, labels_ ? label : std::string_view());
    if (drawn.width > 0) {
        boxes_.push_back(std::move(drawn));
    }
}

// A text of the form itself; the two empty boxes of the volumes' line are brand and
// number.
void DrawingPen::literal(const Field& field, bool volumes) {
    if (field.label.find('\n') != std::string_view::npos) {
        feed(field.label);
        call_.x = printer_.state().x;
        call_.column = field.column + roomOf(field);
    } else if (field.width > 0) {
        constexpr std::string_view emptyBoxes[] = {"Marca", "Número"};
        const bool known = volumes && field.label.empty() && blanks_ < 2;
        const std::string_view words = volumes ? "Espécie" : "";
        box(field.column, roomOf(field), known ? emptyBoxes[blanks_] : words);
        blanks_ += known ? 1 : 0;
    } else {
        ownWords_.push_back(place(field.column, notes::check::roomOf(field), field.label));
    }
}

void DrawingPen::field(const Field& field, bool volumes) {
    const int room = roomOf(field);
    if (field.source == Source::Mark) {
        box(field.column, room, "Saída");
        box(field.entryColumn, room, "Entrada");
    } else if (field.source == Source::Literal) {
        literal(field, volumes);
    } else {
        const bool later = field.start > 1;  // a further piece of the same text
        box(field.column, room, later ? std::string_view() : rowOf(field.source).label);
    }
    call_.end = std::max<int>(call_.end, field.column + notes::check::roomOf(field));
    if (field.width > 0) {
        reach_ =
            std::max(reach_, call_.x + (field.column + field.width - call_.column) * call_.cell);
    }
}

void DrawingPen::fields(std::span<const Field> list) {
    begin();
    const bool volumes = isVolumes(list);
    for (const Field& one : list) {
        field(one, volumes);
    }
}

int DrawingPen::parcels(const notes::Parcels& block) {
    parcelsPerRow_ = block.perRow;
    return block.limit;
}

// The block is as high as for three.
int DrawingPen::belowParcels(const notes::Parcels& block, int count) {
    labels_ = true;
    return std::max(0, notes::check::heightOf(block) - count / block.perRow * block.rowEnds);
}

// One box for all of them. What is below the items finds the head at the left: control
// bytes there are on the line below the last item, which is seldom the last line of the box.
void DrawingPen::items(const notes::Items& block) {
    if (itemLines_ == 0) {
        return;
    }
    boxHeight_ = itemLines_ * lineHeight;
    if (block.code.count > 0) {
        fields(block.code.fields());
        end(0);
    }
    fields(block.line.fields());
    end(itemLines_);
    boxHeight_ = lineHeight;
}

bool DrawingPen::service(int line) {
    labels_ = line == 1 || line == 4 || line == notes::serviceLines;
    return line == 1;
}

void DrawingPen::band(const notes::Band& band) {
    begin();
    boxHeight_ = band.most * lineHeight;
    box(band.column, band.piece, rowOf(band.source).label);
    boxHeight_ = lineHeight;
    end(band.lines);
}

}  // namespace tarn::dotmatrix
