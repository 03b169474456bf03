// The one road to the server: one GET, one document.
#pragma once

#include <string>

#include "gateway/xml_document.h"

namespace tarn {

struct Environment;

// Fetches `url` into `document`; true when it was loaded. An unreachable server,
// an HTTP error and a body that isn't well-formed XML are one failure: unless
// `failureMessage` is empty it shows it in a critical box. `fileName` not empty
// and `writesFile` above 0 keep a copy of the answer in `PrefixoArquivo`, `fileName`
// and .XML, which a failed load deletes. `asynchronous` and `reserved` are not used.
bool CarregaXML(Environment& environment, const std::string& url, XmlDocument& document,
                bool asynchronous, const std::string& fileName, int writesFile,
                const std::string& reserved, const std::string& failureMessage,
                const std::string& PrefixoArquivo = {});

}  // namespace tarn
