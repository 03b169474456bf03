// The form of a job whose sender doesn't tell it. It is known where the job that has set the
// printer up is the form's own, and where the text falls into the boxes of that form alone;
// else nothing is guessed.
#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "dotmatrix/form_design.h"
#include "forms/form_catalogue.h"

namespace tarn::dotmatrix {

class JobRecogniser {
public:
    // A longer job is none of one document.
    static constexpr std::size_t mostBytes = 64UL * 1024;

    // `shelf`, which draws the notes' forms, must outlive this.
    explicit JobRecogniser(FormShelf& shelf) : shelf_(shelf) {}

    // `setUp` is the job ahead of it where that only sets the printer up, else empty. Null
    // where no form fits, or more than one does.
    std::shared_ptr<const FormDesign> formOf(std::string_view setUp, std::string_view job);

private:
    struct Candidate {
        std::string name;
        JobDocument document = JobDocument::Note;
        // With one line for items, where it has any.
        std::shared_ptr<const FormDesign> form;
    };

    void prepare();
    std::shared_ptr<const FormDesign> fitted(const Candidate& candidate, PaperUnits height);

    FormShelf& shelf_;
    std::vector<Candidate> candidates_;
};

}  // namespace tarn::dotmatrix
