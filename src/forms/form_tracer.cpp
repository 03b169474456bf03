#include "forms/form_tracer.h"

namespace tarn::dotmatrix {

namespace {

// The box that ends where `box` begins, of its place and width.
FormBox* boxAbove(std::vector<FormBox>& boxes, const FormBox& box) {
    for (FormBox& above : boxes) {
        if (above.x == box.x && above.width == box.width && above.y + above.height == box.y) {
            return &above;
        }
    }
    return nullptr;
}

}  // namespace

FormTracer::FormTracer(const FormPitch& pitch)
    : paper_(endlessForm),
      printer_(
          paper_,
          Dialect{.formHeight = endlessForm, .elite = pitch.elite, .condensed = pitch.condensed}) {}

std::vector<FormBox> FormTracer::boxes() const {
    std::vector<FormBox> joined;
    for (const FormBox& box : boxes_) {
        FormBox* above = box.label.empty() ? boxAbove(joined, box) : nullptr;
        if (above != nullptr) {
            above->height += box.height;
        } else {
            joined.push_back(box);
        }
    }
    return joined;
}

void FormTracer::placed(std::span<const PlacedField> fields) {
    const PaperUnits cell = printer_.state().mode.cellWidth();
    for (const PlacedField& field : fields) {
        boxes_.push_back({.x = printer_.state().x + field.column * cell,
                          .y = paper_.y(),
                          .width = field.width * cell,
                          .height = lineHeight,
                          .label = std::string(field.label)});
    }
}

bool FormTracer::startDocument(const JobDescription& /*job*/) {
    printer_.startJob();
    jobs_.emplace_back();
    return true;
}

std::size_t FormTracer::write(std::string_view bytes) {
    printer_.feed(bytes);
    jobs_.back() += bytes;
    return bytes.size();
}

}  // namespace tarn::dotmatrix
