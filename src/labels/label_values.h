// What the label screens tell each other. It outlives them: a screen that couldn't read
// anew works on with what the one before left.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace tarn::labels {

struct LabelValues {
    std::string TipoFormulario;        // "1" to "4"
    std::string MotivoImpressao;       // the reason's description
    std::int32_t FilialRemetente = 0;  // identifier; 0: none chosen
    std::size_t quantity = 0;          // rows of the queue as it was last read
};

}  // namespace tarn::labels
