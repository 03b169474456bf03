#include "gateway/answer.h"

#include "gateway/carrega_xml.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"
#include "runtime/runtime_error.h"

namespace tarn {
namespace {

void warn(Environment& environment, const std::string& text) {
    environment.boxes.show({.text = text, .icon = BoxIcon::Exclamation});
}

}  // namespace

bool requestAnswer(Environment& environment, const std::string& query, XmlDocument& document,
                   std::string_view failureMessage) {
    return CarregaXML(environment, environment.baseUrl + query, document, false, "", 0, "",
                      std::string(failureMessage));
}

std::string statusOf(const XmlDocument& document) {
    return std::string(document.child(1).attributes().item(1).text());
}

std::optional<std::string> statusIfAny(const XmlDocument& document) {
    try {
        return statusOf(document);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
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

XmlNode rowsetOf(const XmlDocument& answer) {
    return answer.selectSingleNode("xml/rs:data");
}

XmlNodeList rowsOf(const XmlDocument& answer) {
    const XmlNode rowset = rowsetOf(answer);
    return rowset ? rowset.childNodes() : XmlNodeList();
}

}  // namespace tarn
