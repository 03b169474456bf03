#include "labels/label_boxes.h"

#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/runtime_error.h"

namespace tarn::labels {

void informa(Environment& ambiente, const std::string& texto) {
    ambiente.boxes.show({.text = texto, .icon = BoxIcon::Information, .title = "TArn"});
}

void relata(Environment& ambiente, const ErroExecucao& erro, const std::string& oQueFazer) {
    ambiente.boxes.show(
        {.text = textoDaFalha(erro) + "\r\r" + oQueFazer, .icon = BoxIcon::Critical});
}

}  // namespace tarn::labels
