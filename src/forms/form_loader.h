// A pre-printed form by its name or from a file.
#pragma once

#include <QImage>
#include <QString>
#include <memory>
#include <optional>
#include <variant>

#include "dotmatrix/form_design.h"
#include "dotmatrix/paper_painter.h"

namespace tarn::dotmatrix {

struct LoadedForm {
    std::shared_ptr<const FormDesign> design;
    std::shared_ptr<const QImage> picture;  // null for none
};

// `form` is a name of the catalogue, else a file: a picture (of the whole sheet, from
// edge to edge), or a form written as text. `itemLines` as for layoutForm. Else a whole
// sentence in Portuguese that says what is wrong.
std::variant<LoadedForm, QString> loadForm(const QString& form,
                                           std::optional<int> itemLines = std::nullopt);

// Lays the form under the print.
void lay(const LoadedForm& form, PaintOptions& options);

}  // namespace tarn::dotmatrix
