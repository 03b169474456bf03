#include "common/printer_failure.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "platform/printer.h"

namespace tarn {

// Character 13 alone between the lines, where the labels' box has CR LF: decisions D28, D97.
void showFailure(Environment& environment, const PrinterFailure& failure) {
    environment.boxes.show({.text = "Descrição :" + failure.description +
                                    "\r   Numero :" + std::to_string(failure.number)});
}

}  // namespace tarn
