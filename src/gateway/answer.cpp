#include "gateway/answer.h"

#include "gateway/carrega_xml.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"

namespace tarn {

bool requestAnswer(Environment& environment, const std::string& query, XmlDocument& documento,
                   std::string_view mensagemFalha) {
    return CarregaXML(environment, environment.baseUrl + query, documento, false, "", 0, "",
                      std::string(mensagemFalha));
}

bool answerAccepted(Environment& environment, const XmlDocument& documento,
                    const std::string& emptyMessage) {
    if (documento.empty()) {
        warn(environment, emptyMessage);
        return false;
    }
    const std::string status = statusOf(documento);
    if (status != "OK") {
        warn(environment, status);
        return false;
    }
    return true;
}

void warn(Environment& environment, const std::string& texto) {
    environment.boxes.show({.text = texto, .icon = BoxIcon::Exclamation});
}

void warn(Environment& environment, const std::string& texto, const std::string& title) {
    environment.boxes.show({.text = texto, .icon = BoxIcon::Exclamation, .title = title});
}

}  // namespace tarn
