#include "common/printer_failure.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"

namespace tarn {

void mostraFalha(Environment& ambiente, const PrinterFailure& falha) {
    ambiente.boxes.show({.text = "Descrição :" + falha.description +
                                 "\r   Numero :" + std::to_string(falha.number)});
}

}  // namespace tarn
