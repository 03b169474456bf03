// All forms that the product knows by name, of notes and of everything else.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "dotmatrix/form_design.h"
#include "platform/job_kind.h"

namespace tarn::dotmatrix {

struct CatalogueForm {
    std::string name;
    std::string title;  // Portuguese: the document, then whose
    JobDocument document = JobDocument::Note;
};

// Notes first, in the order of the ladder.
std::vector<CatalogueForm> formCatalogue();

// What a user calls the form of that name; the name itself where it is none of them.
std::string formTitle(std::string_view name);

// Nothing for a name that isn't in the catalogue. `itemLines` as for layoutForm.
std::optional<FormDesign> formDrawing(std::string_view name,
                                      std::optional<int> itemLines = std::nullopt);

// The forms that jobs have told of, each drawn once: the same form is the same object.
class FormShelf {
public:
    // Null where the job tells of none, or of one that isn't in the catalogue.
    std::shared_ptr<const FormDesign> formOf(const JobKind& kind);

private:
    std::map<std::pair<std::string, std::optional<int>>, std::shared_ptr<const FormDesign>> drawn_;
};

}  // namespace tarn::dotmatrix
