#include "gateway/answer.h"

#include "gateway/carrega_xml.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"

namespace tarn {

bool requestAnswer(Environment& environment, const std::string& query, XmlDocument& document,
                   std::string_view failureMessage) {
    return CarregaXML(environment, environment.baseUrl + query, document, false, "", 0, "",
                      std::string(failureMessage));
}

bool answerAccepted(Environment& environment, const XmlDocument& document,
                    const std::string& emptyMessage) {
    if (document.empty()) {
        warn(environment, emptyMessage);
        return false;
    }
    const std::string status = statusOf(document);
    if (status != "OK") {
        warn(environment, status);
        return false;
    }
    return true;
}

void warn(Environment& environment, const std::string& text) {
    environment.boxes.show({.text = text, .icon = BoxIcon::Exclamation});
}

void warn(Environment& environment, const std::string& text, const std::string& title) {
    environment.boxes.show({.text = text, .icon = BoxIcon::Exclamation, .title = title});
}

}  // namespace tarn
