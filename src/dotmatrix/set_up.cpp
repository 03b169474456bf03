#include "dotmatrix/set_up.h"

#include "dotmatrix/continuous_paper.h"
#include "dotmatrix/dialect.h"
#include "dotmatrix/escp_interpreter.h"

namespace tarn::dotmatrix {

bool onlySetsUp(std::string_view job) {
    if (job.size() > longestSetUp) {
        return false;
    }
    const Dialect usual;
    ContinuousPaper paper(usual.formHeight);
    EscpInterpreter printer(paper, usual);
    printer.startJob();
    printer.feed(job);
    return paper.y() == 0;
}

}  // namespace tarn::dotmatrix
