#include "widgets/program_end.h"

namespace tarn {

void ProgramEnd::endProgram(int status) {
    if (ended_) {
        return;
    }
    ended_ = true;
    if (!failing_) {
        status_ = status;
    }
    emit didEnd(status_);
}

void ProgramEnd::failWith(int status) {
    if (!ended_ && !failing_) {
        failing_ = true;
        status_ = status;
    }
}

void ProgramEnd::leaveIfEnded() const {
    if (ended_) {
        throw ProgramEnded{};
    }
}

}  // namespace tarn
