#include "widgets/program_end.h"

namespace tarn {

void ProgramEnd::endProgram(int status) {
    if (ended_) {
        return;
    }
    ended_ = true;
    status_ = status;
    emit didEnd(status);
}

}  // namespace tarn
