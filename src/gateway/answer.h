// One request as every routine makes it, and the checks on its answer.
#pragma once

#include <string>
#include <string_view>

#include "gateway/xml_document.h"

namespace tarn {

struct Environment;

// CarregaXML of BaseUrl and `consulta`, without a copy.
bool pede(Environment& ambiente, const std::string& consulta, XmlDocument& documento,
          std::string_view mensagemFalha);

// False, with the user told, when the answer is empty (`mensagemVazia`) or its status
// isn't exactly "OK" (the server's own text). VariavelObjeto when it has no status.
bool respostaAceita(Environment& ambiente, const XmlDocument& documento,
                    const std::string& mensagemVazia);

// A box with the exclamation icon, by default without a title of its own.
void exclama(Environment& ambiente, const std::string& texto);
void exclama(Environment& ambiente, const std::string& texto, const std::string& titulo);

}  // namespace tarn
