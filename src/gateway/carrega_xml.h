// The one road to the server: one GET, one document.
#pragma once

#include <string>

#include "gateway/xml_document.h"

namespace tarn {

struct Environment;

// Fetches `url` into `documento`; true when it was loaded. An unreachable server,
// an HTTP error and a body that isn't well-formed XML are one failure: unless
// `mensagemFalha` is empty it shows it in a critical box. `nomeArquivo` not empty
// and `gravarArquivo` above 0 keep a copy of the answer in `nomeArquivo`.XML, which
// a failed load deletes. `assincrono` and `reservado` are not used.
bool CarregaXML(Environment& environment, const std::string& url, XmlDocument& documento,
                bool assincrono, const std::string& nomeArquivo, int gravarArquivo,
                const std::string& reservado, const std::string& mensagemFalha);

}  // namespace tarn
