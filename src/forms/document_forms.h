// The forms of what is no note, drawn from the routines that print on them: slips, cheques,
// the billing-order sheet and labels.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dotmatrix/form_design.h"
#include "platform/job_kind.h"

namespace tarn::dotmatrix {

// A form and what a user calls it.
struct NamedDocumentForm {
    std::string name;   // as the jobs tell it: "Boleto_1016_57"
    std::string title;  // Portuguese: "Boleto: banco 1016, carteira 57"
    JobDocument document = JobDocument::Untold;
};

std::vector<NamedDocumentForm> documentForms();

// Nothing for any other name.
std::optional<FormDesign> documentForm(std::string_view name);

}  // namespace tarn::dotmatrix
