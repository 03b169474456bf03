// A pre-printed form written down as text, so that a designer can keep one without
// drawing a picture. docs/forms.md tells the words.
#pragma once

#include <string>
#include <string_view>
#include <variant>

#include "dotmatrix/form_design.h"

namespace tarn::dotmatrix {

struct FormTextError {
    std::size_t line = 0;  // from 1
    std::string what;      // Portuguese, a whole sentence
};

std::variant<FormDesign, FormTextError> readForm(std::string_view text);
// The same drawing, to within 1/1000 of a column.
std::string writeForm(const FormDesign& form);

}  // namespace tarn::dotmatrix
