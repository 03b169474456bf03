// The paper that each job goes on, job after job: its sender tells it, or its bytes do.
#pragma once

#include <string>
#include <string_view>

#include "dotmatrix/roll_printing.h"
#include "forms/form_catalogue.h"
#include "forms/job_recogniser.h"
#include "platform/job_kind.h"

namespace tarn::dotmatrix {

class JobPapers {
public:
    // Of the next job, by what its sender tells.
    JobPaper told(const JobKind& kind);
    // Of the next job, whose sender doesn't tell, by all of its bytes.
    JobPaper known(std::string_view job);
    // Of the next job, whose sender doesn't tell and of which not all is there.
    JobPaper unknown();

private:
    FormShelf shelf_;
    JobRecogniser recogniser_{shelf_};
    std::string setUp_;  // the job before, where it only set the printer up
};

}  // namespace tarn::dotmatrix
