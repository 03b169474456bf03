#include "widgets/program_end.h"

namespace tarn {

void FimDoPrograma::encerra(int status) {
    if (encerrado_) {
        return;
    }
    encerrado_ = true;
    status_ = status;
    emit encerrou(status);
}

}  // namespace tarn
