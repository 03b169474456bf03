#include "gateway/answer.h"

#include "gateway/carrega_xml.h"
#include "gateway/pega_valor.h"
#include "platform/environment.h"
#include "platform/message_boxes.h"

namespace tarn {

bool pede(Environment& ambiente, const std::string& consulta, XmlDocument& documento,
          std::string_view mensagemFalha) {
    return CarregaXML(ambiente, ambiente.baseUrl + consulta, documento, false, "", 0, "",
                      std::string(mensagemFalha));
}

bool respostaAceita(Environment& ambiente, const XmlDocument& documento,
                    const std::string& mensagemVazia) {
    if (documento.empty()) {
        exclama(ambiente, mensagemVazia);
        return false;
    }
    const std::string status = statusOf(documento);
    if (status != "OK") {
        exclama(ambiente, status);
        return false;
    }
    return true;
}

void exclama(Environment& ambiente, const std::string& texto) {
    ambiente.boxes.show({.text = texto, .icon = BoxIcon::Exclamation});
}

void exclama(Environment& ambiente, const std::string& texto, const std::string& titulo) {
    ambiente.boxes.show({.text = texto, .icon = BoxIcon::Exclamation, .title = titulo});
}

}  // namespace tarn
